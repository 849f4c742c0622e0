#include "store/whole/BulkWriter.h"

#include "store/engine/Engine.h"
#include "store/engine/Statement.h"
#include "store/rows/QueryParameters.h"

namespace ptk {

namespace {

constexpr const char* kAddTimeRecord = "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (:employee, :start, :end)";
constexpr const char* kCloseAccount = "UPDATE Employee SET Password = '' WHERE EmployeeID = 39";

} // namespace

BulkWriter::BulkWriter(Engine& engine) : m_engine(engine)
{
    m_engine.BeginMany();
    m_addCompany = m_engine.PrepareStored("AddNewCompany");
    m_addEmployee = m_engine.PrepareStored("AddNewEmployee");
    m_addTimeRecord = m_engine.Prepare(kAddTimeRecord);
}

BulkWriter::~BulkWriter() = default;

std::int32_t BulkWriter::AddCompany(const CompanyRow& company)
{
    m_addCompany->Bind(AddNewCompanyParameters(company));
    return Run(*m_addCompany);
}

std::int32_t BulkWriter::AddEmployee(const EmployeeRow& employee)
{
    m_addEmployee->Bind(AddNewEmployeeParameters(employee));
    return Run(*m_addEmployee);
}

std::int32_t BulkWriter::AddTimeRecord(const TimeRecordRow& record)
{
    m_addTimeRecord->Bind("employee", record.EmployeeID);
    m_addTimeRecord->Bind("start", record.StartTime);
    m_addTimeRecord->Bind("end", record.EndTime);
    return Run(*m_addTimeRecord);
}

void BulkWriter::CloseShippedAccount()
{
    m_engine.Prepare(kCloseAccount)->Run();
}

std::int32_t BulkWriter::Run(Statement& statement)
{
    statement.Run();
    return NarrowToInt32(m_engine.LastKey());
}

void BulkWriter::Commit()
{
    m_engine.Commit();
}

} // namespace ptk
