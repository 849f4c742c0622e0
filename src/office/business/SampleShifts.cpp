#include "office/business/SampleBusiness.h"

#include <random>

namespace ptk {

namespace {

constexpr int kDays = 182; // half a year
constexpr int kLateStart = 480;

// A shift in minutes since midnight of the day on which it starts; more than 1440 is the next day.
struct Span
{
    int start;
    int end;
};

struct Plan
{
    const char* weekdays; // one letter a day from Sunday on: "-" is a day off
    std::vector<Span> spans;
    int longDayIn; // one day in this many is long, with overtime at its end; 0: no day is
};

Plan PlanOf(WorkPattern pattern)
{
    switch (pattern) {
    case WorkPattern::Office:
        return {"-MTWTF-", {{480, 1020}}, 0};
    case WorkPattern::Workshop:
        return {"-MTWTF-", {{420, 930}}, 5};
    case WorkPattern::SplitDay:
        return {"-MTWTF-", {{480, 720}, {780, 1035}}, 9};
    case WorkPattern::Night:
        return {"SMTWT--", {{1320, 1800}}, 6};
    case WorkPattern::Bakery:
        return {"--TWTFS", {{240, 740}}, 7};
    case WorkPattern::Weekend:
        return {"S----FS", {{600, 840}, {900, 1140}}, 0};
    case WorkPattern::PartTime:
        return {"-M-W-F-", {{540, 780}}, 0};
    }
    return {};
}

// Small numbers that look random but are the same on every system. Distributions of the library are not, so only its plain engine is used.
class Chance
{
public:
    explicit Chance(std::int32_t seed) : m_engine(static_cast<std::minstd_rand::result_type>(seed)) { m_engine.discard(16); }

    int Between(int low, int high) { return low + static_cast<int>(m_engine() % static_cast<unsigned>(high - low + 1)); }
    bool OneIn(int count) { return Between(1, count) == 1; }

private:
    std::minstd_rand m_engine;
};

// The times vary by some minutes, but a shift never begins before the one before it ended.
void AddDay(std::vector<TimeRecordRow>& shifts, const Plan& plan, DateTime day, Chance& chance)
{
    for (const Span& span : plan.spans) {
        const bool last = &span == &plan.spans.back();
        const int overtime = last && plan.longDayIn != 0 && chance.OneIn(plan.longDayIn) ? chance.Between(40, 165) : 0;
        TimeRecordRow shift;
        shift.StartTime = day.AddMinutes(span.start + chance.Between(-7, 6));
        shift.EndTime = day.AddMinutes(span.end + overtime + chance.Between(-4, 9));
        shifts.push_back(shift);
    }
}

} // namespace

std::vector<TimeRecordRow> SampleShifts(const SampleEmployee& employee, std::int32_t employeeID, DateTime today)
{
    const Plan plan = PlanOf(employee.pattern);
    Chance chance(employee.row.EmployeeNumber);
    const DateTime end = employee.row.EmployeeActive ? today : employee.row.ReleaseDate;
    std::vector<TimeRecordRow> shifts;
    for (DateTime day = today.AddDays(-kDays); day < end; day = day.AddDays(1)) {
        const bool absent = chance.OneIn(25);
        if (plan.weekdays[day.Weekday()] != '-' && !absent) {
            AddDay(shifts, plan, day, chance);
        }
    }
    if (employee.clockedIn) {
        shifts.emplace_back();
        shifts.back().StartTime = today.AddMinutes(kLateStart + chance.Between(0, 6)); // so that the day ends within 16 hours of it
    }
    for (TimeRecordRow& shift : shifts) {
        shift.EmployeeID = employeeID;
    }
    return shifts;
}

} // namespace ptk
