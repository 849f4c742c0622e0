#include "office/sheet/EmployeeImport.h"

#include "platform/Failure.h"
#include "platform/text/Joined.h"
#include "store/CJetDB.h"
#include "store/engine/Engine.h"
#include "store/engine/Statement.h"

#include <algorithm>
#include <fmt/format.h>
#include <iterator>
#include <span>

namespace ptk {

namespace {

constexpr std::size_t kEmployeesAtOnce = 100; // of one statement, some thousand values

constexpr auto kAddEmployees = "INSERT INTO Employee ({}, CompanyID, AutoDeduct, AutoDeductLunchLength, AutoDeductBreakLength) VALUES {}";
constexpr auto kOthersOfNew = "0, '0', 0, 0"; // a text for the flag is one on a file and on a server
constexpr auto kChangeEmployees = "UPDATE Employee SET {} WHERE EmployeeID IN ({})";

constexpr auto kEmployeeSums = "Lines: {}, stored {}, there already {}, refused {}, changed {}";
constexpr auto kRefusedLine = "Line {}: {}";
constexpr auto kLeftAside = "Columns left aside: {}";
constexpr auto kTaken = "Employee {}, {}: \"{}\" becomes \"{}\"";
constexpr auto kLeft = "Employee {}, {}: \"{}\" stays, the file has \"{}\"";

// Collects the values of a statement, which never stand in its text.
class ValuesSql
{
public:
    // Adds a value and answers its parameter. A day that is not known is stored as the zero date.
    std::string Add(Value value)
    {
        m_values.push_back(value.IsNull() ? Value(DateTime()) : std::move(value));
        return fmt::format(":v{}", m_values.size() - 1);
    }

    void Run(Engine& engine, const std::string& sql) const
    {
        const auto statement = engine.Prepare(sql);
        for (std::size_t i = 0; i < m_values.size(); ++i) {
            statement->Bind(fmt::format("v{}", i), m_values[i]);
        }
        statement->Run();
    }

private:
    std::vector<Value> m_values;
};

void AddSome(Engine& engine, std::span<const EmployeeValues> added)
{
    ValuesSql sql;
    std::vector<std::string> rows;
    for (const EmployeeValues& employee : added) {
        std::string row;
        for (const Value& value : employee) {
            row += sql.Add(value) + ", ";
        }
        rows.push_back(fmt::format("({}{})", row, kOthersOfNew));
    }
    sql.Run(engine, fmt::format(kAddEmployees, Joined(StoredEmployeeColumns(), ", "), Joined(rows, ", ")));
}

// The part of the statement that changes one field: "Phone = CASE EmployeeID WHEN 41 THEN :v0 ELSE Phone END"; empty if it changes for
// nobody.
std::string Assignment(EmployeeField field, std::span<const EmployeeChange> changed, ValuesSql& sql)
{
    std::string cases;
    for (const EmployeeChange& change : changed) {
        for (const auto& [own, value] : change.fields) {
            cases += own == field ? fmt::format(" WHEN {} THEN {}", change.employee, sql.Add(value)) : "";
        }
    }
    const char* const column = StoredEmployeeColumns()[static_cast<std::size_t>(field)];
    return cases.empty() ? "" : fmt::format("{0} = CASE EmployeeID{1} ELSE {0} END", column, cases);
}

// Changes many people by one statement, each in different fields.
void ChangeSome(Engine& engine, std::span<const EmployeeChange> changed)
{
    ValuesSql sql;
    std::vector<std::string> assignments;
    for (std::size_t i = 0; i < kEmployeeFieldCount; ++i) {
        if (std::string assignment = Assignment(static_cast<EmployeeField>(i), changed, sql); !assignment.empty()) {
            assignments.push_back(std::move(assignment));
        }
    }
    std::vector<std::int32_t> employees;
    std::transform(changed.begin(), changed.end(), std::back_inserter(employees), [](const EmployeeChange& c) { return c.employee; });
    sql.Run(engine, fmt::format(kChangeEmployees, Joined(assignments, ", "), Joined(employees, ", ")));
}

template <typename Row>
void InPortions(std::span<const Row> rows, const GoesOn& goesOn, const std::function<void(std::span<const Row>)>& run)
{
    for (; !rows.empty(); rows = rows.subspan(std::min(rows.size(), kEmployeesAtOnce))) {
        run(rows.first(std::min(rows.size(), kEmployeesAtOnce)));
        AskWhetherToGoOn(goesOn, 0);
    }
}

EmployeeAccount Judged(const std::string& text, const PrepareStatement& prepare, const EmployeeOrder& order, const GoesOn& goesOn)
{
    const auto takes = [&](const EmployeeDifference& difference) { return order.takes && order.takes(difference); };
    return {ReadEmployeeLines(text, prepare, order.wanted, takes, goesOn), false};
}

bool AreToBeStored(const EmployeeAccount& account, const EmployeeOrder& order)
{
    return !order.trial && !account.IsRefused() && account.HasNews();
}

// Compares once more in the transaction that stores, because another desk may have stored something meanwhile.
EmployeeAccount JudgeAndStoreEmployees(CJetDB& database, const std::string& text, const EmployeeOrder& order, const GoesOn& goesOn)
{
    EmployeeAccount account;
    const bool done = database.ExecuteSteps([&](Engine& engine) {
        engine.LockTable("Employee"); // nobody else stores an employee between the comparison and the writing
        account = Judged(
            text, [&](const std::string& sql) { return engine.Prepare(sql); }, order, goesOn);
        if (AreToBeStored(account, order)) {
            InPortions<EmployeeValues>(account.added, goesOn, [&](auto some) { AddSome(engine, some); });
            InPortions<EmployeeChange>(account.changed, goesOn, [&](auto some) { ChangeSome(engine, some); });
            account.isStored = true;
        }
    });
    if (!done) {
        throw Failure(database.LastFailure());
    }
    return account;
}

} // namespace

EmployeeAccount ImportEmployees(const std::shared_ptr<CJetDB>& database, const EmployeeOrder& order, const GoesOn& goesOn)
{
    const std::string text = ReadSheet(order.file);
    EmployeeAccount account;
    {
        const CJetDB::Hold hold(database);
        RequireOpen(*database);
        account = Judged(
            text, [&](const std::string& sql) { return RequireSelect(*database, sql); }, order, goesOn);
    }
    return AreToBeStored(account, order) ? JudgeAndStoreEmployees(*database, text, order, goesOn) : account;
}

std::vector<std::string> EmployeeAccountLines(const EmployeeAccount& account, bool withDifferences)
{
    std::vector<std::string> lines{
        fmt::format(kEmployeeSums, account.lines, account.added.size(), account.there, account.refused.size(), account.changed.size())};
    for (const RefusedLine& refused : account.refused) {
        lines.push_back(fmt::format(kRefusedLine, refused.line, refused.reason));
    }
    if (!account.leftAside.empty()) {
        lines.push_back(fmt::format(kLeftAside, Joined(account.leftAside, ", ")));
    }
    for (const EmployeeDifference& difference : withDifferences ? account.differences : std::vector<EmployeeDifference>()) {
        lines.push_back(fmt::format(fmt::runtime(difference.taken ? kTaken : kLeft), difference.number, HeadingOf(difference.field),
                                    difference.stored, difference.given));
    }
    return lines;
}

} // namespace ptk
