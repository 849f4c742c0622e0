#include "model/CEmployee.h"

#include "model/AddressText.h"
#include "platform/text/DayText.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"

namespace ptk {

namespace {

constexpr StoreCalls<EmployeeRow> kEmployeeCalls{&CJetDB::AddNewEmployee, &CJetDB::UpdateEmployee, &CJetDB::UpdateEmployee,
                                                 &CJetDB::DeleteEmployee, employee::SaveFailed};

// An unknown date leaves the label alone on its line, without the tab.
void AppendDate(std::string& text, const char* label, DateTime date)
{
    text += label;
    if (!date.IsZero()) {
        text += "\t" + DayText(date);
    }
    text += "\r\n";
}

void AppendIdentity(std::string& text, const EmployeeRow& row)
{
    if (row.FirstName.empty()) {
        text += "Name: \t" + row.LastName + "\r\n";
    } else {
        text += "Last Name:  " + row.LastName + "\t\t\tFirst Name:  " + row.FirstName + "\r\n";
    }
    text += "Social Security Number:   " + row.SSN + "\r\n";
}

void AppendEmployment(std::string& text, const EmployeeRow& row)
{
    text += "Employee Number: \t" + std::to_string(row.EmployeeNumber) + "\r\n";
    text +=
        std::string("Employee Active: \t") + (row.EmployeeActive ? "This employee is active." : "This employee is NOT active.") + "\r\n";
    AppendDate(text, "Hire Date: ", row.HireDate);
    AppendDate(text, "Release Date: ", row.ReleaseDate);
    text += "Current Rate of Pay: \t$" + SingleText(row.PayRate) + "/hour\r\n";
    text += "Overtime Rate of Pay: \t$" + SingleText(row.OvertimePayRate) + "/hour\r\n";
}

} // namespace

CEmployee::CEmployee(EmployeeRow row) : RowEntity(std::move(row)) {}

bool CEmployee::Save(const std::shared_ptr<CJetDB>& thedatabase)
{
    return SaveRow(thedatabase, &EmployeeRow::EmployeeID, kEmployeeCalls);
}

std::string CEmployee::ToString()
{
    return BuildText(employee::TextFailed, [this](std::string& text) {
        AppendIdentity(text, m_row);
        AppendAddress(text, m_row);
        text += "Phone Number: \t\t" + m_row.Phone + "\r\n";
        AppendDate(text, "Date Of Birth: ", m_row.DateOfBirth);
        AppendEmployment(text, m_row);
    });
}

std::string CEmployee::ToStringTimeCard()
{
    return BuildText(employee::TextFailed, [this](std::string& text) {
        text += (m_row.FirstName.empty() ? "Name: \t\t\t\t" : "Name:  \t\t\t\t") + DisplayName() + "\r\n";
        text += "Social Security Number: \t" + m_row.SSN + "\r\n";
    });
}

std::string CEmployee::ToStringReview()
{
    return BuildText(employee::TextFailed, [this](std::string& text) {
        text += "Name:  " + DisplayName() + "\t\tSocial Security Number:  " + m_row.SSN + "\r\n";
        text += "Employee Number:  " + std::to_string(m_row.EmployeeNumber) + "\r\n";
        AppendAddress(text, m_row);
        text += "Phone Number: \t" + m_row.Phone + "\r\n";
        AppendDate(text, "Date Of Birth: ", m_row.DateOfBirth);
    });
}

std::string CEmployee::DisplayName() const
{
    return m_row.FirstName.empty() ? m_row.LastName : m_row.FirstName + " " + m_row.LastName;
}

bool CEmployee::HasDisplayName(std::string_view name) const
{
    const std::string_view first = m_row.FirstName;
    if (first.empty()) {
        return name == m_row.LastName;
    }
    return name.size() == first.size() + 1 + m_row.LastName.size() && name.substr(first.size() + 1) == m_row.LastName &&
           name[first.size()] == ' ' && name.substr(0, first.size()) == first;
}

bool CEmployee::OfferedOnTimeCards() const
{
    return m_row.EmployeeActive && LowerCase(DisplayName()).find("administrator") == std::string::npos;
}

} // namespace ptk
