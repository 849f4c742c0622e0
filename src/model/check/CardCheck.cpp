#include "model/check/CardCheck.h"

#include "model/CEmployee.h"
#include "model/check/FindingText.h"
#include "model/check/PaydayFindings.h"
#include "model/check/PunchFinding.h"
#include "model/check/PunchGroups.h"
#include "model/check/PunchPlace.h"
#include "model/payday/Closing.h"

#include <algorithm>
#include <tuple>

namespace ptk {

namespace {

constexpr std::int64_t kMinutesPerHour = 60;
constexpr std::int64_t kSecondsPerHour = 3600;

// A span of calendar days by their numbers, both ends included.
struct DaySpan
{
    std::int64_t first;
    std::int64_t last;

    bool Holds(DateTime moment) const { return first <= moment.DayNumber() && moment.DayNumber() <= last; }
};

class Checker
{
public:
    Checker(const CheckedCard& card, const Punches& punches, DateTime now, const CheckLimits& limits, const CardFacts& facts)
        : m_card(card), m_period{card.from.DayNumber(), card.to.DayNumber()}, m_weeks{WeekStart(card.from, limits.firstWeekday).DayNumber(),
                                                                                      WeekLast(card.to, limits.firstWeekday).DayNumber()},
          m_now(now), m_limits(limits), m_facts(facts)
    {
        m_all.reserve(punches.size());
        for (const Punch& punch : punches) {
            Take(punch);
        }
        const auto earlier = [](const Punch* left, const Punch* right) {
            return std::tie(*left->start, *left->end, left->id) < std::tie(*right->start, *right->end, right->id);
        };
        if (!std::is_sorted(m_all.begin(), m_all.end(), earlier)) {
            std::sort(m_all.begin(), m_all.end(), earlier);
        }
        m_onCard = Where([](const Punch* punch) { return punch->fetched; });
    }

    CardCheck Run()
    {
        CheckCrossings();
        if (m_readable) {
            m_found.figures = FiguresOf(m_card.employee, m_onCard);
        }
        if (!m_onCard.empty() || !m_found.findings.empty()) {
            CheckRecords();
        }
        CheckPayday();
        std::sort(m_found.findings.begin(), m_found.findings.end());
        return std::move(m_found);
    }

private:
    void CheckRecords()
    {
        for (const Punch* punch : m_onCard) {
            CheckShift(*punch);
        }
        CheckGroups();
        CheckDays();
        CheckWeeks();
        if (m_facts.clock != nullptr) {
            AddAll(ClockChangeFindings(m_onCard, *m_facts.clock));
        }
    }

    // The readable punches that match, by start, end and number.
    template <typename Predicate>
    std::vector<const Punch*> Where(Predicate matches) const
    {
        std::vector<const Punch*> found;
        found.reserve(m_all.size());
        std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(found), matches);
        return found;
    }

    void Take(const Punch& punch)
    {
        if (punch.IsReadable()) {
            m_all.push_back(&punch);
        } else if (IsToldIn({m_card.from, m_card.to}, punch)) {
            CheckUnreadable(punch);
        }
    }

    void CheckUnreadable(const Punch& punch)
    {
        Finding finding{FindingKind::Unreadable, {punch.id}, 0, {}, {}, UnreadableText(punch)};
        finding.from = IsSet(punch.start) ? punch.start : std::nullopt;
        finding.to = IsSet(punch.end) ? punch.end : std::nullopt;
        Add(std::move(finding));
        if (punch.fetched) {
            m_readable = false;
        }
    }

    void CheckCrossings()
    {
        for (const Punch* punch : m_all) {
            if (Crosses(*punch, m_period.last + 1)) {
                AddShift(FindingKind::CrossesEnd, *punch);
            }
            if (Crosses(*punch, m_period.first)) {
                AddShift(FindingKind::CrossesStart, *punch);
            }
        }
    }

