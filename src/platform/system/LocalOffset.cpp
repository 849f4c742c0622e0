#include "platform/system/LocalOffset.h"

#include "platform/Failure.h"

#include <ctime>

namespace ptk {

namespace {

constexpr std::int64_t kDaysBefore1970 = 25569;

// The offset in seconds at a moment of universal time, which is given in seconds since 1970.
std::int64_t OffsetAt(std::int64_t moment)
{
    const std::time_t time = moment;
    std::tm local{};
    if (localtime_r(&time, &local) == nullptr) {
        throw Failure(failure::Overflow);
    }
    return local.tm_gmtoff;
}

} // namespace

std::int64_t LocalOffset(DateTime wall)
{
    const std::int64_t shown = wall.Seconds() - kDaysBefore1970 * DateTime::kSecondsPerDay;
    const std::int64_t before = OffsetAt(shown - DateTime::kSecondsPerDay);
    const std::int64_t after = OffsetAt(shown + DateTime::kSecondsPerDay);
    const bool stillBefore = OffsetAt(shown - before) == before;
    return stillBefore || OffsetAt(shown - after) != after ? before : after;
}

} // namespace ptk
