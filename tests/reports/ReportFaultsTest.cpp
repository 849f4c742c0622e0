// What goes wrong around a report, its codes, and the life of a report and its viewer.
#include "reports/ReportFixture.h"

#include "model/CTimeCard.h"
#include "support/Files.h"
#include "support/Hardship.h"

#include <functional>

namespace ptk {

namespace {

using Makes = RememberingViewers::Makes;

class ReportFaultsTest : public ReportTest
{
protected:
    std::shared_ptr<CReportEmployee> Records(bool expected)
    {
        auto report = New<CReportEmployee>();
        EXPECT_EQ(report->GenerateReport(ListOf({ann, zorn})), expected);
        return report;
    }

    // A time card, a review, totals, records and a phone book, each generated well.
    std::vector<std::shared_ptr<Report>> AllFive()
    {
        AddShifts();
        const auto card = New<CReportTimeCard>();
        const auto review = New<CReportReview>();
        const auto totals = New<CReportYTDTotals>();
        const auto records = New<CReportEmployee>();
        const auto book = New<CReportPhoneBook>();
        EXPECT_TRUE(card->GenerateReport(database, ann, first, last));
        EXPECT_TRUE(review->GenerateReport(database, ListOf({ann}), first, last));
        EXPECT_TRUE(totals->GenerateReport(database, ann, first, last));
        EXPECT_TRUE(records->GenerateReport(ListOf({ann})));
        EXPECT_TRUE(book->GenerateReport(ListOf({ann})));
        return {card, review, totals, records, book};
    }
};

TEST_F(ReportFaultsTest, RefusesMissingArguments)
{
    struct Case
    {
        const char* name;
        std::int32_t error;
        std::function<std::pair<bool, std::int32_t>()> generate;
    };
    const auto answer = [](auto report, bool generated) { return std::pair(generated, report->ErrorNumber()); };
    const Value noDate("abc");
    const auto card = New<CReportTimeCard>();
    const auto review = New<CReportReview>();
    const auto totals = New<CReportYTDTotals>();
    const auto records = New<CReportEmployee>();
    const auto book = New<CReportPhoneBook>();
    for (const Case& c :
         {Case{"card, no date, nor an employee", 603, [&] { return answer(card, card->GenerateReport(database, nullptr, noDate, last)); }},
          Case{"card, empty date", 603, [&] { return answer(card, card->GenerateReport(database, ann, first, "")); }},
          Case{"card, no employee", 602, [&] { return answer(card, card->GenerateReport(database, nullptr, first, last)); }},
          Case{"card to write", 706, [&] { return answer(card, card->WriteTimeCardReport(nullptr)); }},
          Case{"card of nobody", 602, [&] { return answer(card, card->WriteTimeCardReport(std::make_shared<CTimeCard>(factory))); }},
          Case{"review, no date, nor a list", 603,
               [&] { return answer(review, review->GenerateReport(database, nullptr, first, noDate)); }},
          Case{"review, no list", 331, [&] { return answer(review, review->GenerateReport(database, nullptr, first, last)); }},
          Case{"totals, no date, nor an employee", 603,
               [&] { return answer(totals, totals->GenerateReport(database, nullptr, noDate, last)); }},
          Case{"totals, no employee", 602, [&] { return answer(totals, totals->GenerateReport(database, nullptr, first, last)); }},
          Case{"records, no list", 705, [&] { return answer(records, records->GenerateReport(nullptr)); }},
          Case{"phone book, no list", 704, [&] { return answer(book, book->GenerateReport(nullptr)); }}}) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.generate(), std::pair(false, c.error));
    }
    EXPECT_TRUE(viewers.made.empty());
    EXPECT_TRUE(std::filesystem::is_empty(File("")));
    EXPECT_EQ(card->ReportName(), "Employee Time Card : ");
}

TEST_F(ReportFaultsTest, NeedsItsFile)
{
    const std::string file = File("employee_records.txt");
    const std::vector<std::function<void()>> spoilers{
        [&] { std::filesystem::create_directory(file); },
        [&] { ::mkfifo(file.c_str(), 0600); },
        [&] { std::filesystem::create_symlink("/dev/full", file); },
        [&] { std::filesystem::remove_all(File("")); },
    };
    for (const auto& spoil : spoilers) {
        std::filesystem::remove(file);
        spoil();
        EXPECT_EQ(Records(false)->ErrorNumber(), 503);
    }
    EXPECT_FALSE(std::filesystem::exists(File(""))) << "the folder is never created";
    EXPECT_TRUE(viewers.made.empty());
}

TEST_F(ReportFaultsTest, NeedsItsViewer)
{
    WriteBytes(File("employee_records.txt"), "an earlier report");
    for (const Makes makes : {Makes::None, Makes::Raises}) {
        viewers.makes = makes;
        EXPECT_EQ(Records(false)->ErrorNumber(), 701);
    }
    EXPECT_EQ(FileBytes(File("employee_records.txt")), "an earlier report");
}

