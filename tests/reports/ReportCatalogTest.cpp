#include "reports/ReportCatalog.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

std::shared_ptr<CEmployee> Employee(const std::string& firstName, const std::string& lastName, std::int32_t id)
{
    EmployeeRow row;
    row.EmployeeID = id;
    row.FirstName = firstName;
    row.LastName = lastName;
    return std::make_shared<CEmployee>(row);
}

std::vector<std::int32_t> Ids(CEmployeeList& list)
{
    std::vector<std::int32_t> ids;
    for (std::int32_t i = 1; i <= list.Count(); ++i) {
        ids.push_back(list.Item(i) == nullptr ? 0 : list.Item(i)->EmployeeID());
    }
    return ids;
}

TEST(ReportCatalogTest, FindsReportsByTheirExactNames)
{
    for (const ReportEntry& entry : ReportCatalog()) {
        EXPECT_EQ(FindReport(entry.name), &entry);
    }
    for (const char* name : {"", "timecard", "Timecard ", "Phone", "Accountant's Review"}) {
        EXPECT_EQ(FindReport(name), nullptr) << name;
    }
    EXPECT_EQ(FindReport("Phone Book")->kind, ReportKind::PhoneBook);
    EXPECT_FALSE(FindReport("Phone Book")->needsEmployees);
}

TEST(ReportCatalogTest, OffersTheRunningHalfOfTheMonth)
{
    struct Case
    {
        DateTime today;
        std::int16_t length;
        DateTime from;
        DateTime to;
    };
    for (const Case& c : {Case{DateTime({2003, 3, 1}), 14, DateTime({2003, 3, 1}), DateTime({2003, 3, 15})},
                          Case{DateTime({2003, 3, 15}), 14, DateTime({2003, 3, 1}), DateTime({2003, 3, 15})},
                          Case{DateTime({2003, 3, 16}), 14, DateTime({2003, 3, 15}), DateTime({2003, 3, 29})},
                          Case{DateTime({2003, 12, 31}), 21, DateTime({2003, 12, 15}), DateTime({2004, 1, 5})},
                          Case{DateTime({2004, 2, 29}), 15, DateTime({2004, 2, 15}), DateTime({2004, 3, 1})},
                          Case{DateTime({2003, 3, 2}, {13, 0, 0}), 0, DateTime({2003, 3, 1}), DateTime({2003, 3, 1})}}) {
        const ReportPeriod period = DefaultPayPeriod(c.today, c.length);
        EXPECT_EQ(period.from, c.from) << c.today.DayNumber();
        EXPECT_EQ(period.to, c.to) << c.today.DayNumber();
    }
    EXPECT_EQ(YearToDate(DateTime({2003, 3, 20}, {9, 0, 0})).from, DateTime({2003, 1, 1}));
    EXPECT_EQ(YearToDate(DateTime({2003, 3, 20}, {9, 0, 0})).to, DateTime({2003, 3, 20}));
}

TEST(ReportCatalogTest, LooksEmployeesUpByDisplayName)
{
    CEmployeeList all;
    for (const auto& employee :
         {Employee("Ann", "Lee", 1), Employee("", "Zorn", 2), Employee("Ann", "Lee", 3), Employee("", "Administrator", 39),
          Employee("Admin", "ISTRATORs", 40), Employee("System administrator", "Bo", 41)}) {
        all.Insert(employee, all.Count() + 1);
    }
    const std::vector<std::string> names{
        "Zorn", "Ann Lee", "ann lee", "Administrator", "Ann Lee", "Admin ISTRATORs", "System administrator Bo"};
    EXPECT_EQ(Ids(*EmployeesByName(all, names)), (std::vector<std::int32_t>{2, 1, 0, 39, 1, 40, 41}));
    EXPECT_EQ(Ids(*PhoneBookEmployees(all, names)), (std::vector<std::int32_t>{2, 1, 1}));
    EXPECT_EQ(EmployeesByName(all, {})->Count(), 0);
}

} // namespace

} // namespace ptk
