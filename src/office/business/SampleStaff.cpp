#include "office/business/SampleBusiness.h"

#include <array>

namespace ptk {

namespace {

struct Person
{
    WorkPattern pattern;
    std::int32_t company;
    std::int32_t number;
    const char* first;
    const char* last;
    const char* ssn; // numbers from 900 on are never given out
    const char* address;
    const char* address2;
    const char* phone;
    int age; // years at the sample's last day
    CalendarDate birthday;
    int hiredDaysAgo;
    float payRate;
    float overtimePayRate;
    std::int16_t lunch; // minutes; 0 with `breaks` 0: no automatic deduction
    std::int16_t breaks;
};

constexpr int kReleasedDaysAgo = 61;
constexpr std::int32_t kReleasedNumber = 106;
constexpr std::int32_t kClockedInNumber = 204;
constexpr std::int32_t kLeavingNumber = 107; // still active
constexpr int kLeftDaysAgo = 2;

using enum WorkPattern;

constexpr std::array kPeople{
    Person{Workshop, 1, 101, "Ann", "Lee", "900-12-0101", "14 Mill Lane", "", "555-0101", 34, {0, 5, 17}, 2210, 18.5F, 27.75F, 0, 0},
    Person{Office,
           1,
           102,
           "Robert",
           "Hale",
           "900-12-0102",
           "208 Orchard Street",
           "Apt. 3",
           "555-0102",
           51,
           {0, 11, 2},
           5122,
           24.0F,
           36.0F,
           30,
           15},
    Person{SplitDay, 1, 103, "Maria", "Santos", "900-12-0103", "77 Chapel Road", "", "555-0103", 42, {0, 2, 28}, 1461, 17.25F, 0.0F, 0, 0},
    Person{Night, 1, 104, "Thomas", "Brandt", "900-12-0104", "5 Quarry Hill", "", "555-0104", 39, {0, 8, 9}, 903, 19.8F, 29.7F, 30, 0},
    Person{
        Office, 1, 105, "Grace", "Okafor", "900-12-0105", "31 Harbor View", "Unit B", "555-0105", 29, {0, 6, 30}, 655, 21.4F, 32.1F, 60, 0},
    Person{Workshop,
           1,
           kReleasedNumber,
           "Peter",
           "Lindqvist",
           "900-12-0106",
           "960 Ferry Road",
           "",
           "555-0106",
           61,
           {0, 1, 21},
           6003,
           16.0F,
           24.0F,
           0,
           0},
    Person{PartTime, 1, 107, "", "Calloway", "900-12-0107", "12 Station Row", "", "555-0107", 23, {0, 9, 14}, 310, 12.3F, 18.45F, 0, 0},
    Person{Bakery, 2, 201, "Yuki", "Tanaka", "900-12-0201", "3 Baker Street", "", "555-0201", 36, {0, 3, 3}, 1788, 17.9F, 26.85F, 30, 10},
    Person{Bakery, 2, 202, "Daniel", "Reyes", "900-12-0202", "45 Elm Court", "", "555-0202", 27, {0, 12, 24}, 998, 15.75F, 23.63F, 0, 0},
    Person{SplitDay,
           2,
           203,
           "Helen",
           "Fitzgerald",
           "900-12-0203",
           "1100 River Drive",
           "",
           "555-0203",
           47,
           {0, 7, 7},
           2790,
           16.4F,
           24.6F,
           0,
           15},
    Person{Workshop,
           2,
           kClockedInNumber,
           "Omar",
           "Haddad",
           "900-12-0204",
           "68 Garden Place",
           "",
           "555-0204",
           31,
           {0, 10, 12},
           420,
           15.0F,
           22.5F,
           30,
           0},
    Person{Weekend, 2, 205, "Susan", "Whitfield", "900-12-0205", "9 School Lane", "", "555-0205", 20, {0, 4, 19}, 275, 13.5F, 20.25F, 0, 0},
};

EmployeeRow RowOf(const Person& person, DateTime today)
{
    EmployeeRow row;
    row.SSN = person.ssn;
    row.EmployeeNumber = person.number;
    row.FirstName = person.first;
    row.LastName = person.last;
    row.Address1 = person.address;
    row.Address2 = person.address2;
    row.City = "Larkfield";
    row.State = "OH";
    row.ZipCode = person.company == 1 ? "45990" : "45991";
    row.Phone = person.phone;
    row.PayRate = person.payRate;
    row.OvertimePayRate = person.overtimePayRate;
    row.DateOfBirth = DateTime(CalendarDate{today.Date().year - person.age, person.birthday.month, person.birthday.day});
    row.HireDate = today.AddDays(-person.hiredDaysAgo);
    row.CompanyID = person.company;
    row.AutoDeduct = person.lunch + person.breaks > 0;
    row.AutoDeductLunchLength = person.lunch;
    row.AutoDeductBreakLength = person.breaks;
    row.EmployeeActive = person.number != kReleasedNumber;
    if (!row.EmployeeActive) {
        row.ReleaseDate = today.AddDays(-kReleasedDaysAgo);
    }
    if (person.number == kLeavingNumber) {
        row.ReleaseDate = today.AddDays(-kLeftDaysAgo);
    }
    return row;
}

} // namespace

std::vector<CompanyRow> SampleCompanies()
{
    CompanyRow tools;
    tools.CompanyName = "Larkfield Tool Works";
    tools.Address1 = "400 Foundry Street";
    tools.City = "Larkfield";
    tools.State = "OH";
    tools.ZipCode = "45990";
    tools.Phone = "555-0100";
    tools.Fax = "555-0109";
    tools.FederalTaxID = "00-5550100";
    tools.URL = "www.larkfieldtools.example";

    CompanyRow bakery = tools;
    bakery.CompanyName = "Old Ferry Bakery";
    bakery.Address1 = "2 Ferry Road";
    bakery.Address2 = "Rear building";
    bakery.ZipCode = "45991";
    bakery.Phone = "555-0200";
    bakery.Fax = "555-0209";
    bakery.FederalTaxID = "00-5550200";
    bakery.URL = "www.oldferrybakery.example";
    return {tools, bakery};
}

std::vector<SampleEmployee> SampleEmployees(DateTime today)
{
    std::vector<SampleEmployee> employees;
    employees.reserve(kPeople.size());
    for (const Person& person : kPeople) {
        employees.push_back({RowOf(person, today), person.pattern, person.number == kClockedInNumber});
    }
    return employees;
}

} // namespace ptk
