#include "store/backup/BackupNames.h"

#include "platform/Failure.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <charconv>
#include <set>

namespace ptk {

namespace {

constexpr std::string_view kPattern = "ptk_11-dddd-dd-dd-dddddd.mdb"; // d: a digit
constexpr std::size_t kNewest = 10;
constexpr std::int64_t kDays = 14;
constexpr std::int64_t kWeeks = 8;
constexpr std::int64_t kMonths = 24;
constexpr std::int64_t kDaysOfWeek = 7;
constexpr std::int64_t kMonthsOfYear = 12;
constexpr std::int64_t kLongestGap = 40 * DateTime::kSecondsPerDay; // seconds

bool FitsPattern(std::string_view name)
{
    const auto fits = [](char pattern, char c) { return pattern == 'd' ? c >= '0' && c <= '9' : pattern == c; };
    // The last letters of the pattern are not digits, although one of them is a d.
    const std::size_t end = kPattern.size() - std::string_view(".mdb").size();
    return name.size() == kPattern.size() && name.ends_with(".mdb") &&
           std::equal(kPattern.begin(), kPattern.begin() + static_cast<std::ptrdiff_t>(end), name.begin(), fits);
}

int NumberAt(std::string_view name, std::size_t at, std::size_t length)
{
    int number = 0;
    std::from_chars(name.data() + at, name.data() + at + length, number);
    return number;
}

std::int64_t WeekOf(DateTime moment)
{
    return (moment.DayNumber() - moment.Weekday() + 1) / kDaysOfWeek; // day 0 is a Saturday, so Sundays are whole weeks after day 1
}

std::int64_t MonthOf(DateTime moment)
{
    return moment.Date().year * kMonthsOfYear + moment.Date().month;
}

struct Dated
{
    DateTime made;
    std::string name;
};

// The backups among these names that are not later than `newest`, the newest first.
std::vector<Dated> UpTo(std::span<const std::string> names, DateTime newest)
{
    std::vector<Dated> dated;
    for (const std::string& name : names) {
        if (const auto made = BackupMoment(name); made && *made <= newest) {
            dated.push_back({*made, name});
        }
    }
    std::sort(dated.begin(), dated.end(), [](const Dated& a, const Dated& b) { return a.made > b.made; });
    return dated;
}

// Whether the newest lies so far ahead of those of the days before it that its clock may have been wrong. Those of its own day do not
// count: a clock that is wrong for a day makes several.
bool IsFarAhead(std::span<const Dated> dated, DateTime newest)
{
    const auto before =
        std::find_if(dated.begin(), dated.end(), [&](const Dated& backup) { return backup.made.DayNumber() < newest.DayNumber(); });
    return before != dated.end() && newest.Seconds() - before->made.Seconds() > kLongestGap;
}

} // namespace

std::string BackupName(DateTime made)
{
    return "ptk_11-" + FormatDateTime(made, "yyyy-mm-dd") + "-" + FormatDateTime(made, "hhnnss") + ".mdb";
}

std::optional<DateTime> BackupMoment(std::string_view name)
{
    if (!FitsPattern(name)) {
        return std::nullopt;
    }
    try {
        return DateTime({NumberAt(name, 7, 4), NumberAt(name, 12, 2), NumberAt(name, 15, 2)},
                        {NumberAt(name, 18, 2), NumberAt(name, 20, 2), NumberAt(name, 22, 2)});
    } catch (const Failure&) {
        return std::nullopt; // no such day or time: nobody's backup
    }
}

std::vector<std::string> DispensableBackups(std::span<const std::string> names, DateTime newest)
{
    std::set<std::int64_t> days;
    std::set<std::int64_t> weeks;
    std::set<std::int64_t> months;
    std::vector<std::string> dispensable;
    std::size_t place = 0;
    const std::vector<Dated> dated = UpTo(names, newest);
    if (IsFarAhead(dated, newest)) {
        return {};
    }
    for (const Dated& backup : dated) {
        const std::int64_t day = DaysBetween(backup.made, newest);
        const std::int64_t week = WeekOf(newest) - WeekOf(backup.made);
        const std::int64_t month = MonthOf(newest) - MonthOf(backup.made);
        // Each backup takes its place under every rule, also where another rule keeps it already.
        const bool ofDay = day < kDays && days.insert(day).second;
        const bool ofWeek = week < kWeeks && weeks.insert(week).second;
        const bool ofMonth = month < kMonths && months.insert(month).second;
        if (place++ >= kNewest && !ofDay && !ofWeek && !ofMonth) {
            dispensable.push_back(backup.name);
        }
    }
    return dispensable;
}

} // namespace ptk
