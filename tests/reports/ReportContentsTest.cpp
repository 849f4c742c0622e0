// What the five reports write, byte by byte: the golden files were written by hand.
#include "reports/ReportFixture.h"

#include "model/CTimeCard.h"

namespace ptk {

namespace {

class ReportContentsTest : public ReportTest
{
protected:
    // The file, the viewer and the golden text are the same bytes, and the viewer was handed over whole.
    void ExpectWritten(const Report& report, const std::string& file, const std::string& golden)
    {
        EXPECT_EQ(FileBytes(File(file)), Golden(golden));
        ASSERT_EQ(viewers.made.size(), 1U);
        const RememberingViewer& viewer = *viewers.made.front();
        EXPECT_EQ(viewer.text, Golden(golden));
        EXPECT_EQ(viewer.caption, report.ReportName());
        EXPECT_EQ(viewer.controller.get(), &report);
        EXPECT_TRUE(viewer.shown);
        EXPECT_EQ(report.ReportPath(), folder.Path() + "\\reports\\" + file);
    }
};

TEST_F(ReportContentsTest, TimeCard)
{
    AddShifts();
    const auto report = New<CReportTimeCard>();
    EXPECT_TRUE(report->GenerateReport(database, ann, first, last));
    EXPECT_EQ(report->ErrorNumber(), 0);
    EXPECT_EQ(report->ReportName(), "Employee Time Card : Ann Lee : 1/1/2003 - 1/15/2003");
    ASSERT_NE(report->TimeCard(), nullptr);
    EXPECT_EQ(report->TimeCard()->EndDate(), DateTime({2003, 1, 17}));
    ExpectWritten(*report, "5_0101_0116_2003_time_card.txt", "time_card.txt");
}

TEST_F(ReportContentsTest, TimeCardAlreadyOnScreen)
{
    AddShifts();
    const auto card = std::make_shared<CTimeCard>(factory);
    card->PTKDatabase(database);
    ASSERT_TRUE(card->GenerateTimecard(ann, first, DateTime({2003, 1, 16}, {23, 0, 0})));
    const auto report = New<CReportTimeCard>();
    EXPECT_TRUE(report->WriteTimeCardReport(card));
    EXPECT_EQ(report->TimeCard(), card);
    ExpectWritten(*report, "5_0101_0116_2003_time_card.txt", "time_card.txt");
}

TEST_F(ReportContentsTest, TimeCardWithoutShiftsKeepsTheFormOnly)
{
    const auto report = New<CReportTimeCard>();
    EXPECT_FALSE(report->GenerateReport(database, jose, first, last));
    EXPECT_EQ(report->ErrorNumber(), 605);
    ExpectWritten(*report, "8_0101_0116_2003_time_card.txt", "time_card_empty.txt");
}

TEST_F(ReportContentsTest, ReviewLeavesOutWhoHasNoCard)
{
    AddShifts();
    const auto report = New<CReportReview>();
    EXPECT_FALSE(report->GenerateReport(database, ListOf({ann, jose, zorn}), first, last));
    EXPECT_EQ(report->ErrorNumber(), 710);
    ExpectWritten(*report, "salary_review_0101_0116_2003.txt", "review.txt");
}

TEST_F(ReportContentsTest, YearToDateTotals)
{
    AddShifts();
    const auto report = New<CReportYTDTotals>();
    EXPECT_TRUE(report->GenerateReport(database, ann, first, clock.Today()));
    EXPECT_EQ(report->ErrorNumber(), 0);
    ExpectWritten(*report, "5_0101_0320_2003_ytd_totals.txt", "ytd_totals.txt");
}

TEST_F(ReportContentsTest, EmployeeRecords)
{
    const auto report = New<CReportEmployee>();
    EXPECT_TRUE(report->GenerateReport(ListOf({ann, zorn})));
    ExpectWritten(*report, "employee_records.txt", "employee_records.txt");
}

TEST_F(ReportContentsTest, PhoneBook)
{
    const auto report = New<CReportPhoneBook>();
    const auto longName = Named(9, "Maxim", "Featherstonehaugh-Cholmondeley-Marjori");
    EXPECT_TRUE(report->GenerateReport(ListOf({ann, zorn, longName, ann, jose})));
    ExpectWritten(*report, "phone_book.txt", "phone_book.txt");
}

TEST_F(ReportContentsTest, WithoutShiftsOrEmployeesTheHeaderRemains)
{
    const std::string rule = "------------------------------------------------------------------------\r\n";
    EXPECT_FALSE(New<CReportYTDTotals>()->GenerateReport(database, jose, first, last));
    EXPECT_EQ(viewers.made.back()->text, "Employee Year-To-Date Totals : José Ünsal : 1/1/2003 - 1/16/2003\r\n" + rule + "\r\n");
    EXPECT_TRUE(New<CReportReview>()->GenerateReport(database, ListOf({}), first, last));
    EXPECT_EQ(FileBytes(File("salary_review_0101_0116_2003.txt")), "Accountant's Review : 1/1/2003 - 1/16/2003\r\n" + rule + "\r\n");
    EXPECT_TRUE(New<CReportEmployee>()->GenerateReport(ListOf({})));
    EXPECT_EQ(FileBytes(File("employee_records.txt")), "Employee Records\r\n" + rule + "\r\n");
    EXPECT_TRUE(New<CReportPhoneBook>()->GenerateReport(ListOf({})));
    EXPECT_EQ(FileBytes(File("phone_book.txt")), "Employee Phone Book\r\n" + rule);
}

TEST_F(ReportContentsTest, NamesOfFilesAndTitles)
{
    struct Case
    {
        const char* firstName;
        const char* lastName;
        std::int32_t number;
        DateTime from;
        DateTime to;
        const char* cardFile;
        const char* cardTitle;
        const char* totalsTitle;
    };
    const std::string card = "Employee Time Card : ";
    const std::string totals = "Employee Year-To-Date Totals : ";
    for (const Case& c :
         {Case{"Ann", "Lee", 5, DateTime({2003, 12, 16}), DateTime({2004, 1, 1}), "5_1216_0101_2003_time_card.txt",
               "Ann Lee : 12/16/2003 - 12/31/2003", "Ann Lee : 12/16/2003 - 1/1/2004"},
          Case{"", "Zorn", 17, DateTime({2003, 3, 1}), DateTime({2003, 3, 1}), "17_0301_0301_2003_time_card.txt",
               " Zorn : 3/1/2003 - 2/28/2003", " Zorn : 3/1/2003 - 3/1/2003"},
          Case{"../..", "a\\b:c?\n", -1, DateTime({1899, 12, 31}), DateTime({2150, 10, 9}, {23, 0, 0}), "-1_1231_1009_1899_time_card.txt",
               "../.. a\\b:c?\n : 12/31/1899 - 10/8/2150", "../.. a\\b:c?\n : 12/31/1899 - 10/9/2150"},
          Case{"B", "C", 2147483647, DateTime({2004, 3, 1}), DateTime({2004, 1, 1}), "2147483647_0301_0101_2004_time_card.txt",
               "B C : 3/1/2004 - 12/31/2003", "B C : 3/1/2004 - 1/1/2004"}}) {
        const auto employee = Named(c.number, c.firstName, c.lastName);
        const auto timeCard = New<CReportTimeCard>();
        timeCard->GenerateReport(database, employee, c.from, c.to);
        EXPECT_EQ(timeCard->ReportName(), card + c.cardTitle);
        EXPECT_TRUE(std::filesystem::is_regular_file(File(c.cardFile))) << c.cardFile;
        const auto ytd = New<CReportYTDTotals>();
        ytd->GenerateReport(database, employee, c.from, c.to);
        EXPECT_EQ(ytd->ReportName(), totals + c.totalsTitle);
    }
}

} // namespace

} // namespace ptk
