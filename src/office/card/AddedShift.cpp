#include "office/card/AddedShift.h"

#include "model/CEmployee.h"
#include "model/check/Punch.h"
#include "platform/Succeeds.h"
#include "platform/text/DayText.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/engine/Statement.h"
#include "store/PunchSQL.h"

#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kNoDay = "Choose the day.";
constexpr auto kNoTimes = "Type when the shift begins and when it ends: 830, 8:30, 8.30, 830a, 5p or 17.";
constexpr auto kNoLength = "Begin and end are the same: there is no shift.";
constexpr auto kForecast = "{} - {}: {} hours for {}.";
constexpr auto kLong = " That is more than the longest usual shift of {} hours.";
constexpr auto kTaken = " On that day there are records of: {}.";
constexpr auto kNotKnown = " Who has records on that day already could not be read.";

constexpr std::int64_t kHour = 60; // minutes

std::string NamesOf(const std::vector<std::shared_ptr<CEmployee>>& people, const std::set<std::int64_t>& taken)
{
    std::string names;
    for (const auto& person : people) {
        if (taken.contains(person->EmployeeID())) {
            names += (names.empty() ? "" : ", ") + person->DisplayName();
        }
    }
    return names;
}

std::string TakenText(const std::vector<std::shared_ptr<CEmployee>>& people, const std::optional<std::set<std::int64_t>>& taken)
{
    const std::string names = taken ? NamesOf(people, *taken) : std::string();
    return !taken ? kNotKnown : (names.empty() ? std::string() : fmt::format(kTaken, names));
}

std::string MissingText(const AddedShift& shift)
{
    if (!shift.day) {
        return kNoDay;
    }
    return shift.start.moment && shift.end.moment ? kNoLength : kNoTimes;
}

} // namespace

std::optional<Shift> AddedShift::Read() const
{
    if (!day || !start.moment || !end.moment) {
        return std::nullopt;
    }
    const auto on = [&](DateTime time) { return DateTime::FromSeconds(day->Seconds() + time.Seconds() - DateTime(time.Date()).Seconds()); };
    const Shift shift{on(*start.moment), on(*end.moment)};
    if (shift.start == shift.end) {
        return std::nullopt;
    }
    return Shift{shift.start, shift.end > shift.start ? shift.end : shift.end.AddDays(1)};
}

std::optional<std::set<std::int64_t>> WithRecordsOn(const std::shared_ptr<CJetDB>& database, DateTime day)
{
    std::set<std::int64_t> people;
    const auto read = [&] {
        const CJetDB::Hold hold(database);
        RequireOpen(*database);
        const auto rows = RequireSelect(*database, punchsql::kWithStartsIn);
        rows->Bind("first", day);
        rows->Bind("last", DateTime::FromSeconds(day.Seconds() + DateTime::kSecondsPerDay - 1));
        rows->ForEachRow([&] { people.insert(rows->Int64At(0)); });
    };
    return Succeeds(read) ? std::optional(std::move(people)) : std::nullopt;
}

std::string AddedShiftForecast(const AddedShift& shift, const std::vector<std::shared_ptr<CEmployee>>& people,
                               const std::optional<std::set<std::int64_t>>& taken, std::int32_t longShiftHours)
{
    const auto read = shift.Read();
    if (!read) {
        return MissingText(shift);
    }
    const bool sameDay = read->start.DayNumber() == read->end.DayNumber();
    const std::int64_t minutes = MinutesBetween(read->start, read->end);
    std::string text = fmt::format(kForecast, MomentText(read->start),
                                   FormatDateTime(read->end, sameDay ? "hh:mm AM/PM" : "mm/dd/yyyy hh:mm AM/PM"), HoursAndMinutes(minutes),
                                   people.size() == 1 ? people.front()->DisplayName() : fmt::format("each of {} people", people.size()));
    text += minutes > longShiftHours * kHour ? fmt::format(kLong, longShiftHours) : std::string();
    return text + TakenText(people, taken);
}

} // namespace ptk
