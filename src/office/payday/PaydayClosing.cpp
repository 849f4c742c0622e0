#include "office/payday/PaydayClosing.h"

#include "model/CEmployeeList.h"
#include "model/ModelErrors.h"
#include "model/payday/ClosingReader.h"
#include "office/card/CardTexts.h"
#include "office/overview/Overview.h"
#include "platform/Failure.h"
#include "platform/text/Joined.h"
#include "store/CJetDB.h"
#include "store/engine/Engine.h"
#include "store/engine/EngineWords.h"
#include "store/engine/RecordSet.h"
#include "store/engine/StoredDate.h"

#include <algorithm>
#include <fmt/format.h>
#include <span>
#include <utility>

namespace ptk {

namespace {

constexpr auto kClosed = "closed {}: {} + {} hours, {}";
constexpr auto kPaidAlready = "paid already {}";
constexpr auto kNotClosed = "not closed {}: {} problems";
constexpr auto kReopened = "reopened {}";
constexpr std::pair<PaydayDeed, const char*> kCounts[] = {{PaydayDeed::Closed, "{} closed"},
                                                          {PaydayDeed::PaidAlready, "{} paid already"},
                                                          {PaydayDeed::Reopened, "{} reopened"},
                                                          {PaydayDeed::NotClosed, "{} not closed: "}};

constexpr auto kNoCard = "the time card of {} cannot be computed";
constexpr auto kGone = "there is no employee {} any more";

constexpr const char* kTables[] = {"TimeRecord", "Employee", "_Payday"}; // tables that the stored figures depend on
constexpr const char* kInsert =
    "INSERT INTO _Payday (EmployeeID, FromDay, ToDay, PaidAt, PaidBy, Regular, Overtime, Gross, Entry) VALUES {}";
constexpr const char* kNewest = "SELECT COALESCE(MAX(ChangeID), 0) FROM _Change";
constexpr std::size_t kRowsAtOnce = 200; // of one statement
constexpr std::size_t kMostNames = 20;   // in one line of text

// A card without figures has at least one problem.
std::int32_t ProblemsOf(const OverviewRow& row)
{
    return std::max(row.check.problems, row.figures ? 0 : 1);
}

// Closes or reopens within the transaction that stores, so that what it reads does not change before the transaction ends.
class PaydayStep
{
public:
    PaydayStep(Engine& engine, const std::shared_ptr<CJetDB>& database, const PaydayOrder& order, const PaydayGoesOn& goesOn)
        : m_engine(engine), m_database(database), m_order(order), m_goesOn(goesOn)
    {
        for (const char* table : kTables) {
            engine.LockTable(table);
        }
        m_employees = StoredEmployees(database);
    }

    std::vector<PaydayLine> Close()
    {
        Overview overview;
        overview.period = m_order.period;
        overview.made = m_order.now;
        overview.limits = LoadCheckLimits(m_database);
        const Employees people = m_order.employees.empty() ? Listed() : Chosen();
        ReadOverview(overview, m_database, people, [&](const OverviewRow&) {
            AskWhetherToGoOn(m_goesOn, overview.rows.size(), people.size());
            return true;
        });
        m_newest = m_engine.NumberFrom(kNewest);
        std::vector<PaydayLine> lines;
        for (const OverviewRow& row : overview.rows) {
            lines.push_back(Close(row));
        }
        Insert();
        return lines;
    }

    std::vector<PaydayLine> Reopen()
    {
        const Closings closings = ReadClosings(m_database, m_order.period);
        std::vector<PaydayLine> lines;
        std::vector<std::int64_t> rows;
        for (const PaydayPerson& person : m_order.employees.empty() ? PersonsWithClosings(*m_employees, closings) : PersonsOf(Chosen())) {
            const auto closed = closings.find(person.id);
            if (closed != closings.end() && closed->second.Newest() != nullptr) {
                rows.push_back(closed->second.Newest()->id);
                lines.push_back({PaydayDeed::Reopened, PersonName(person), {}, 0});
            }
        }
        if (!rows.empty()) {
            m_engine.Prepare(fmt::format("DELETE FROM _Payday WHERE PaydayID IN ({})", Joined(rows, ",")))->Run();
        }
        return lines;
    }

private:
    // The people in the list, and those who were taken in.
    Employees Listed() const
    {
        Employees listed;
        for (std::int32_t i = 1; i <= m_employees->Count(); ++i) {
            const auto employee = m_employees->Item(i);
            if (employee != nullptr && (employee->OfferedOnTimeCards() || IsTakenIn(employee->EmployeeID()))) {
                listed.push_back(employee);
            }
        }
        return listed;
    }

    bool IsTakenIn(std::int32_t id) const { return std::find(m_order.takenIn.begin(), m_order.takenIn.end(), id) != m_order.takenIn.end(); }

    // The chosen employees, each once.
    Employees Chosen() const
    {
        Employees chosen;
        for (const std::int32_t id : m_order.employees) {
            const auto employee = m_employees->GetEmployeeByID(id);
            if (employee == nullptr) {
                throw Failure(timecard::NoEmployee, "PTK", std::to_string(id));
            }
            if (std::find(chosen.begin(), chosen.end(), employee) == chosen.end()) {
                chosen.push_back(employee);
            }
        }
        return chosen;
    }

