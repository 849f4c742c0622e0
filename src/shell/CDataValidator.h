// Whether text typed into a number or date field can be taken.
#pragma once

#include <string>

namespace ptk {

class CDataValidator
{
public:
    bool CheckIntegerValues(const std::string& thestring) const; // digits only; deliberately true for "" and for numbers of any size
    bool CheckDateTimeValues(const std::string& thestring) const;
    bool CheckSingleValues(const std::string& thestring) const; // digits and a point that together are a single; no sign
};

} // namespace ptk
