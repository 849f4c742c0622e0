#include "office/records/EmployeeTexts.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "platform/text/Text.h"
#include "shell/CDataValidator.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr auto kNoRate = "0.00";

// The employee's fields that are not texts.
struct Figures
{
    std::int32_t number;
    float payRate;
    float overtimePayRate;
    DateTime dateOfBirth;
    DateTime hireDate;
    DateTime releaseDate;
    std::int16_t lunchLength;
    std::int16_t breakLength;
};

std::string DateText(DateTime date)
{
    return date.IsZero() ? std::string() : ShortDateText(date);
}

DateTime ReadDate(const std::string& text)
{
    return text.empty() ? DateTime() : ToDateTime(text);
}

float ReadRate(const std::string& text)
{
    return text.empty() ? 0.0F : ToSingle(text);
}

std::int16_t ReadMinutes(const std::string& text)
{
    return text.empty() ? std::int16_t{0} : std::max<std::int16_t>(ToInt16(text), 0);
}

Figures ReadFigures(const EmployeeTexts& texts)
{
    return {.number = ToInt32(texts.number),
            .payRate = ReadRate(texts.payRate),
            .overtimePayRate = ReadRate(texts.overtimePayRate),
            .dateOfBirth = ReadDate(texts.dateOfBirth),
            .hireDate = ReadDate(texts.hireDate),
            .releaseDate = ReadDate(texts.releaseDate),
            .lunchLength = ReadMinutes(texts.lunchLength),
            .breakLength = ReadMinutes(texts.breakLength)};
}

void SetTexts(const EmployeeTexts& texts, CEmployee& employee)
{
    auto [firstName, lastName] = SplitDisplayName(texts.name);
    employee.FirstName(std::move(firstName));
    employee.LastName(std::move(lastName));
    employee.SSN(texts.ssn);
    employee.Address1(texts.address1);
    employee.Address2(texts.address2);
    employee.City(texts.city);
    employee.State(texts.state);
    employee.ZipCode(texts.zip);
    employee.Phone(texts.phone);
    employee.Password(texts.password);
}

void SetFigures(const Figures& figures, CEmployee& employee)
{
    employee.EmployeeNumber(figures.number);
    employee.PayRate(figures.payRate);
    employee.OvertimePayRate(figures.overtimePayRate);
    employee.DateOfBirth(figures.dateOfBirth);
    employee.HireDate(figures.hireDate);
    employee.ReleaseDate(figures.releaseDate);
    employee.AutoDeductLunchLength(figures.lunchLength);
    employee.AutoDeductBreakLength(figures.breakLength);
}

bool NumbersAreValid(const EmployeeTexts& texts)
{
    const CDataValidator validator;
    return validator.CheckIntegerValues(texts.number) && validator.CheckSingleValues(texts.payRate) &&
           validator.CheckSingleValues(texts.overtimePayRate);
}

} // namespace

EmployeeTexts ShowEmployeeTexts(const CEmployee& employee)
{
    const bool active = employee.EmployeeActive();
    return {.id = std::to_string(employee.EmployeeID()),
            .number = std::to_string(employee.EmployeeNumber()),
            .name = employee.DisplayName(),
            .ssn = employee.SSN(),
            .address1 = employee.Address1(),
            .address2 = employee.Address2(),
            .city = employee.City(),
            .state = employee.State(),
            .zip = employee.ZipCode(),
            .phone = employee.Phone(),
            .password = employee.Password(),
            .payRate = active ? TwoDecimals(employee.PayRate()) : kNoRate,
            .overtimePayRate = active ? TwoDecimals(employee.OvertimePayRate()) : kNoRate,
            .dateOfBirth = DateText(employee.DateOfBirth()),
            .hireDate = DateText(employee.HireDate()),
            .releaseDate = DateText(employee.ReleaseDate()),
            .lunchLength = std::to_string(employee.AutoDeductLunchLength()),
            .breakLength = std::to_string(employee.AutoDeductBreakLength()),
            .active = active,
            .autoDeduct = employee.AutoDeduct()};
}

std::optional<EmployeeRefusal> CheckEmployeeTexts(const EmployeeTexts& texts)
{
    if (texts.number.empty()) {
        return EmployeeRefusal::NoNumber;
    }
    if (texts.name.empty()) {
        return EmployeeRefusal::NoName;
    }
    if (texts.ssn.empty()) {
        return EmployeeRefusal::NoSSN;
    }
    if (!NumbersAreValid(texts)) {
        return EmployeeRefusal::WrongType;
    }
    if (texts.id == std::to_string(kAdministratorID)) {
        return EmployeeRefusal::Administrator;
    }
    return std::nullopt;
}

void ReadEmployeeTexts(const EmployeeTexts& texts, CEmployee& employee)
{
    const Figures figures = ReadFigures(texts);
    SetTexts(texts, employee);
    SetFigures(figures, employee);
    employee.EmployeeActive(texts.active);
    employee.AutoDeduct(texts.autoDeduct);
}

std::string DisplayNameOf(CEmployeeList& list, std::int64_t employeeID)
{
    const auto employee = list.GetEmployeeByID(static_cast<std::int32_t>(employeeID));
    return employee == nullptr ? std::string() : employee->DisplayName();
}

std::pair<std::string, std::string> SplitDisplayName(std::string_view name)
{
    const std::size_t blank = name.find(' ');
    if (blank == std::string_view::npos) {
        return {std::string(), std::string(name)};
    }
    return {std::string(name.substr(0, blank)), std::string(name.substr(blank + 1))};
}

} // namespace ptk
