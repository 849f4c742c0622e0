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

std::unique_ptr<Statement> Prepare(CJetDB& database, const char* sql)
{
    auto statement = database.PrepareSelect(sql);
    if (statement == nullptr) {
        throw database.LastFailure();
    }
    return statement;
}

} // namespace

PunchReader::PunchReader(CJetDB& database, const PayPeriod& period, std::int32_t firstWeekday)
    : m_from(period.from), m_end(EndOfDay(period.to))
{
    if (!database.OpenDB()) {
        throw database.LastFailure();
    }
    m_unusual = Prepare(database, punchsql::kUnusual);
    m_unusual->Bind("from", m_from);
    m_unusual->Bind("end", m_end);
    m_starting = Prepare(database, punchsql::kStarting);
    m_starting->Bind("first", DayBefore(WeekStart(period.from, firstWeekday)));
    // A shift without length at the card's last moment is on the card, though it begins behind the period and perhaps its weeks.
    m_starting->Bind("last", std::max(LastSecond(WeekLast(period.to, firstWeekday)), m_end));
}

PunchReader::~PunchReader() = default;

void PunchReader::ReadUnusual(Punches& punches)
{
    for (const auto rows = m_unusual->ReadRows(); !rows->EndOfFile(); rows->MoveNext()) {
        punches.push_back(ReadPunch(*rows));
    }
}

void PunchReader::ReadStarting(Punches& punches)
{
    while (m_starting->NextRow()) {
        Punch punch;
        punch.id = m_starting->Int64At(kId);
        punch.start = m_starting->StoredDateAt(kStart);
        punch.end = m_starting->StoredDateAt(kEnd);
        if (punch.IsReadable()) { // all others are unusual
            punch.fetched = *punch.start >= m_from && *punch.end <= m_end;
            punches.push_back(std::move(punch));
        }
    }
}

Punches PunchReader::Read(std::int32_t employeeID)
{
    Punches punches;
    m_unusual->Bind("employee", employeeID);
    m_starting->Bind("employee", employeeID);
    ReadUnusual(punches);
    const bool ordered = punches.empty();
    ReadStarting(punches);
    if (!ordered) {
        Order(punches);
    }
    return punches;
}

} // namespace ptk
