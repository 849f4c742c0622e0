#include "console/ErrorText.h"

#include "platform/ErrorNumbers.h"
#include "store/postgres/ServerAddress.h"

namespace ptk {

Failure ProgramFailure(std::int32_t number, const std::string& subject, const std::string& reason)
{
    // The number says that there are no records also where they could not be read.
    std::string text = number == timecard::NoRecords && !reason.empty() ? "the time records could not be read" : ErrorText(number);
    for (const std::string& part : {subject, reason}) {
        if (!part.empty()) {
            text += ": " + part;
        }
    }
    return {number, "PTK", std::move(text)};
}

Failure FileFailure(const Failure& reason, const std::string& path)
{
    const bool named = reason.Description().find(path) != std::string::npos;
    return {reason.Number(), reason.Source(), named ? reason.Description() : reason.Description() + ": " + SaidDatabase(path)};
}

} // namespace ptk