    void CheckShift(const Punch& punch)
    {
        if (punch.IsOpen()) {
            CheckOpen(punch);
        } else if (punch.IsBackward()) {
            AddShift(FindingKind::Backward, punch);
        } else if (punch.Minutes() == 0) {
            AddShift(FindingKind::Empty, punch);
        } else if (punch.Minutes() > m_limits.longShiftHours * kMinutesPerHour) {
            AddShift(FindingKind::Long, punch);
        }
        if (*punch.start > m_now) {
            AddShift(FindingKind::Future, punch);
        }
        CheckEmployment(punch);
    }

    void CheckOpen(const Punch& punch)
    {
        if (punch.start->DayNumber() > m_period.last) {
            return AddShift(FindingKind::OpenLater, punch);
        }
        AddShift(IsAtWork(punch) ? FindingKind::ClockedIn : FindingKind::Open, punch);
    }

    bool IsAtWork(const Punch& punch) const
    {
        const std::int64_t since = m_now.Seconds() - punch.start->Seconds();
        return punch.IsOpen() && punch.start->DayNumber() <= m_period.last && since >= 0 &&
               since < m_limits.longShiftHours * kSecondsPerHour;
    }

    void CheckEmployment(const Punch& punch)
    {
        const DateTime hired = m_card.employee.HireDate();
        const DateTime released = m_card.employee.ReleaseDate();
        const bool before = !hired.IsZero() && DaysBetween(*punch.start, hired) > 0;
        const bool after = !released.IsZero() && DaysBetween(released, *punch.start) > 0;
        if (before || after) {
            AddOne(FindingKind::NotEmployed, punch, NotEmployedText(punch, hired, released));
        }
    }

    // Looks for groups among the records of the card and of the work weeks that its period touches.
    void CheckGroups()
    {
        const auto near =
            Where([this](const Punch* punch) { return punch->fetched || m_weeks.Holds(*punch->start) || Crosses(*punch, m_weeks.first); });
        for (const PunchGroup& group : OverlappingPunches(near)) {
            AddGroup(FindingKind::Overlap, group, OverlapText);
        }
        for (const PunchGroup& group : SameStartPunches(near)) {
            AddGroup(FindingKind::SameStart, group, SameStartText);
        }
    }

    void AddGroup(FindingKind kind, const PunchGroup& group, std::string (*text)(const Finding&))
    {
        const auto fetched = [](const Punch* punch) { return punch->fetched; };
        if (std::none_of(group.punches.begin(), group.punches.end(), fetched)) {
            return;
        }
        Finding finding = FindingOf(kind, group.punches, group.minutes, {});
        finding.text = text(finding);
        Add(std::move(finding));
    }

    void CheckDays()
    {
        std::int64_t regular = 0;
        std::int64_t overtime = 0;
        const std::vector<WorkDay> days = DaysOf(m_onCard);
        m_found.days.reserve(days.size());
        for (const WorkDay& day : days) {
            const std::int64_t paid = PaidMinutes(day, m_card.employee);
            const DayMinutes split{day.day, std::min(paid, kDailyRegularMinutes), std::max<std::int64_t>(paid - kDailyRegularMinutes, 0)};
            m_found.days.push_back(split);
            regular += split.regular;
            overtime += split.overtime;
            CheckDeduction(day, paid);
            if (day.minutes > kMinutesPerDay) {
                Add(FindingOf(FindingKind::LongDay, day.shifts, day.minutes, LongDayText(day)));
            }
        }
        CheckRates(regular, overtime);
    }

    // No finding while somebody is at work: the day's hours may still exceed the deduction.
    void CheckDeduction(const WorkDay& day, std::int64_t paid)
    {
        const auto atWork = [this](const Punch* punch) { return IsAtWork(*punch); };
        if (paid < 0 && std::none_of(day.shifts.begin(), day.shifts.end(), atWork)) {
            Add(FindingOf(FindingKind::Deduction, day.shifts, -paid, DeductionText(day, day.minutes - paid)));
        }
    }

