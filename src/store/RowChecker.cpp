#include "store/RowChecker.h"

#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <set>

namespace ptk {

namespace {

constexpr std::int32_t kPortion = 10'000; // rows

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

// What cannot be used in the rows of a statement, without full stops.
std::vector<std::string> FindIn(Statement& statement, const TableColumns& columns, void (*read)(RowReader& reader))
{
    std::vector<std::string> found;
    std::int32_t count = kPortion;
    while (count == kPortion) {
        const auto rows = statement.ReadRows(kPortion);
        count = rows->RecordCount();
        for (RowReader reader(*rows, columns, found); !rows->EndOfFile(); rows->MoveNext()) {
            read(reader);
        }
    }
    return found;
}

} // namespace

void RowChecker::CheckTable(const TableColumns& columns, ReadRow read)
{
    try {
        const auto statement = m_engine.Prepare(fmt::format("SELECT {} FROM {}", fmt::join(columns.names, ", "), columns.table));
        for (const std::string& find : FindIn(*statement, columns, read)) {
            m_problems.push_back(find + '.');
        }
    } catch (const Failure& failure) {
        m_problems.push_back(fmt::format("The table {} cannot be read: {}.", columns.table, failure.Description()));
    }
}

void RowChecker::CheckCompanies()
{
    CheckTable(CompanyTable(), ReadCompany);
}

void RowChecker::CheckEmployees()
{
    CheckTable(EmployeeTable(), ReadEmployee);
}

void RowChecker::CheckTimeRecords()
{
    CheckTable(TimeRecordTable(), ReadTimeRecord);
}

void RowChecker::CheckOptions()
{
    CheckTable(OptionsTable(), ReadOptions);
}

// Most finds are the table's own, which have been told by then; a query of another tool may have values of its own.
void RowChecker::TryListing(const char* query, const TableColumns& columns, ReadRow read)
{
    try {
        const auto statement = m_engine.PrepareStored(query);
        const std::set<std::string> told(m_problems.begin(), m_problems.end());
        for (const std::string& find : FindIn(*statement, columns, read)) {
            if (!told.contains(find + '.')) {
                m_problems.push_back(find + '.');
            }
        }
    } catch (const Failure& failure) {
        Unusable(query, failure);
    }
}

void RowChecker::TryCompanyListing()
{
    TryListing("GetAllCompanies", CompanyTable(), ReadCompany);
}

void RowChecker::TryEmployeeListing()
{
    TryListing("GetAllEmployees", EmployeeTable(), ReadEmployee);
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
    std::string why = failure.Description();
    if (why.ends_with('.')) {
        why.pop_back();
    }
    m_problems.push_back(fmt::format("The stored query {} cannot be used: {}.", query, why));
}

} // namespace ptk
