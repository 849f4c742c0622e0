#include "model/check/PunchReader.h"

#include "model/check/FindingText.h"
#include "model/check/WorkWeeks.h"
#include "platform/Failure.h"
#include "platform/text/Joined.h"
#include "store/CJetDB.h"
#include "store/engine/Statement.h"
#include "store/engine/StoredDate.h"
#include "store/PunchSQL.h"

#include <fmt/format.h>

#include <algorithm>
#include <tuple>
#include <utility>

namespace ptk {

namespace {

using punchsql::kEnd;
using punchsql::kId;
using punchsql::kStart;

constexpr std::size_t kUsualCount = 32; // enough for the shifts of three weeks

std::string ShownValue(const Statement& row, int column)
{
    switch (row.KindAt(column)) {
    case CellKind::Null:
        return "";
    case CellKind::Text:
        return QuotedValue(row.TextAt(column));
    case CellKind::Number:
        return std::string(row.TextAt(column));
    case CellKind::Bytes:
        break;
    }
    return "a value of bytes";
}

// Orders by start, end and number, and drops the second of a row that came twice.
void Order(Punches& punches)
{
    const auto key = [](const Punch& punch) { return std::tie(punch.start, punch.end, punch.id); };
    const auto notBehind = [&](const Punch& left, const Punch& right) { return key(left) >= key(right); };
    if (std::adjacent_find(punches.begin(), punches.end(), notBehind) == punches.end()) {
        return;
    }
    std::sort(punches.begin(), punches.end(), [&](const Punch& left, const Punch& right) { return key(left) < key(right); });
    const auto same = [](const Punch& left, const Punch& right) { return left.id == right.id; };
    punches.erase(std::unique(punches.begin(), punches.end(), same), punches.end());
}

// The last second of a day.
DateTime LastSecond(DateTime day)
{
    return DateTime::FromSeconds(day.Seconds() + DateTime::kSecondsPerDay - 1);
}

// A remedy may let a shift of the card end a day later, where no other shift begins before that: so shifts up to then are needed, too.
DateTime NextMidnight(DateTime midnight)
{
    return MidnightAfter(DateTime(midnight.Date()));
}

// Shifts that start on the day before the first week may reach into it; longer ones than a day are found by punchsql::Unusual.
DateTime DayBefore(DateTime day)
{
    return day.DayNumber() > DateTime::kFirstDay ? day.AddDays(-1) : day;
}

} // namespace

// A shift without length at the card's last moment is on the card, although it begins after the period and perhaps after its weeks.
PunchReader::PunchReader(CJetDB& database, const PayPeriod& period, std::int32_t firstWeekday)
    : m_from(period.from), m_end(MidnightAfter(period.to)), m_first(DayBefore(WeekStart(period.from, firstWeekday))),
      m_last(std::max(LastSecond(WeekLast(period.to, firstWeekday)), NextMidnight(m_end)))
{
    RequireOpen(database);
    const EngineWords& words = database.Words();
    if (*words.amongEmployees != '\0') {
        m_ofMany = Prepare(database, punchsql::OfMany(words));
    } else {
        m_ofOne = Prepare(database, punchsql::Of(punchsql::kOne, words));
    }
}

std::unique_ptr<Statement> PunchReader::Prepare(CJetDB& database, const std::string& sql) const
{
    auto statement = RequireSelect(database, sql);
    statement->Bind("first", m_first);
    statement->Bind("last", m_last);
    return statement;
}

PunchReader::~PunchReader() = default;

// Whether the card's fetch takes a row that cannot be read: it compares the values as they are stored.
bool PunchReader::IsFetched(const Statement& row) const
{
    const CellKind start = row.KindAt(kStart);
    const CellKind end = row.KindAt(kEnd);
    const bool startsInTime = start == CellKind::Bytes || (start == CellKind::Text && row.TextAt(kStart) >= StoredText(m_from));
    return startsInTime && (end == CellKind::Number || (end == CellKind::Text && row.TextAt(kEnd) <= StoredText(m_end)));
}

Punch PunchReader::ReadPunch(const Statement& row) const
{
    Punch punch;
    punch.id = row.Int64At(kId);
    punch.start = row.StoredDateAt(kStart);
    punch.end = row.StoredDateAt(kEnd);
    punch.fetched = punch.start && punch.end ? *punch.start >= m_from && *punch.end <= m_end : IsFetched(row);
    if (!punch.start) {
        punch.startText = ShownValue(row, kStart);
    }
    if (!punch.end) {
        punch.endText = ShownValue(row, kEnd);
    }
    return punch;
}

void PunchReader::ReadAhead(std::span<const std::int32_t> employeeIDs)
{
    m_ahead.clear();
    if (ReadsAhead()) {
        Fetch(employeeIDs);
    }
}

void PunchReader::Choose(std::span<const std::int32_t> employeeIDs)
{
    m_ofMany->Bind("employees", fmt::format("{{{}}}", Joined(employeeIDs, ",")));
    m_asked.assign(employeeIDs.begin(), employeeIDs.end());
}

void PunchReader::AskAhead(std::span<const std::int32_t> employeeIDs)
{
    if (ReadsAhead() && !IsAsked(employeeIDs)) {
        Choose(employeeIDs);
        m_ofMany->AskAhead();
    }
}

bool PunchReader::IsAsked(std::span<const std::int32_t> employeeIDs) const
{
    return std::ranges::equal(m_asked, employeeIDs);
}

void PunchReader::Fetch(std::span<const std::int32_t> employeeIDs)
{
    for (const std::int32_t id : employeeIDs) {
        m_ahead[id].reserve(kUsualCount);
    }
    if (!IsAsked(employeeIDs)) {
        Choose(employeeIDs);
    }
    auto whose = m_ahead.end(); // one employee's rows mostly follow each other
    m_ofMany->ForEachRow([&] {
        const auto employee = static_cast<std::int32_t>(m_ofMany->Int64At(punchsql::kEmployee));
        if (whose == m_ahead.end() || whose->first != employee) {
            whose = m_ahead.try_emplace(employee).first;
        }
        whose->second.push_back(ReadPunch(*m_ofMany));
    });
}

Punches PunchReader::TakeAhead(std::int32_t employeeID)
{
    if (!m_ahead.contains(employeeID)) {
        Fetch({&employeeID, 1});
    }
    Punches punches = std::move(m_ahead[employeeID]);
    m_ahead.erase(employeeID);
    Order(punches);
    return punches;
}

Punches PunchReader::Read(std::int32_t employeeID)
{
    if (ReadsAhead()) {
        return TakeAhead(employeeID);
    }
    Punches punches;
    punches.reserve(kUsualCount);
    m_ofOne->Bind("employee", employeeID);
    m_ofOne->ForEachRow([&] { punches.push_back(ReadPunch(*m_ofOne)); });
    Order(punches);
    return punches;
}

Punches PunchReader::ReadOfNobody(CJetDB& database, const std::optional<std::int64_t>& employeeID) const
{
    const std::string whose = employeeID ? fmt::format("EmployeeID = {}", *employeeID) : "EmployeeID IS NULL";
    const auto rows = RequireSelect(database, punchsql::Of(whose, database.Words()));
    rows->Bind("first", m_first);
    rows->Bind("last", m_last);
    Punches punches;
    rows->ForEachRow([&] { punches.push_back(ReadPunch(*rows)); });
    Order(punches);
    return punches;
}

} // namespace ptk
