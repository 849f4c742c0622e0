#include "platform/system/Clock.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <string_view>
#include <system_error>

namespace ptk {

DateTime SystemClock::Now() const
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    const int second = std::min(local.tm_sec, 59); // a leap second shows as the one before it
    return {CalendarDate{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday}, TimeOfDay{local.tm_hour, local.tm_min, second}};
}

std::optional<DateTime> ReproducibleMoment()
{
    static const std::int64_t epoch = DateTime({1970, 1, 1}).Seconds();
    const std::int64_t last = DateTime::kLastDay * DateTime::kSecondsPerDay - epoch;
    const char* const variable = std::getenv("SOURCE_DATE_EPOCH");
    const std::string_view digits = variable == nullptr ? "" : variable;
    std::int64_t seconds = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), seconds);
    const bool isNumber = error == std::errc() && end == digits.data() + digits.size() && seconds >= 0;
    return isNumber && seconds < last ? std::optional(DateTime::FromSeconds(epoch + seconds)) : std::nullopt;
}

} // namespace ptk
