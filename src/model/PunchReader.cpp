#include "model/PunchReader.h"

#include "model/FindingText.h"
#include "model/WorkWeeks.h"
#include "platform/Failure.h"
#include "store/CJetDB.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"
#include "store/PunchSQL.h"

#include <algorithm>
#include <tuple>

namespace ptk {

namespace {

constexpr std::int64_t kSecondsPerDay = 86400;

// The columns of both queries.
constexpr std::size_t kId = 0;
constexpr std::size_t kStart = 1;
constexpr std::size_t kEnd = 2;
constexpr std::size_t kFetched = 3;

std::string ShownValue(const RecordSet& rows, std::size_t column)
{
    if (rows.IsNull(column)) {
        return "";
    }
    const std::string shown = rows.Shown(column);
    return shown.front() == '"' ? QuotedValue(rows.TextAt(column)) : shown;
}

// Reads a time, or, where it is none, what stands in its place.
void ReadTime(const RecordSet& rows, std::size_t column, std::optional<DateTime>& time, std::string& shown)
{
    if (rows.HasStoredDate(column)) {
        time = rows.DateTimeAt(column);
    } else {
        shown = ShownValue(rows, column);
    }
}

Punch ReadPunch(const RecordSet& rows)
{
    Punch punch;
    punch.id = rows.Int64At(kId);
    punch.fetched = rows.BooleanAt(kFetched);
    ReadTime(rows, kStart, punch.start, punch.startText);
    ReadTime(rows, kEnd, punch.end, punch.endText);
    return punch;
}

void Append(Punches& punches, RecordSet& rows)
{
    punches.reserve(punches.size() + static_cast<std::size_t>(rows.RecordCount()));
    for (; !rows.EndOfFile(); rows.MoveNext()) {
        punches.push_back(ReadPunch(rows));
    }
}

// By start and end; a row that both queries answered once.
void Order(Punches& punches)
{
    const auto key = [](const Punch& punch) { return std::tie(punch.start, punch.end, punch.id); };
    std::sort(punches.begin(), punches.end(), [&](const Punch& left, const Punch& right) { return key(left) < key(right); });
    const auto same = [](const Punch& left, const Punch& right) { return left.id == right.id; };
    punches.erase(std::unique(punches.begin(), punches.end(), same), punches.end());
}

// The last second of a day.
DateTime LastSecond(DateTime day)
{
    return DateTime::FromSeconds(day.Seconds() + kSecondsPerDay - 1);
}

// Shifts of up to a day reach into the first week from the day before it.
DateTime DayBefore(DateTime day)
{
    static const DateTime firstDay(CalendarDate{100, 1, 1});
    return day > firstDay ? day.AddDays(-1) : day;
}

std::unique_ptr<Statement> Prepare(CJetDB& database, const char* sql, const PayPeriod& period)
{
    auto statement = database.PrepareSelect(sql);
    if (statement == nullptr) {
        throw database.LastFailure();
    }
    statement->Bind("from", period.from);
    statement->Bind("end", EndOfDay(period.to));
    return statement;
}

} // namespace

PunchReader::PunchReader(CJetDB& database, const PayPeriod& period, std::int32_t firstWeekday)
{
    if (!database.OpenDB()) {
        throw database.LastFailure();
    }
    m_starting = Prepare(database, punchsql::kStarting, period);
    m_starting->Bind("first", DayBefore(WeekStart(period.from, firstWeekday)));
    // A shift without length at the card's last moment is on the card, though it begins behind the period and perhaps its weeks.
    m_starting->Bind("last", std::max(LastSecond(WeekLast(period.to, firstWeekday)), EndOfDay(period.to)));
    m_unusual = Prepare(database, punchsql::kUnusual, period);
}

PunchReader::~PunchReader() = default;

Punches PunchReader::Read(std::int32_t employeeID)
{
    Punches punches;
    for (Statement* statement : {m_unusual.get(), m_starting.get()}) {
        statement->Bind("employee", employeeID);
        Append(punches, *statement->ReadRows());
    }
    Order(punches);
    return punches;
}

} // namespace ptk
