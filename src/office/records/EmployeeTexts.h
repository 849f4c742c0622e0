// The texts of an employee, as the employee page shows and takes them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace ptk {

class CEmployee;
class CEmployeeList;

struct EmployeeTexts
{
    std::string id; // empty for a new employee
    std::string number;
    std::string name;
    std::string ssn;
    std::string address1;
    std::string address2;
    std::string city;
    std::string state;
    std::string zip;
    std::string phone;
    std::string password;
    std::string payRate = "0.00";
    std::string overtimePayRate = "0.00";
    std::string dateOfBirth;
    std::string hireDate;
    std::string releaseDate;
    std::string lunchLength = "0"; // minutes
    std::string breakLength = "0";
    bool active = false;
    bool autoDeduct = false;

    bool operator==(const EmployeeTexts&) const = default;

    // Calls `visit` with a pointer to each member except the ID.
    template <typename Visit>
    static void ForEachField(Visit visit)
    {
        using Texts = EmployeeTexts;
        for (std::string Texts::*text :
             {&Texts::number, &Texts::name, &Texts::ssn, &Texts::address1, &Texts::address2, &Texts::city, &Texts::state, &Texts::zip,
              &Texts::phone, &Texts::password, &Texts::payRate, &Texts::overtimePayRate, &Texts::dateOfBirth, &Texts::hireDate,
              &Texts::releaseDate, &Texts::lunchLength, &Texts::breakLength}) {
            visit(text);
        }
        visit(&Texts::active);
        visit(&Texts::autoDeduct);
    }
};

// Why an employee page cannot be saved, in the order in which the reasons are looked for.
enum class EmployeeRefusal
{
    NoNumber,
    NoName,
    NoSSN,
    WrongType,
    Administrator
};

// The EmployeeID by which the product knows its administrator account.
inline constexpr std::int32_t kAdministratorID = 39;

// The texts of a stored employee. Deliberately without the pay rates of an inactive one, so that saving from the page stores zero rates.
[[nodiscard]] EmployeeTexts ShowEmployeeTexts(const CEmployee& employee);

[[nodiscard]] std::optional<EmployeeRefusal> CheckEmployeeTexts(const EmployeeTexts& texts);

// Puts the texts, but not the ID, into the employee. Raises Failure 13 or 6 for a text that does not fit its field; the employee is then
// untouched.
void ReadEmployeeTexts(const EmployeeTexts& texts, CEmployee& employee);

// The display name of this employee; empty if there is no such employee.
[[nodiscard]] std::string DisplayNameOf(CEmployeeList& list, std::int64_t employeeID);

// The first and the last name. The first blank ends the first name; without a blank the whole name is the last name.
[[nodiscard]] std::pair<std::string, std::string> SplitDisplayName(std::string_view name);

} // namespace ptk
