#include "store/whole/RowChecker.h"

#include "platform/text/Joined.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"
#include "store/rows/QueryParameters.h"

#include <algorithm>
#include <fmt/format.h>
#include <iterator>

namespace ptk {

namespace {

constexpr std::int32_t kRowsAtOnce = 10'000;

void ReadCompany(RowReader& reader)
{
    reader.ReadCompany();
}

void ReadEmployee(RowReader& reader)
{
    reader.ReadEmployee();
}

void ReadTimeRecord(RowReader& reader)
{
    reader.ReadTimeRecord();
}

void ReadOptions(RowReader& reader)
{
    OptionsRow row;
    reader.ReadOptions(row);
}

std::vector<const char*> NamesOf(const TableColumns& columns)
{
    std::vector<const char*> names;
    std::ranges::transform(columns.columns, std::back_inserter(names), &StoredColumn::name);
    return names;
}

// Puts what cannot be used behind `found`, without full stops.
void FindIn(RecordSet& rows, const TableColumns& columns, void (*read)(RowReader& reader), std::vector<std::string>& found)
{
    for (RowReader reader(rows, columns, found); !rows.EndOfFile(); rows.MoveNext()) {
        read(reader);
    }
}

} // namespace

void RowChecker::CheckTable(const TableColumns& columns, ReadRow read)
{
    try {
        std::vector<std::string> found;
        const auto rows = m_engine.PrepareForAllRows(fmt::format("SELECT {} FROM {}", Joined(NamesOf(columns), ", "), columns.table));
        for (bool more = true; more;) {
            const auto portion = rows->ReadRows(kRowsAtOnce);
            FindIn(*portion, columns, read, found);
            more = portion->RecordCount() == kRowsAtOnce;
        }
        for (const std::string& find : found) {
            m_problems.push_back(find + '.');
        }
    } catch (const Failure& failure) {
        m_engine.GiveUp(); // a server answers nothing more in this transaction
        m_problems.push_back(fmt::format("The table {} cannot be read: {}.", columns.table, failure.Description()));
    }
}

// Most finds are the table's own and were told before; a query that another tool wrote may answer values of its own.
void RowChecker::TryListing(const char* query, const TableColumns& columns, ReadRow read)
{
    try {
        const auto statement = m_engine.PrepareStored(query);
        const std::set<std::string> told(m_problems.begin(), m_problems.end());
        std::vector<std::string> found;
        FindIn(*statement->ReadRows(), columns, read, found);
        for (const std::string& find : found) {
            if (!told.contains(find + '.')) {
                m_problems.push_back(find + '.');
            }
        }
    } catch (const Failure& failure) {
        Unusable(query, failure);
    }
}

void RowChecker::CheckRows(const std::set<std::string>& incomplete)
{
    struct Table
    {
        const TableColumns& columns;
        ReadRow read;
    };
    for (const Table& table : {Table{OptionsTable(), ReadOptions}, Table{CompanyTable(), ReadCompany}, Table{EmployeeTable(), ReadEmployee},
                               Table{TimeRecordTable(), ReadTimeRecord}}) {
        if (!incomplete.contains(table.columns.table)) {
            CheckTable(table.columns, table.read);
        }
    }
    TryListing("GetAllCompanies", CompanyTable(), ReadCompany);
    TryListing("GetAllEmployees", EmployeeTable(), ReadEmployee);
}

void RowChecker::CheckClosings()
{
    const auto closing = m_engine.PrepareForAllRows(
        fmt::format("SELECT PaydayID FROM _Payday WHERE {} IS NOT TRUE ORDER BY PaydayID", m_engine.Words().closedDays));
    closing->ForEachRow([&] {
        m_problems.push_back(
            fmt::format("The days of _Payday {} cannot be read or run backward: it counts for nothing.", closing->TextAt(0)));
    });
}

void RowChecker::TryActions()
{
    TryAction("AddNewCompany", AddNewCompanyParameters({}));
    TryAction("AddNewEmployee", AddNewEmployeeParameters({}));
    TryAction("UpdateCompany", UpdateCompanyParameters({}));
    TryAction("UpdateEmployee", UpdateEmployeeParameters({}));
}

void RowChecker::TryAction(const char* query, std::span<const Parameter> parameters)
{
    try {
        const auto statement = m_engine.PrepareStored(query);
        statement->Bind(parameters);
        statement->RefuseUnlessAction();
    } catch (const Failure& failure) {
        Unusable(query, failure);
    }
}

void RowChecker::Unusable(const char* query, const Failure& failure)
{
    m_engine.GiveUp(); // a server answers nothing more in this transaction
    std::string why = failure.Description();
    if (why.ends_with('.')) {
        why.pop_back();
    }
    m_problems.push_back(fmt::format("The stored query {} cannot be used: {}.", query, why));
}

} // namespace ptk
