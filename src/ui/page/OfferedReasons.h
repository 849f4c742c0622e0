// Why records are changed, as far as somebody says so.
#pragma once

#include "platform/system/Desktop.h"

namespace ptk {

class Workplace;

// Offers the last reasons of the edit trail. wanted: the reason is asked for. That they cannot be read is logged.
[[nodiscard]] ReasonLine OfferedReasons(Workplace& host, bool wanted);

} // namespace ptk
