#include "store/rows/QueryParameters.h"

namespace ptk {

// The password deliberately comes twice, since it always did; parameters are found by name, and both carry the same value.
std::vector<Parameter> AddNewEmployeeParameters(const EmployeeRow& employee)
{
    return {
        {"paramSSN", employee.SSN},
        {"paramFirst", employee.FirstName},
        {"paramLast", employee.LastName},
        {"paramAddress", employee.Address1},
        {"paramAddress2", employee.Address2},
        {"paramCity", employee.City},
        {"paramState", employee.State},
        {"paramZipCode", employee.ZipCode},
        {"paramPhone", employee.Phone},
        {"paramPassword", employee.Password},
        {"paramPayRate", employee.PayRate},
        {"paramOvertimePay", employee.OvertimePayRate},
        {"paramDOB", employee.DateOfBirth},
        {"paramHireDate", employee.HireDate},
        {"paramRelDate", employee.ReleaseDate},
        {"paramEmpNumber", employee.EmployeeNumber},
        {"paramAutoDeduct", employee.AutoDeduct},
        {"paramLunchLength", employee.AutoDeductLunchLength},
        {"paramBreakLength", employee.AutoDeductBreakLength},
        {"paramActive", employee.EmployeeActive},
        {"paramCompID", employee.CompanyID},
        {"paramPassword", employee.Password},
    };
}

// The company deliberately comes twice, as the password does in AddNewEmployeeParameters.
std::vector<Parameter> UpdateEmployeeParameters(const EmployeeRow& employee)
{
    return {
        {"employee_id", employee.EmployeeID},
        {"employee_number", employee.EmployeeNumber},
        {"SSN", employee.SSN},
        {"first_name", employee.FirstName},
        {"last_name", employee.LastName},
        {"Address1", employee.Address1},
        {"Address2", employee.Address2},
        {"City", employee.City},
        {"State", employee.State},
        {"zip_code", employee.ZipCode},
        {"Phone", employee.Phone},
        {"Password", employee.Password},
        {"company_id", employee.CompanyID},
        {"pay_rate", employee.PayRate},
        {"overtime_pay_rate", employee.OvertimePayRate},
        {"dob", employee.DateOfBirth},
        {"hire_date", employee.HireDate},
        {"release_date", employee.ReleaseDate},
        {"active_employee", employee.EmployeeActive},
        {"company_id", employee.CompanyID},
        {"auto_deduct", employee.AutoDeduct},
        {"auto_deduct_lunch_length", employee.AutoDeductLunchLength},
        {"auto_deduct_break_length", employee.AutoDeductBreakLength},
    };
}

std::vector<Parameter> AddNewCompanyParameters(const CompanyRow& company)
{
    return {
        {"paramName", company.CompanyName}, {"paramAddr1", company.Address1}, {"paramAddr2", company.Address2},
        {"paramCity", company.City},        {"paramState", company.State},    {"paramZipCode", company.ZipCode},
        {"paramPhone", company.Phone},      {"paramFax", company.Fax},        {"paramFederalTaxID", company.FederalTaxID},
        {"paramURL", company.URL},
    };
}

std::vector<Parameter> UpdateCompanyParameters(const CompanyRow& company)
{
    const std::vector<Parameter> texts = AddNewCompanyParameters(company);
    std::vector<Parameter> parameters = {{"paramID", company.CompanyID}};
    parameters.insert(parameters.end(), texts.begin(), texts.end());
    return parameters;
}

} // namespace ptk
