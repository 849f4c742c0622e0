#include "model/check/PaydayFindings.h"

#include "model/check/FindingText.h"
#include "model/check/PunchFinding.h"
#include "model/check/PunchPlace.h"
#include "model/check/WorkWeeks.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr std::int64_t kSecondsAMinute = 60;

bool IsIn(const std::vector<PayPeriod>& periods, DateTime moment)
{
    return std::any_of(periods.begin(), periods.end(), [&](const PayPeriod& period) { return StartsIn(period, moment); });
}

template <typename Predicate>
std::vector<const Punch*> Those(std::span<const Punch* const> punches, Predicate matches)
{
    std::vector<const Punch*> found;
    std::copy_if(punches.begin(), punches.end(), std::back_inserter(found), matches);
    return found;
}

} // namespace

std::vector<Finding> PaidChangedFindings(const Closing& paid, const std::optional<CardFigures>& now,
                                         const std::optional<PaidDifference>& difference)
{
    if (!difference) {
        return {};
    }
    return {{FindingKind::PaidChanged,
             {},
             difference->Minutes(),
             paid.period.from,
             MidnightAfter(paid.period.to),
             PaidChangedText(paid, now, difference->gross)}};
}

std::vector<Finding> TwiceFindings(const PayPeriod& period, const ClosingsOfEmployee& closings, std::span<const Punch* const> onCard)
{
    const auto twice =
        Those(onCard, [&](const Punch* punch) { return StartsIn(period, *punch->start) && IsIn(closings.touching, *punch->start); });
    std::vector<Finding> findings;
    for (const WorkDay& day : DaysOf(twice)) {
        findings.push_back(FindingOf(FindingKind::Twice, day.shifts, day.minutes, TwiceText(day)));
    }
    return findings;
}

std::vector<Finding> BetweenFindings(const PayPeriod& period, const ClosingsOfEmployee& closings, std::span<const Punch* const> all)
{
    if (!closings.lastDayBefore) {
        return {};
    }
    const auto between = Those(all, [&](const Punch* punch) {
        return punch->start->DayNumber() > closings.lastDayBefore->DayNumber() && *punch->start < period.from &&
               !IsIn(closings.touching, *punch->start);
    });
    if (between.empty()) {
        return {};
    }
    std::int64_t minutes = 0;
    std::for_each(between.begin(), between.end(), [&](const Punch* punch) { minutes += punch->Minutes(); });
    Finding finding = FindingOf(FindingKind::Between, between, minutes, {});
    finding.text = BetweenText(finding);
    return {finding};
}

std::vector<Finding> ClockChangeFindings(std::span<const Punch* const> onCard, ClockChanges& clock)
{
    std::vector<Finding> findings;
    for (const Punch* const& punch : onCard) {
        const std::int64_t forward = punch->Minutes() > 0 ? clock.Between(*punch->start, *punch->end) : 0;
        if (forward != 0) {
            const std::int64_t lasted = punch->Minutes() - forward / kSecondsAMinute;
            findings.push_back(FindingOf(FindingKind::ClockChange, {&punch, 1}, punch->Minutes(), ClockChangeText(*punch, lasted)));
        }
    }
    return findings;
}

} // namespace ptk
