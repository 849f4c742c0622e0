#include "office/records/OptionTexts.h"

#include "model/PayPeriod.h"
#include "platform/Succeeds.h"
#include "platform/text/DayText.h"
#include "platform/text/Text.h"
#include "shell/CDataValidator.h"
#include "store/CSystemOptions.h"

#include <algorithm>
#include <fmt/format.h>
#include <optional>

namespace ptk {

namespace {

constexpr std::int32_t kMostHours = 999;

// The length; a negative one counts as 0. Raises Failure 6 for one beyond 16 bits.
std::optional<std::int16_t> PeriodLength(const std::string& text)
{
    const std::string digits = text.starts_with('-') ? text.substr(1) : text;
    if (digits.empty() || !CDataValidator().CheckIntegerValues(digits)) {
        return std::nullopt;
    }
    return std::max<std::int16_t>(ToInt16(text), 0);
}

// The time of day; moments before the zero date-time count as midnight.
std::optional<DateTime> ShiftTime(const std::string& text)
{
    if (text.empty() || !CDataValidator().CheckDateTimeValues(text)) {
        return std::nullopt;
    }
    return std::max(ToDateTime(text), DateTime());
}

} // namespace

OptionTexts ShowOptions(const CSystemOptions& options)
{
    return {std::to_string(options.PeriodLength()), GeneralText(options.AutoShiftStartTime()), GeneralText(options.AutoShiftEndTime())};
}

bool StoreOptions(CSystemOptions& options, const OptionTexts& texts)
{
    const auto length = PeriodLength(texts.periodLength);
    options.PeriodLength(length.value_or(std::int16_t{0}));
    if (!length) {
        return false;
    }
    const auto start = ShiftTime(texts.autoShiftStart);
    options.AutoShiftStartTime(start.value_or(DateTime()));
    if (!start) {
        return false;
    }
    const auto end = ShiftTime(texts.autoShiftEnd);
    options.AutoShiftEndTime(end.value_or(DateTime()));
    return end && options.Update();
}

std::string PeriodExample(const std::string& periodLength, DateTime today)
{
    std::string example; // stays empty if the period would leave the calendar
    Succeeds([&] {
        if (const auto length = PeriodLength(periodLength)) {
            const PayPeriod period = PayPeriodFrom(today, *length);
            example = fmt::format("A period has {} {}, for example {} - {}", *length + 1, *length == 0 ? "day" : "days",
                                  DayText(period.from), DayText(period.to));
        }
    });
    return example;
}

LimitTexts ShowLimits(const CheckLimits& limits)
{
    return {std::to_string(limits.longShiftHours), limits.firstWeekday, limits.showNotices};
}

std::optional<CheckLimits> ReadLimits(const LimitTexts& texts)
{
    std::int32_t hours = 0;
    const bool isNumber =
        CDataValidator().CheckIntegerValues(texts.longShiftHours) && Succeeds([&] { hours = ToInt32(texts.longShiftHours); });
    return !isNumber || hours < 1 || hours > kMostHours ? std::nullopt
                                                        : std::optional(CheckLimits{hours, texts.firstWeekday, texts.showNotices});
}

std::string LimitRefusal(const LimitTexts& texts)
{
    return ReadLimits(texts) ? std::string() : fmt::format("The longest usual shift is a whole number of hours from 1 to {}", kMostHours);
}

} // namespace ptk
