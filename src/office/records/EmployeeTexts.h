// An employee as the employee page shows and takes it.
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

    // With a pointer to each member but the ID.
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

// Why a page cannot be saved, in the order in which it is told.
enum class EmployeeRefusal
{
    NoNumber,
    NoName,
    NoSSN,
    WrongType,
    Administrator
};

// The product knows its administrator account by this ID.
inline constexpr std::int32_t kAdministratorID = 39;

// Deliberately shows no pay rates of an inactive employee, so that saving one from the page stores zero rates.
[[nodiscard]] EmployeeTexts ShowEmployeeTexts(const CEmployee& employee);

[[nodiscard]] std::optional<EmployeeRefusal> CheckEmployeeTexts(const EmployeeTexts& texts);

// Puts the texts, but not the ID, into the employee. Raises Failure 13 or 6 for a text that does not fit its field; the employee is then
// untouched.
void ReadEmployeeTexts(const EmployeeTexts& texts, CEmployee& employee);

// Empty for nobody's number.
[[nodiscard]] std::string DisplayNameOf(CEmployeeList& list, std::int64_t employeeID);

// First and last name: the first blank ends the first name; without a blank all of it is the last name.
[[nodiscard]] std::pair<std::string, std::string> SplitDisplayName(std::string_view name);

} // namespace ptk