TEST_F(ReportFaultsTest, LostLinesShowInTheErrorNumberOnly)
{
    viewers.makes = Makes::LosesLines;
    EXPECT_EQ(Records(true)->ErrorNumber(), 703);
    EXPECT_EQ(FileBytes(File("employee_records.txt")), Golden("employee_records.txt"));

    viewers.makes = Makes::Good;
    WriteBytes(File("employee_records.txt"), "an earlier report");
    const FullDisk full(200);
    const auto report = Records(true);
    EXPECT_EQ(report->ErrorNumber(), 702);
    EXPECT_EQ(viewers.made.back()->text, Golden("employee_records.txt"));
    EXPECT_TRUE(viewers.made.back()->shown);
    EXPECT_EQ(FileBytes(File("employee_records.txt")), "an earlier report") << "half a report does not replace it";
    EXPECT_FALSE(report->PrintReport()) << "nor is it printed for this one";
    EXPECT_TRUE(desktop.requests.empty());
    EXPECT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(File("")), {}), 1);
}

TEST_F(ReportFaultsTest, IsAFileOfItsOwnForItsOwner)
{
    const std::string other = folder.Path() + "/system/other";
    WriteBytes(other, "of another");
    std::filesystem::create_symlink(other, File("employee_records.txt"));
    EXPECT_TRUE(Records(true)->FileWritten());
    EXPECT_EQ(ModeOf(File("employee_records.txt")), 0600);
    EXPECT_EQ(FileBytes(File("employee_records.txt")), Golden("employee_records.txt"));
    EXPECT_EQ(FileBytes(other), "of another");
}

TEST_F(ReportFaultsTest, ACardWithoutADatabaseIs710)
{
    const auto card = New<CReportTimeCard>();
    EXPECT_FALSE(card->GenerateReport(nullptr, ann, first, last));
    EXPECT_EQ(card->ErrorNumber(), 710);
    EXPECT_TRUE(viewers.made.back()->shown);

    const auto totals = New<CReportYTDTotals>();
    EXPECT_FALSE(totals->GenerateReport(database, jose, first, last)) << "has no shifts";
    EXPECT_EQ(totals->ErrorNumber(), 710) << "never 605";

    const auto beyond = New<CReportTimeCard>();
    EXPECT_FALSE(beyond->GenerateReport(database, ann, first, DateTime({9999, 12, 31})));
    EXPECT_EQ(beyond->ErrorNumber(), 710) << "there is no day after";
    EXPECT_TRUE(FileBytes(File("5_0101_1231_2003_time_card.txt")).ends_with("Date\r\n")) << "the form is whole, only the card is missing";
}

TEST_F(ReportFaultsTest, SkipsEmployeesWhoAreNoMore)
{
    AddShifts();
    const auto review = New<CReportReview>();
    EXPECT_FALSE(review->GenerateReport(database, ListOf({ann, nullptr, zorn}), first, last));
    EXPECT_EQ(review->ErrorNumber(), 710);
    EXPECT_EQ(FileBytes(File("salary_review_0101_0116_2003.txt")), Golden("review.txt"));

    const auto records = New<CReportEmployee>();
    EXPECT_FALSE(records->GenerateReport(ListOf({nullptr, ann, nullptr, zorn})));
    EXPECT_EQ(records->ErrorNumber(), 710);
    EXPECT_EQ(FileBytes(File("employee_records.txt")), Golden("employee_records.txt"));

    const auto book = New<CReportPhoneBook>();
    EXPECT_FALSE(book->GenerateReport(ListOf({ann, nullptr, zorn})));
    EXPECT_EQ(book->ErrorNumber(), 710);
    EXPECT_TRUE(viewers.made.back()->shown);
}

TEST_F(ReportFaultsTest, AReviewIsOfOneMomentAndTellsWhomItLeavesOut)
{
    AddShifts();
    ASSERT_TRUE(database->ExecuteAction("UPDATE TimeRecord SET EndTime = '2003-01-06 late' WHERE EmployeeID = 2;"));
    const auto review = New<CReportReview>();
    review->Progress([&](std::int32_t done, std::int32_t) {
        CJetDB other(folder.Path());
        EXPECT_FALSE(done == 1 && other.OpenDB()) << "somebody else's turn between two cards";
        return true;
    });
    EXPECT_FALSE(review->GenerateReport(database, ListOf({jose, ann, zorn, jose}), first, last));
    EXPECT_EQ(review->ErrorNumber(), 710);
    EXPECT_EQ(review->Missing(),
              "without " + jose->DisplayName() + ", " + jose->DisplayName() +
                  ": there are no time records in this period; without Zorn: TimeRecord 6: EndTime is \"2003-01-06 late\" "
                  "(Type mismatch)");

    CJetDB other(folder.Path());
    ASSERT_TRUE(other.OpenDB());
    review->Progress(nullptr);
    EXPECT_FALSE(review->GenerateReport(database, ListOf({ann, zorn}), first, last));
    EXPECT_EQ(review->Missing(), "without Ann Lee, Zorn: the database is in use by another program");
    const auto card = New<CReportTimeCard>();
    EXPECT_FALSE(card->GenerateReport(database, ann, first, last));
    EXPECT_EQ(card->ErrorNumber(), 605);
    EXPECT_EQ(card->Missing(), "the database is in use by another program");
}