    void CheckRates(std::int64_t regular, std::int64_t overtime)
    {
        const std::int64_t regularWithout = m_card.employee.PayRate() == 0 ? std::max<std::int64_t>(regular, 0) : 0;
        const std::int64_t overtimeWithout = m_card.employee.OvertimePayRate() == 0 ? overtime : 0;
        if (regularWithout + overtimeWithout > 0) {
            Add({FindingKind::NoRate,
                 {},
                 regularWithout + overtimeWithout,
                 m_card.from,
                 MidnightAfter(m_card.to),
                 NoRateText(regularWithout, overtimeWithout)});
        }
    }

    void CheckWeeks()
    {
        const auto inWeeks = Where([this](const Punch* punch) { return m_weeks.Holds(*punch->start); });
        m_found.weeks = WeeksOf(DaysOf(inWeeks), m_card.employee, m_limits.firstWeekday);
        for (const WorkWeek& week : m_found.weeks) {
            if (week.Above40() > week.paidAsOvertime) {
                Add({FindingKind::Week,
                     {},
                     week.Above40() - week.paidAsOvertime,
                     week.from,
                     MidnightAfter(WeekLast(week.from, m_limits.firstWeekday)),
                     WeekText(week)});
            }
        }
    }

    void CheckPayday()
    {
        if (m_facts.closings != nullptr) {
            const PayPeriod period{m_card.from, m_card.to};
            if (const Closing* paid = m_facts.closings->Newest(); paid != nullptr) {
                m_found.changed = DifferenceOf(*paid, m_found.figures);
                AddAll(PaidChangedFindings(*paid, m_found.figures, m_found.changed));
            }
            AddAll(TwiceFindings(period, *m_facts.closings, m_onCard));
            AddAll(BetweenFindings(period, *m_facts.closings, m_all));
        }
        if (m_onCard.empty() && m_facts.workedBefore && m_facts.workedBefore()) {
            Add({FindingKind::NoShift, {}, 0, {}, {}, NoShiftText()});
        }
    }

    void AddAll(std::vector<Finding> findings)
    {
        for (Finding& finding : findings) {
            Add(std::move(finding));
        }
    }

    void AddShift(FindingKind kind, const Punch& punch)
    {
        m_found.clockedIn = m_found.clockedIn || kind == FindingKind::ClockedIn;
        AddOne(kind, punch, ShiftText(kind, punch, m_limits.longShiftHours));
    }

    void AddOne(FindingKind kind, const Punch& punch, std::string text)
    {
        const Punch* const one = &punch;
        Add(FindingOf(kind, {&one, 1}, punch.Minutes(), std::move(text)));
    }

    void Add(Finding finding)
    {
        ++(SeverityOf(finding.kind) == Severity::Problem ? m_found.problems : m_found.notices);
        m_found.findings.push_back(std::move(finding));
    }

    const CheckedCard& m_card;
    DaySpan m_period;
    DaySpan m_weeks; // the work weeks that the period touches
    DateTime m_now;
    const CheckLimits& m_limits;
    const CardFacts& m_facts;
    std::vector<const Punch*> m_all; // the readable punches, by start, end and number
    std::vector<const Punch*> m_onCard;
    bool m_readable = true; // whether all rows that the card's fetch takes can be read
    CardCheck m_found;
};

} // namespace

std::int64_t CardCheck::LongestWeek() const
{
    const auto shorter = [](const WorkWeek& left, const WorkWeek& right) { return left.minutes < right.minutes; };
    const auto longest = std::max_element(weeks.begin(), weeks.end(), shorter);
    return longest == weeks.end() ? 0 : longest->minutes;
}

CardCheck CheckCard(const CheckedCard& card, const Punches& punches, DateTime now, const CheckLimits& limits, const CardFacts& facts)
{
    return Checker(card, punches, now, limits, facts).Run();
}

} // namespace ptk