    PaydayLine Close(const OverviewRow& row)
    {
        const std::string name = row.employee->DisplayName();
        if (row.paid && !row.check.changed) {
            return {PaydayDeed::PaidAlready, name, {}, 0};
        }
        if (const std::int32_t problems = ProblemsOf(row); m_order.employees.empty() && problems > 0) {
            return {PaydayDeed::NotClosed, name, {}, problems};
        }
        if (!row.figures) {
            throw Failure(timecard::NoRecords, "PTK", name);
        }
        m_values.push_back(ValuesOf(row));
        return {PaydayDeed::Closed, name, *row.figures, 0};
    }

    // The row to store, as SQL. The figures are digits, so they can stand in the text; who pays is a parameter.
    std::string ValuesOf(const OverviewRow& row) const
    {
        const PayPeriod& period = m_order.period;
        return fmt::format("({}, '{}', '{}', '{}', :by, '{}', '{}', '{}', {})", row.employee->EmployeeID(), StoredText(period.from),
                           StoredText(period.to), StoredText(m_order.now), row.figures->regular, row.figures->overtime, row.figures->gross,
                           m_newest);
    }

    void Insert()
    {
        const std::string& by = m_database->StoredBy().name;
        for (std::size_t at = 0; at < m_values.size(); at += kRowsAtOnce) {
            const std::span<const std::string> left = std::span(m_values).subspan(at);
            const auto insert = m_engine.Prepare(fmt::format(kInsert, Joined(left.first(std::min(kRowsAtOnce, left.size())), ", ")));
            insert->Bind("by", by.empty() ? Value() : Value(by));
            insert->Run();
        }
    }

    Engine& m_engine;
    const std::shared_ptr<CJetDB>& m_database;
    const PaydayOrder& m_order;
    const PaydayGoesOn& m_goesOn;
    std::shared_ptr<CEmployeeList> m_employees;
    std::int64_t m_newest = 0;         // entry of the trail before this step
    std::vector<std::string> m_values; // rows to store
};

// Runs the step. The transaction may run it more than once; only the last run counts.
std::vector<PaydayLine> Store(const std::shared_ptr<CJetDB>& database, const PaydayOrder& order,
                              std::vector<PaydayLine> (PaydayStep::*deed)(), const PaydayGoesOn& goesOn = {})
{
    std::vector<PaydayLine> lines;
    const CJetDB::Hold hold(database);
    if (!database->ExecuteSteps([&](Engine& engine) { lines = (PaydayStep(engine, database, order, goesOn).*deed)(); })) {
        throw Failure(database->LastFailure());
    }
    return lines;
}

// "Bo Kim (1 problem), Ann Lee (2 problems) and 17 more"
std::string NotClosed(const std::vector<PaydayLine>& lines)
{
    std::string names;
    std::size_t count = 0;
    for (const PaydayLine& line : lines) {
        if (line.deed == PaydayDeed::NotClosed && ++count <= kMostNames) {
            names += (names.empty() ? "" : ", ") + fmt::format("{} ({})", line.name, CountText(line.problems, "problem"));
        }
    }
    return count > kMostNames ? names + fmt::format(" and {} more", count - kMostNames) : names;
}

} // namespace

std::string TextOf(const PaydayLine& line)
{
    switch (line.deed) {
    case PaydayDeed::Closed:
        return fmt::format(kClosed, line.name, line.figures.regular, line.figures.overtime, line.figures.gross);
    case PaydayDeed::PaidAlready:
        return fmt::format(kPaidAlready, line.name);
    case PaydayDeed::NotClosed:
        return fmt::format(kNotClosed, line.name, line.problems);
    default:
        return fmt::format(kReopened, line.name);
    }
}

std::string NewsOf(const std::vector<PaydayLine>& lines)
{
    std::string news;
    for (const auto& [deed, words] : kCounts) {
        const auto count = std::count_if(lines.begin(), lines.end(), [deed = deed](const PaydayLine& line) { return line.deed == deed; });
        if (count != 0) {
            news += (news.empty() ? "" : ", ") + fmt::format(fmt::runtime(words), count);
        }
    }
    return news + NotClosed(lines);
}

std::string PaydayRefusal(const Failure& failure)
{
    switch (failure.Number()) {
    case timecard::NoRecords:
        return fmt::format(kNoCard, failure.Description());
    case timecard::NoEmployee:
        return fmt::format(kGone, failure.Description());
    default:
        return failure.Description();
    }
}

std::vector<PaydayLine> ClosePayday(const std::shared_ptr<CJetDB>& database, const PaydayOrder& order, const PaydayGoesOn& goesOn)
{
    return Store(database, order, &PaydayStep::Close, goesOn);
}

std::vector<PaydayLine> ReopenPayday(const std::shared_ptr<CJetDB>& database, const PaydayOrder& order)
{
    return Store(database, order, &PaydayStep::Reopen);
}

} // namespace ptk