TEST_F(ReportFaultsTest, ACancelledReviewSaysSo)
{
    AddShifts();
    WriteBytes(File("salary_review_0101_0116_2003.txt"), "an earlier review");
    const auto report = New<CReportReview>();
    std::vector<std::pair<std::int32_t, std::int32_t>> calls;
    report->Progress([&](std::int32_t done, std::int32_t total) {
        calls.emplace_back(done, total);
        return done < 1;
    });
    EXPECT_FALSE(report->GenerateReport(database, ListOf({ann, jose, zorn}), first, last));
    EXPECT_EQ(report->ErrorNumber(), 711);
    EXPECT_EQ(calls, (std::vector<std::pair<std::int32_t, std::int32_t>>{{0, 3}, {1, 3}}));
    const std::string golden = Golden("review.txt");
    const std::string ended = golden.substr(0, golden.find("\tGross Pay: \t\t\t194.58")) + "\tGross Pay: \t\t\t194.58\r\n\r\n" +
                              std::string(72, '-') + "\r\n\r\nCancelled after 1 of 3 employees.\r\n";
    EXPECT_EQ(viewers.made.back()->text, ended);
    EXPECT_EQ(FileBytes(File("salary_review_0101_0116_2003.txt")), "an earlier review");

    report->Progress(nullptr);
    EXPECT_FALSE(report->GenerateReport(database, ListOf({ann, jose, zorn}), first, last));
    EXPECT_EQ(report->ErrorNumber(), 710);
    EXPECT_EQ(FileBytes(File("salary_review_0101_0116_2003.txt")), golden);
}

TEST_F(ReportFaultsTest, GeneratingAgainStartsAfresh)
{
    AddShifts();
    const auto report = New<CReportTimeCard>();
    EXPECT_FALSE(report->GenerateReport(database, jose, first, last));
    EXPECT_TRUE(report->GenerateReport(database, ann, first, last));
    EXPECT_EQ(report->ErrorNumber(), 0);
    EXPECT_EQ(report->ReportName(), "Employee Time Card : Ann Lee : 1/1/2003 - 1/15/2003");
    ASSERT_EQ(viewers.made.size(), 2U);
    EXPECT_EQ(viewers.made[0]->unloads, 1);
    EXPECT_EQ(viewers.made[1]->text, Golden("time_card.txt"));
    EXPECT_TRUE(owner.calls.empty());
}

TEST_F(ReportFaultsTest, ClosingAViewerTellsTheOneMemberOfItsReport)
{
    const auto reports = AllFive();
    for (const auto& report : reports) {
        EXPECT_TRUE(report->UnloadReportWindow());
    }
    EXPECT_EQ(owner.calls, (std::vector<std::string>{"time card", "review", "year to date", "employees", "phone book"}));
    EXPECT_EQ(viewers.kinds, (std::vector<ReportKind>{ReportKind::TimeCard, ReportKind::Review, ReportKind::YTDTotals, ReportKind::Employee,
                                                      ReportKind::PhoneBook}));
    for (const auto& viewer : viewers.made) {
        EXPECT_EQ(viewer->unloads, 1);
    }
}

TEST_F(ReportFaultsTest, AReportLivesAsLongAsItsViewer)
{
    auto report = Records(true);
    const std::weak_ptr<Report> watch = report;
    report = nullptr;
    EXPECT_FALSE(watch.expired()) << "the viewer holds it";
    viewers.made.back()->controller->UnloadReportWindow();
    EXPECT_TRUE(watch.expired());
}

TEST_F(ReportFaultsTest, PrintsTheFileAndTellsWhenItIsGone)
{
    struct Case
    {
        const char* name;
        std::int32_t shellCode;
        bool printed;
        std::size_t boxes;
    };
    const auto reports = AllFive();
    for (const Case& c : {Case{"taken over", 33, true, 0}, Case{"just not a success", 32, false, 0}, Case{"no printer", 31, false, 0},
                          Case{"file deleted meanwhile", 2, false, 1}}) {
        SCOPED_TRACE(c.name);
        for (const auto& report : reports) {
            desktop.shellCodes = {c.shellCode};
            desktop.boxes.clear();
            EXPECT_EQ(report->PrintReport(), c.printed);
            ASSERT_EQ(desktop.boxes.size(), c.boxes);
            for (const auto& box : desktop.boxes) {
                EXPECT_EQ(box.text, "The path to the report is invalid or not able to be opened by Windows.");
                EXPECT_EQ(box.title, "User's Guide Open Error");
                EXPECT_EQ(box.icon, Icon::Exclamation);
            }
        }
    }
    EXPECT_EQ(desktop.requests[0].verb, ShellVerb::Print);
    EXPECT_EQ(desktop.requests[0].path, File("5_0101_0116_2003_time_card.txt").string());
    EXPECT_EQ(reports[0]->ErrorNumber(), 0);
}

} // namespace

} // namespace ptk
