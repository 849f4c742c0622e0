// The table of reports word for word: users, scripts and other programs know reports by these names.
#include "reports/ReportFixture.h"

namespace ptk {

namespace {

TEST_F(ReportTest, AreCalledAndOfferedAsEver)
{
    using enum ReportWhom;
    struct Case
    {
        ReportKind kind;
        const char* caption;
        const char* consoleName;
        const char* title;
        const char* viewer;
        ReportWhom whom;
        ReportDates dates;
        bool tellsFailures;
    };
    const std::vector<Case> cases{
        {ReportKind::TimeCard, "Timecard", "timecard", "Employee Time Card : ", "FReportTimeCard", Each, ReportDates::PayPeriod, true},
        {ReportKind::Review, "Accountants Review", "review", "Accountant's Review : ", "FReportReview", Together, ReportDates::PayPeriod,
         true},
        {ReportKind::YTDTotals, "Year-To-Date Totals", "ytd", "Employee Year-To-Date Totals : ", "FReportYTDTotals", Each,
         ReportDates::YearToDate, true},
        {ReportKind::Employee, "Employee Records", "employees", "Employee Records", "FReportEmployee", Together, ReportDates::None, false},
        {ReportKind::PhoneBook, "Phone Book", "phonebook", "Employee Phone Book", "FReportPhoneBook", Everyone, ReportDates::None, false}};
    ASSERT_EQ(ReportCatalog().size(), cases.size());
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const Case& c = cases[i];
        const ReportEntry& entry = ReportCatalog()[i];
        SCOPED_TRACE(c.caption);
        EXPECT_EQ(FindReport(c.caption), &entry);
        EXPECT_EQ(FindConsoleReport(c.consoleName), &entry);
        EXPECT_EQ(&EntryOf(c.kind), &entry);
        EXPECT_EQ(New(c.kind)->ReportName(), c.title) << "before it is generated";
        EXPECT_EQ(entry.viewer, c.viewer);
        EXPECT_EQ(entry.whom, c.whom);
        EXPECT_EQ(entry.dates, c.dates);
        EXPECT_EQ(entry.tellsFailures, c.tellsFailures);
    }
    for (const char* name : {"", "timecard", "Timecard ", "Phone", "Accountant's Review"}) {
        EXPECT_EQ(FindReport(name), nullptr) << name;
    }
}

} // namespace

} // namespace ptk
