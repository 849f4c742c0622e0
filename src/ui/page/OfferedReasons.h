// The reasons that are offered to somebody who changes a record.
#pragma once

#include "platform/system/Desktop.h"

namespace ptk {

class Workplace;

// The last reasons of the edit trail to choose from. `wanted`: a reason is asked for. When they cannot be read, that is logged.
[[nodiscard]] ReasonLine OfferedReasons(Workplace& host, bool wanted);

} // namespace ptk
