#include "model/payday/ClosingReader.h"

#include "platform/Failure.h"
#include "store/CJetDB.h"
#include "store/engine/EngineWords.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"

#include <algorithm>

namespace ptk {

namespace {

// The columns of kTouching, kBefore and kAllOfOne; the rows of kBefore are known by a PaydayID of 0.
enum Column
{
    kId,
    kEmployee,
    kFrom,
    kTo,
    kPaidAt,
    kPaidBy,
    kRegular,
    kOvertime,
    kGross,
    kEntry
};

constexpr const char* kTouching =
    "SELECT PaydayID, EmployeeID, FromDay, ToDay, PaidAt, PaidBy, Regular, Overtime, Gross, Entry FROM _Payday "
    "WHERE ToDay >= :from AND FromDay <= :to{}";

// One look into the index (EmployeeID, ToDay) for each employee.
constexpr const char* kBefore =
    "SELECT 0, EmployeeID, NULL, (SELECT ToDay FROM _Payday WHERE _Payday.EmployeeID = Employee.EmployeeID AND "
    "ToDay < :from AND {} ORDER BY ToDay DESC LIMIT 1), NULL, NULL, NULL, NULL, NULL, 0 FROM Employee WHERE TRUE{}";

constexpr const char* kOfOne = " AND EmployeeID = :employee";

constexpr const char* kAllOfOne =
    "SELECT PaydayID, EmployeeID, FromDay, ToDay, PaidAt, PaidBy, Regular, Overtime, Gross, Entry FROM _Payday "
    "WHERE EmployeeID = :employee ORDER BY FromDay, PaydayID";

constexpr const char* kLast = "SELECT FromDay, ToDay FROM _Payday WHERE {} ORDER BY ToDay DESC, PaydayID DESC LIMIT 1";

constexpr const char* kTable = "_Payday";

std::string TextOf(const Statement& row, int column)
{
    return row.KindAt(column) == CellKind::Null ? std::string() : std::string(row.TextAt(column));
}

bool IsDay(const std::optional<DateTime>& moment)
{
    return moment && *moment == DateTime(moment->Date());
}

std::optional<PayPeriod> DaysOf(const Statement& row, int from, int to)
{
    const auto first = row.StoredDateAt(from);
    const auto last = row.StoredDateAt(to);
    return IsDay(first) && IsDay(last) && *first <= *last ? std::optional(PayPeriod{*first, *last}) : std::nullopt;
}

Closing ClosingOf(const Statement& row, const PayPeriod& days)
{
    Closing closing;
    closing.id = row.Int64At(kId);
    closing.employee = row.Int64At(kEmployee);
    closing.period = days;
    closing.paidAt = row.StoredDateAt(kPaidAt);
    closing.paidBy = TextOf(row, kPaidBy);
    closing.regular = TextOf(row, kRegular);
    closing.overtime = TextOf(row, kOvertime);
    closing.gross = TextOf(row, kGross);
    closing.entry = row.Int64At(kEntry);
    return closing;
}

void Take(Closings& closings, const Statement& row, const PayPeriod& period)
{
    if (row.KindAt(kEmployee) != CellKind::Number) {
        return;
    }
    if (row.Int64At(kId) == 0) {
        if (const auto lastDay = row.StoredDateAt(kTo)) {
            closings[row.Int64At(kEmployee)].lastDayBefore = lastDay;
        }
        return;
    }
    const auto days = DaysOf(row, kFrom, kTo);
    if (!days) {
        return;
    }
    ClosingsOfEmployee& ofOne = closings[row.Int64At(kEmployee)];
    if (*days == period) {
        ofOne.ofPeriod.push_back(ClosingOf(row, *days));
    } else {
        ofOne.touching.push_back(*days);
    }
}

} // namespace

ClosingsQuestion::ClosingsQuestion(CJetDB& database, const PayPeriod& period, std::optional<std::int64_t> employee) : m_period(period)
{
    if (!database.HasTable(kTable)) {
        return;
    }
    const char* const ofOne = employee ? kOfOne : "";
    m_rows = RequireSelect(database, FilledIn(kTouching, ofOne) + " UNION ALL " + FilledIn(kBefore, database.Words().closedDays, ofOne));
    m_rows->Bind("from", period.from);
    m_rows->Bind("to", period.to);
    if (employee) {
        m_rows->Bind("employee", std::to_string(*employee));
    }
    m_rows->AskAhead();
}

ClosingsQuestion::~ClosingsQuestion() = default;

Closings ClosingsQuestion::Answer()
{
    Closings closings;
    if (m_rows == nullptr) {
        return closings;
    }
    m_rows->ForEachRow([&] { Take(closings, *m_rows, m_period); });
    for (auto& [id, closed] : closings) {
        std::sort(closed.ofPeriod.begin(), closed.ofPeriod.end(),
                  [](const Closing& left, const Closing& right) { return left.id < right.id; });
    }
    return closings;
}

Closings ReadClosings(const std::shared_ptr<CJetDB>& database, const PayPeriod& period, std::optional<std::int64_t> employee)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    return ClosingsQuestion(*database, period, employee).Answer();
}

std::vector<Closing> ReadClosingsOf(const std::shared_ptr<CJetDB>& database, std::int64_t employee)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    std::vector<Closing> closings;
    if (database->HasTable(kTable)) {
        const auto rows = RequireSelect(*database, kAllOfOne);
        rows->Bind("employee", std::to_string(employee));
        rows->ForEachRow([&] {
            if (const auto days = DaysOf(*rows, kFrom, kTo)) {
                closings.push_back(ClosingOf(*rows, *days));
            }
        });
    }
    return closings;
}

std::optional<PayPeriod> PeriodToClose(const std::shared_ptr<CJetDB>& database)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    std::optional<PayPeriod> next;
    if (!database->HasTable(kTable)) {
        return next;
    }
    const auto last = RequireSelect(*database, FilledIn(kLast, database->Words().closedDays));
    last->ForEachRow([&] {
        const auto closed = DaysOf(*last, 0, 1);
        const std::int64_t days = closed ? DaysBetween(closed->from, closed->to) : 0;
        if (closed && DateTime::kLastDay - closed->to.DayNumber() > days) {
            next = PayPeriod{closed->to.AddDays(1), closed->to.AddDays(1 + days)};
        }
    });
    return next;
}

} // namespace ptk
