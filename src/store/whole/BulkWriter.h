// Adds many rows in one transaction, for sample data and measurements: a commit per row would flush the disk for each.
#pragma once

#include "store/rows/Rows.h"

#include <cstdint>
#include <memory>

namespace ptk {

class Engine;
class Statement;

// Keys in the rows are ignored: the database assigns new ones, which the members answer. Raises the engine's failures; nothing is kept
// unless Commit returns. REQUIRES: the engine is open and outlives the writer.
class BulkWriter
{
public:
    explicit BulkWriter(Engine& engine);
    ~BulkWriter();
    BulkWriter(const BulkWriter&) = delete;
    BulkWriter& operator=(const BulkWriter&) = delete;

    std::int32_t AddCompany(const CompanyRow& company);
    std::int32_t AddEmployee(const EmployeeRow& employee);
    std::int32_t AddTimeRecord(const TimeRecordRow& record);

    // Closes the account that every new database holds: nobody can log in with it any more.
    void CloseShippedAccount();

    // Puts all rows on the disk before it returns.
    void Commit();

private:
    std::int32_t Run(Statement& statement);

    Engine& m_engine;
    std::unique_ptr<Statement> m_addCompany;
    std::unique_ptr<Statement> m_addEmployee;
    std::unique_ptr<Statement> m_addTimeRecord;
};

} // namespace ptk
