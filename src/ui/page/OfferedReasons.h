// The reasons that are offered to somebody who changes a record.
#pragma once

#include "platform/system/Desktop.h"

namespace ptk {

class Workplace;

// A reason line with the last reasons of the edit trail to choose from; `wanted`: the user is asked for a reason. A failure to read the
// last reasons is logged, and none are offered.
[[nodiscard]] ReasonLine OfferedReasons(Workplace& host, bool wanted);

} // namespace ptk
