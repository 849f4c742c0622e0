// The sample's mistakes: at least one of each kind that the check of a time card finds and that shifts can show.
#include "office/business/SampleBusiness.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr int kDaysAYear = 365;
constexpr int kSaturday = 6;

DateTime DayOf(const TimeRecordRow& shift)
{
    return DateTime(shift.StartTime.Date());
}

// The records of one employee. They are in order of their start until the first mistake is made.
class Muddle
{
public:
    Muddle(std::vector<TimeRecordRow>& shifts, DateTime today) : m_shifts(shifts), m_today(today) {}

    // The employee is on a night shift since yesterday: still at work, or, later in the day, forgot to clock out.
    void StaysOverNight()
    {
        const DateTime yesterday = m_today.AddDays(-1);
        Clear(yesterday);
        Add(yesterday.AddMinutes(1318), DateTime());
    }

    // The next morning's punch ended the shift of the day before, and the punch at noon began a shift that nobody ended.
    void ForgetsToClockOut()
    {
        const DateTime day = WorkedDay(2);
        const DateTime next = day.AddDays(1);
        Clear(day);
        Clear(next);
        Add(day.AddMinutes(237), next.AddMinutes(241));
        Add(next.AddMinutes(739), DateTime());
    }

    // One day is stored twice, once by the terminal and once by hand. One shift ends in the morning instead of the afternoon. One shift
    // begins with two presses of the button.
    void TypesWrongly()
    {
        const DateTime twice = WorkedDay(1);
        const DateTime backward = WorkedDay(2);
        const DateTime pressed = WorkedDay(3);
        TimeRecordRow& afternoon = LastOf(backward);
        afternoon.EndTime = backward.AddMinutes(309);
        Add(pressed.AddMinutes(775), pressed.AddMinutes(775));
        Add(twice.AddMinutes(480), twice.AddMinutes(1020));
    }

    // The employee came for half an hour, less than the automatic deduction. Another punch has a date four weeks ahead, from a wrong
    // calendar.
    void ComesShortly()
    {
        const DateTime day = WorkedDay(1);
        Clear(day);
        Add(day.AddMinutes(481), day.AddMinutes(516));
        Add(m_today.AddDays(28).AddMinutes(479), DateTime());
    }

    // One shift was typed with the next year as its end, one clock-in is missing.
    void LosesTimes()
    {
        const DateTime missing = WorkedDay(1);
        LastOf(missing).StartTime = DateTime();
        const DateTime before = m_today.AddDays(-18);
        const auto typed = std::find_if(m_shifts.rbegin(), m_shifts.rend(),
                                        [&](const TimeRecordRow& shift) { return !shift.StartTime.IsZero() && shift.StartTime < before; });
        typed->EndTime = typed->EndTime.AddDays(kDaysAYear);
    }

    // The employee left the day before yesterday, but came yesterday and pressed twice.
    void ComesOnceMore()
    {
        const DateTime yesterday = m_today.AddDays(-1);
        Clear(yesterday);
        Add(yesterday.AddMinutes(538), yesterday.AddMinutes(783));
        Add(yesterday.AddMinutes(538), DateTime());
    }

    // A week of six days: more than 40 hours, of which hardly any are paid as overtime.
    void WorksOnSaturday()
    {
        DateTime saturday = m_today.AddDays(-1);
        while (saturday.Weekday() != kSaturday) {
            saturday = saturday.AddDays(-1);
        }
        for (DateTime day = saturday.AddDays(-5); day <= saturday; day = day.AddDays(1)) {
            if (std::none_of(m_shifts.begin(), m_shifts.end(), [&](const TimeRecordRow& shift) { return DayOf(shift) == day; })) {
                Add(day.AddMinutes(478), day.AddMinutes(1021));
            }
        }
    }

private:
    void Add(DateTime start, DateTime end)
    {
        TimeRecordRow shift;
        shift.EmployeeID = m_shifts.front().EmployeeID;
        shift.StartTime = start;
        shift.EndTime = end;
        m_shifts.push_back(shift);
    }

    void Clear(DateTime day)
    {
        std::erase_if(m_shifts, [&](const TimeRecordRow& shift) { return DayOf(shift) == day; });
    }

    // The working day that lies this many working days before today, counted from 1.
    DateTime WorkedDay(int back) const
    {
        DateTime day = m_today;
        for (auto shift = m_shifts.rbegin(); back > 0; ++shift) {
            if (DayOf(*shift) < day) {
                day = DayOf(*shift);
                --back;
            }
        }
        return day;
    }

    TimeRecordRow& LastOf(DateTime day)
    {
        return *std::find_if(m_shifts.rbegin(), m_shifts.rend(), [&](const TimeRecordRow& shift) { return DayOf(shift) == day; });
    }

    std::vector<TimeRecordRow>& m_shifts;
    DateTime m_today;
};

} // namespace

void AddIrregularities(const SampleEmployee& employee, std::vector<TimeRecordRow>& shifts, DateTime today)
{
    struct Habit
    {
        std::int32_t number;
        void (Muddle::*happens)();
    };
    static constexpr Habit kHabits[] = {
        {102, &Muddle::WorksOnSaturday},   {104, &Muddle::StaysOverNight}, {105, &Muddle::ComesShortly}, {107, &Muddle::ComesOnceMore},
        {202, &Muddle::ForgetsToClockOut}, {203, &Muddle::TypesWrongly},   {205, &Muddle::LosesTimes},
    };
    Muddle muddle(shifts, today);
    for (const Habit& habit : kHabits) {
        if (habit.number == employee.row.EmployeeNumber) {
            (muddle.*habit.happens)();
        }
    }
}

} // namespace ptk
