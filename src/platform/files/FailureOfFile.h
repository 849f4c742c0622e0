// Failures that name the file they are about.
#pragma once

#include "platform/Failure.h"

#include <string>

namespace ptk {

// The failure of a file with ": " and the path at the end of its description.
class FailureOfFile final : public Failure
{
public:
    FailureOfFile(const Failure& reason, const std::string& path)
        : Failure(reason.Number(), reason.Source(), reason.Description() + ": " + path, reason.LastSystemError())
    {
    }
};

} // namespace ptk
