#include "platform/system/Clock.h"

#include <algorithm>
#include <ctime>

namespace ptk {

DateTime SystemClock::Now() const
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    const int second = std::min(local.tm_sec, 59); // a leap second shows as the one before it
    return {CalendarDate{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday}, TimeOfDay{local.tm_hour, local.tm_min, second}};
}

} // namespace ptk
