#include "model/CEmployeeList.h"

#include "platform/Failure.h"
#include "store/CJetDB.h"

namespace ptk {

std::shared_ptr<CEmployee> CEmployeeList::GetEmployeeByID(std::int32_t theid)
{
    return First([&](const CEmployee& employee) { return employee.EmployeeID() == theid; });
}

std::shared_ptr<CEmployee> CEmployeeList::GetEmployeeByName(std::string_view thename)
{
    return First([&](const CEmployee& employee) { return employee.HasDisplayName(thename); });
}

std::shared_ptr<CEmployee> CEmployeeList::GetEmployeeBySSN(std::string_view thessn)
{
    return First([&](const CEmployee& employee) { return employee.SSN() == thessn; });
}

std::shared_ptr<CEmployee> CEmployeeList::GetEmployeeByNumber(std::int32_t thenumber)
{
    return First([&](const CEmployee& employee) { return employee.EmployeeNumber() == thenumber; });
}

bool CEmployeeList::InsertLoaded(EmployeeRow row, std::int32_t position)
{
    return InsertAt(std::make_shared<CEmployee>(std::move(row)), position);
}

bool CEmployeeList::LoadNamed(const std::shared_ptr<CJetDB>& thedatabase, const std::string& thename)
{
    ClearError();
    if (thedatabase == nullptr || !thedatabase->LoadEmployeesNamed(*this, thename)) {
        ErrorNumber(listerror::CreateFailed);
        return false;
    }
    return true;
}

bool CEmployeeList::FillFrom(CJetDB& thedatabase)
{
    return thedatabase.LoadEmployeeList(*this);
}

std::shared_ptr<CEmployeeList> StoredEmployees(const std::shared_ptr<CJetDB>& database)
{
    auto employees = std::make_shared<CEmployeeList>();
    if (!employees->LoadList(database)) {
        throw Failure(database->LastFailure());
    }
    return employees;
}

} // namespace ptk
