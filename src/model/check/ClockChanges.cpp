#include "model/check/ClockChanges.h"

#include <utility>

namespace ptk {

ClockChanges::ClockChanges(OffsetAt offsetAt) : m_offsetAt(std::move(offsetAt)) {}

std::int64_t ClockChanges::AtMidnight(std::int64_t dayNumber)
{
    const auto known = m_midnights.find(dayNumber);
    if (known != m_midnights.end()) {
        return known->second;
    }
    return m_midnights[dayNumber] = m_offsetAt(DateTime::FromDay(dayNumber));
}

// Where both midnights of a day have the same offset, the whole day has it: no zone changes its clocks twice on one day.
std::int64_t ClockChanges::At(DateTime moment)
{
    const std::int64_t day = moment.DayNumber();
    const std::int64_t offset = AtMidnight(day);
    return day == DateTime::kLastDay || AtMidnight(day + 1) == offset ? offset : m_offsetAt(moment);
}

std::int64_t ClockChanges::Between(DateTime earlier, DateTime later)
{
    return At(later) - At(earlier);
}

} // namespace ptk
