#include "office/card/FillPlan.h"

#include "model/CDateRange.h"
#include "office/card/CardTexts.h"
#include "platform/Succeeds.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/CTimeRecSQLConverter.h"
#include "store/engine/RecordSet.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr int kSunday = 0;
constexpr int kSaturday = 6;

FillRefusal ReadRange(const FillTexts& texts, CDateRange& range)
{
    if (!range.ValidateRange(texts.from, texts.to) || range.ErrorNumber() == daterange::OutOfLimits) {
        return FillRefusal::NoRange;
    }
    return range.DayCount() < 1 ? FillRefusal::TooShort : FillRefusal::None;
}

// Seconds from midnight; the same for every day of the range.
std::int64_t SecondOfDay(DateTime day, const TypedMoment& time)
{
    return Together({ShortDateText(day), DateTime(day.Date())}, time).Seconds() - day.Seconds();
}

std::vector<Shift> ShiftsOf(const CDateRange& range, const FillTexts& texts)
{
    const std::int64_t start = SecondOfDay(range.StartDate(), texts.startTime);
    const std::int64_t end = SecondOfDay(range.StartDate(), texts.endTime);
    std::vector<Shift> shifts;
    for (std::int32_t i = 0; i <= range.DayCount(); ++i) {
        const std::int64_t day = range.StartDate().AddDays(i).Seconds();
        shifts.push_back({DateTime::FromSeconds(day + start), DateTime::FromSeconds(day + end)});
    }
    return shifts;
}

std::string RefusalText(FillRefusal refusal)
{
    switch (refusal) {
    case FillRefusal::NoRange:
        return "No records: the two dates are no period.";
    case FillRefusal::TooShort:
        return "No records: the end date must lie after the start date.";
    default:
        return "No records: a time cannot be read.";
    }
}

std::string DaysText(const FillPlan& plan, const std::optional<DayNumbers>& taken)
{
    const auto count = [&](auto holds) { return std::count_if(plan.shifts.begin(), plan.shifts.end(), holds); };
    const auto weekend = count([](const Shift& shift) {
        const int weekday = shift.start.Weekday();
        return weekday == kSaturday || weekday == kSunday;
    });
    std::string text = CountText(static_cast<std::int64_t>(plan.shifts.size()), "record") + ", ";
    text += (weekend == 0 ? "none" : std::to_string(weekend)) + " on Saturdays and Sundays";
    if (!taken) {
        return text + ". Days that already have records could not be counted.";
    }
    const auto doubled = count([&](const Shift& shift) { return taken->contains(shift.start.DayNumber()); });
    return text + ", " + (doubled == 0 ? "none" : std::to_string(doubled)) + " on days that already have records.";
}

std::string TimesText(const Shift& shift, const FillTexts& texts)
{
    if (shift.start == shift.end) {
        return texts.startTime.Empty() && texts.endTime.Empty() ? " Empty times mean midnight to midnight, 0 hours." : " Each has 0 hours.";
    }
    std::string text = texts.startTime.Empty() || texts.endTime.Empty() ? " The empty time means midnight." : "";
    if (shift.end < shift.start) {
        text += " They end before they start and count 0 hours.";
    }
    return text;
}

} // namespace

FillPlan PlanFill(const FillTexts& texts)
{
    FillPlan plan;
    CDateRange range;
    plan.refusal = ReadRange(texts, range);
    if (plan.refusal == FillRefusal::None && !Succeeds([&] { plan.shifts = ShiftsOf(range, texts); })) {
        plan.refusal = FillRefusal::NoTime;
    }
    return plan;
}

std::optional<DayNumbers> DaysWithRecords(CJetDB& database, std::int32_t employeeID)
{
    const CDateRange limits;
    DayNumbers days;
    const auto read = [&] {
        const auto query = WholeFetch({employeeID, limits.MinDate(), limits.MaxDate().AddDays(1)});
        const auto rows = database.OpenDB() ? database.ExecuteSelect(query) : nullptr;
        for (; rows != nullptr && !rows->EndOfFile(); rows->MoveNext()) {
            days.insert(rows->Field("StartTime").ToDateTime().DayNumber());
        }
        return rows != nullptr;
    };
    const bool done = Succeeds(read);
    database.CloseDB();
    return done ? std::optional(std::move(days)) : std::nullopt;
}

std::string FillForecast(const FillPlan& plan, const FillTexts& texts, const std::optional<DayNumbers>& taken)
{
    if (plan.refusal != FillRefusal::None) {
        return RefusalText(plan.refusal);
    }
    return DaysText(plan, taken) + TimesText(plan.shifts.front(), texts);
}

} // namespace ptk
