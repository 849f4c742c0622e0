// Tells whether text typed into a number or date field can be taken.
#pragma once

#include <string>

namespace ptk {

class CDataValidator
{
public:
    // Whether it holds digits only; deliberately true for "" and for numbers of any size.
    [[nodiscard]] bool CheckIntegerValues(const std::string& thestring) const;

    [[nodiscard]] bool CheckDateTimeValues(const std::string& thestring) const;

    // Whether it holds only digits and a point that together are a single; no sign.
    [[nodiscard]] bool CheckSingleValues(const std::string& thestring) const;
};

} // namespace ptk
