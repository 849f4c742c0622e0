#include "shell/CDataValidator.h"

#include "platform/Succeeds.h"
#include "platform/text/Characters.h"
#include "platform/text/Text.h"

#include <algorithm>

namespace ptk {

bool CDataValidator::CheckIntegerValues(const std::string& thestring) const
{
    return std::ranges::all_of(thestring, IsDigit);
}

bool CDataValidator::CheckDateTimeValues(const std::string& thestring) const
{
    return ParseDateTime(thestring).has_value();
}

bool CDataValidator::CheckSingleValues(const std::string& thestring) const
{
    if (!std::ranges::all_of(thestring, [](char character) { return character == '.' || IsDigit(character); })) {
        return false;
    }
    return Succeeds([&] { static_cast<void>(ToSingle(thestring)); });
}

} // namespace ptk
