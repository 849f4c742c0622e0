// What goes wrong around a report, its codes, and the life of a report and its viewer.
#include "reports/ReportFixture.h"

#include "model/CTimeCard.h"
#include "reports/CReportTimeCard.h"
#include "support/Hardship.h"

#include <functional>

namespace ptk {

namespace {

using Makes = RememberingViewers::Makes;
using enum ReportKind;

constexpr auto kRecords = "employee_records.txt";
constexpr auto kReview = "salary_review_0101_0116_2003.txt";

class ReportFaultsTest : public ReportTest
{
protected:
    std::shared_ptr<Report> Records(bool expected)
    {
        auto report = New(Employee);
        EXPECT_EQ(report->Generate(Of({ann, zorn})), expected);
        return report;
    }

    // The number that a report of this kind, which is kept as `failed`, refuses the request with or leaves for what it lacks.
    std::int32_t ErrorOf(ReportKind kind, const ReportRequest& request)
    {
        failed = New(kind);
        EXPECT_FALSE(failed->Generate(request));
        return failed->ErrorNumber();
    }

    // One of each kind, generated well.
    std::vector<std::shared_ptr<Report>> AllKinds()
    {
        AddShifts();
        std::vector<std::shared_ptr<Report>> reports;
        for (const ReportEntry& entry : ReportCatalog()) {
            reports.push_back(New(entry.kind));
            EXPECT_TRUE(reports.back()->Generate(Of({ann})));
        }
        return reports;
    }

    std::shared_ptr<Report> failed;
};

TEST_F(ReportFaultsTest, RefusesMissingArguments)
{
    const Value noDate("abc");
    EXPECT_EQ(ErrorOf(TimeCard, {database, nullptr, nullptr, noDate, last}), 603) << "nor an employee";
    EXPECT_EQ(ErrorOf(TimeCard, {database, ann, nullptr, first, ""}), 603);
    EXPECT_EQ(ErrorOf(TimeCard, {database, nullptr, nullptr, first, last}), 602);
    EXPECT_EQ(ErrorOf(TimeCard, {database, ann, nullptr, first, DateTime({100, 1, 1})}), 710) << "there is no day before the last";
    EXPECT_EQ(ErrorOf(YTDTotals, {database, nullptr, nullptr, noDate, last}), 603) << "nor an employee";
    EXPECT_EQ(ErrorOf(YTDTotals, {database, nullptr, nullptr, first, last}), 602);
    EXPECT_EQ(ErrorOf(Review, {database, nullptr, nullptr, first, noDate}), 603) << "nor a list";
    EXPECT_EQ(ErrorOf(Review, {database, nullptr, nullptr, first, last}), 331);
    EXPECT_EQ(failed->ReportName(), "Accountant's Review : ");
    EXPECT_EQ(ErrorOf(Employee, {}), 705);
    EXPECT_EQ(ErrorOf(PhoneBook, {}), 704);
    CReportTimeCard form(Context());
    EXPECT_FALSE(form.WriteTimeCardReport(nullptr));
    EXPECT_EQ(form.ErrorNumber(), 706);
    EXPECT_FALSE(form.WriteTimeCardReport(std::make_shared<CTimeCard>(factory)));
    EXPECT_EQ(form.ErrorNumber(), 602) << "a card of nobody";
    EXPECT_TRUE(viewers.made.empty());
    EXPECT_TRUE(std::filesystem::is_empty(File("")));
}

TEST_F(ReportFaultsTest, NeedsItsFile)
{
    const std::string file = File(kRecords);
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
    EXPECT_EQ(ErrorOf(YTDTotals, Of({ann})), 503);
    const auto review = New(Review);
    review->Progress([](std::int32_t, std::int32_t) { return ADD_FAILURE() << "no card is made without a file", true; });
    EXPECT_FALSE(review->Generate(Of({ann})));
    EXPECT_EQ(review->ErrorNumber(), 503);
    EXPECT_TRUE(viewers.made.empty());
}

TEST_F(ReportFaultsTest, NeedsItsViewer)
{
    WriteBytes(File(kRecords), "an earlier report");
    for (const Makes makes : {Makes::None, Makes::Raises}) {
        viewers.makes = makes;
        EXPECT_EQ(Records(false)->ErrorNumber(), 701);
    }
    EXPECT_EQ(ReadBytes(File(kRecords)), "an earlier report");
}

TEST_F(ReportFaultsTest, LostLinesShowInTheErrorNumberOnly)
{
    viewers.makes = Makes::LosesLines;
    EXPECT_EQ(Records(true)->ErrorNumber(), 703);
    EXPECT_EQ(ReadBytes(File(kRecords)), Golden(kRecords));

    viewers.makes = Makes::Good;
    WriteBytes(File(kRecords), "an earlier report");
    const FullDisk full(200);
    const auto report = Records(true);
    EXPECT_EQ(report->ErrorNumber(), 702);
    EXPECT_EQ(viewers.made.back()->text, Golden(kRecords));
    EXPECT_TRUE(viewers.made.back()->shown);
    EXPECT_EQ(ReadBytes(File(kRecords)), "an earlier report") << "half a report does not replace it";
    EXPECT_FALSE(report->PrintReport()) << "nor is it printed for this one";
    EXPECT_TRUE(desktop.requests.empty());
    EXPECT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(File("")), {}), 1);
}

// Every line is lost to the viewer: what is met behind the last one counts, in the order of the lines.
TEST_F(ReportFaultsTest, OfSeveralFaultsTheLastOneIsTold)
{
    viewers.makes = Makes::LosesLines;
    EXPECT_EQ(ErrorOf(Review, Of({jose})), 703);
    EXPECT_EQ(ErrorOf(TimeCard, Of({jose})), 703);
    EXPECT_EQ(ErrorOf(YTDTotals, Of({jose})), 710) << "nothing follows";
    EXPECT_EQ(ErrorOf(Employee, Of({ann, nullptr})), 710) << "nothing follows";
    EXPECT_EQ(ErrorOf(Employee, Of({nullptr, ann})), 703);
    EXPECT_EQ(ErrorOf(PhoneBook, Of({ann, zorn, nullptr, ann})), 710) << "the report ends there";
}

TEST_F(ReportFaultsTest, IsAFileOfItsOwnForItsOwner)
{
    const std::string other = folder.Path() + "/system/other";
    WriteBytes(other, "of another");
    std::filesystem::create_symlink(other, File(kRecords));
    EXPECT_TRUE(Records(true)->FileWritten());
    EXPECT_EQ(ModeOf(File(kRecords)), 0600);
    EXPECT_EQ(ReadBytes(File(kRecords)), Golden(kRecords));
    EXPECT_EQ(ReadBytes(other), "of another");
}

TEST_F(ReportFaultsTest, AFormWithoutItsCardIsWritten)
{
    EXPECT_EQ(ErrorOf(TimeCard, {nullptr, ann, nullptr, first, last}), 710) << "no database";
    EXPECT_TRUE(viewers.made.back()->shown);
    EXPECT_TRUE(failed->FileWritten());
    EXPECT_EQ(ErrorOf(YTDTotals, Of({jose})), 710) << "never 605";
    EXPECT_EQ(ErrorOf(TimeCard, {database, ann, nullptr, first, DateTime({9999, 12, 31})}), 710) << "there is no day after";
    EXPECT_TRUE(ReadBytes(File("5_0101_1231_2003_time_card.txt")).ends_with("Date\r\n"));
}

TEST_F(ReportFaultsTest, SkipsEmployeesWhoAreNoMore)
{
    AddShifts();
    EXPECT_EQ(ErrorOf(Review, Of({ann, nullptr, zorn})), 710);
    EXPECT_EQ(ReadBytes(File(kReview)), Golden("review.txt"));
    EXPECT_EQ(ErrorOf(Employee, Of({nullptr, ann, nullptr, zorn})), 710);
    EXPECT_EQ(ReadBytes(File(kRecords)), Golden(kRecords));

    WriteBytes(File("phone_book.txt"), "an earlier book");
    EXPECT_EQ(ErrorOf(PhoneBook, Of({ann, zorn, ann, nullptr, ann})), 710);
    const std::string book = Golden("phone_book.txt");
    EXPECT_EQ(viewers.made.back()->text, book.substr(0, book.find("Featherstonehaugh"))) << "ends there, deliberately";
    EXPECT_TRUE(viewers.made.back()->shown);
    EXPECT_EQ(ReadBytes(File("phone_book.txt")), "an earlier book");
}

TEST_F(ReportFaultsTest, AReviewIsOfOneMomentAndTellsWhomItLeavesOut)
{
    AddShifts();
    ASSERT_TRUE(database->ExecuteAction("UPDATE TimeRecord SET EndTime = '2003-01-06 late' WHERE EmployeeID = 2;"));
    const auto review = New(Review);
    review->Progress([&](std::int32_t done, std::int32_t) {
        CJetDB other(folder.Path());
        EXPECT_FALSE(done == 1 && other.OpenDB()) << "somebody else's turn between two cards";
        return true;
    });
    EXPECT_FALSE(review->Generate(Of({jose, ann, zorn, jose})));
    EXPECT_EQ(review->ErrorNumber(), 710);
    EXPECT_EQ(review->Missing(), "without José Ünsal, José Ünsal: there are no time records in this period; without Zorn: TimeRecord 6: "
                                 "EndTime is \"2003-01-06 late\" (Type mismatch)");

    CJetDB other(folder.Path());
    ASSERT_TRUE(other.OpenDB());
    review->Progress(nullptr);
    EXPECT_FALSE(review->Generate(Of({ann, zorn})));
    EXPECT_EQ(review->Missing(), "without Ann Lee, Zorn: the database is in use by another program");
    EXPECT_EQ(ErrorOf(TimeCard, Of({ann})), 605);
    EXPECT_EQ(failed->Missing(), "the database is in use by another program");
    EXPECT_FALSE(failed->Generate({}));
    EXPECT_EQ(failed->Missing(), "") << "of the last generation only";
}

TEST_F(ReportFaultsTest, ACancelledReviewSaysSo)
{
    AddShifts();
    WriteBytes(File(kReview), "an earlier review");
    const auto report = New(Review);
    std::vector<std::pair<std::int32_t, std::int32_t>> calls;
    report->Progress([&](std::int32_t done, std::int32_t total) {
        calls.emplace_back(done, total);
        return done < 1;
    });
    EXPECT_FALSE(report->Generate(Of({ann, jose, zorn})));
    EXPECT_EQ(report->ErrorNumber(), 711);
    EXPECT_EQ(calls, (std::vector<std::pair<std::int32_t, std::int32_t>>{{0, 3}, {1, 3}}));
    const std::string golden = Golden("review.txt");
    const std::string ended = golden.substr(0, golden.find("-\r\n\r\n-") + 5); // until the rule of who has no card
    EXPECT_EQ(viewers.made.back()->text, ended + "Cancelled after 1 of 3 employees.\r\n");
    EXPECT_EQ(ReadBytes(File(kReview)), "an earlier review");

    report->Progress([](std::int32_t done, std::int32_t) { return done < 1 ? true : throw Failure(failure::OutOfMemory); });
    EXPECT_FALSE(report->Generate(Of({ann, jose, zorn})));
    EXPECT_EQ(report->ErrorNumber(), 710);
    EXPECT_EQ(viewers.made.back()->text, ended) << "what there was is shown";
    EXPECT_TRUE(viewers.made.back()->shown);
    EXPECT_EQ(ReadBytes(File(kReview)), "an earlier review");

    report->Progress(nullptr);
    EXPECT_FALSE(report->Generate(Of({ann, jose, zorn})));
    EXPECT_EQ(report->ErrorNumber(), 710);
    EXPECT_EQ(ReadBytes(File(kReview)), golden);
}

TEST_F(ReportFaultsTest, GeneratingAgainStartsAfresh)
{
    AddShifts();
    const auto report = New(TimeCard);
    EXPECT_FALSE(report->Generate(Of({jose})));
    EXPECT_TRUE(report->Generate(Of({ann})));
    EXPECT_EQ(report->ErrorNumber(), 0);
    EXPECT_EQ(report->ReportName(), "Employee Time Card : Ann Lee : 1/1/2003 - 1/15/2003");
    ASSERT_EQ(viewers.made.size(), 2U);
    EXPECT_EQ(viewers.made[0]->unloads, 1);
    EXPECT_EQ(viewers.made[1]->text, Golden("time_card.txt"));
    EXPECT_TRUE(owner.unloaded.empty());
}

TEST_F(ReportFaultsTest, ClosingAViewerTellsItsOwnerWhichReportItWas)
{
    for (const auto& report : AllKinds()) {
        EXPECT_TRUE(report->UnloadReportWindow());
    }
    std::vector<ReportKind> all;
    for (const ReportEntry& entry : ReportCatalog()) {
        all.push_back(entry.kind);
    }
    EXPECT_EQ(owner.unloaded, all);
    EXPECT_EQ(viewers.kinds, all);
    for (const auto& viewer : viewers.made) {
        EXPECT_EQ(viewer->unloads, 1);
    }
}

TEST_F(ReportFaultsTest, AReportLivesAsLongAsItsViewer)
{
    auto report = Records(true);
    const std::weak_ptr<Report> watch = report;
    report = nullptr;
    ASSERT_FALSE(watch.expired()) << "the viewer holds it";
    viewers.made.back()->controller->UnloadReportWindow();
    EXPECT_TRUE(watch.expired());
}

TEST_F(ReportFaultsTest, PrintsItsPagesAndTellsWhenTheirFileIsGone)
{
    struct Case
    {
        const char* name;
        std::int32_t shellCode;
        bool printed;
        std::size_t boxes;
    };
    const auto reports = AllKinds();
    for (const Case& c : {Case{"taken over", 33, true, 0}, Case{"just not a success", 32, false, 0}, Case{"no printer", 31, false, 0},
                          Case{"file deleted meanwhile", 2, false, 1}}) {
        SCOPED_TRACE(c.name);
        for (const auto& report : reports) {
            desktop.shellCodes = {c.shellCode};
            EXPECT_EQ(report->PrintReport(), c.printed);
            const ShownBox box{"The path to the report is invalid or not able to be opened by Windows.", "User's Guide Open Error",
                               Icon::Exclamation, Buttons::Ok};
            EXPECT_EQ(desktop.Take(), std::vector<ShownBox>(c.boxes, box));
        }
    }
    EXPECT_EQ(desktop.requests[0].verb, ShellVerb::Print);
    EXPECT_TRUE(desktop.requests[0].path.ends_with("/5_0101_0116_2003_time_card.pdf")) << desktop.requests[0].path;
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::path(desktop.requests[0].path).parent_path()));
    EXPECT_EQ(reports[0]->ErrorNumber(), 0);
}

TEST_F(ReportFaultsTest, ShowsItsPagesInAFileForItsOwnerAsLongAsTheViewerIsOpen)
{
    const auto report = Records(true);
    EXPECT_TRUE(report->OpenPages());
    ASSERT_EQ(desktop.requests.size(), 1U);
    EXPECT_EQ(desktop.requests[0].verb, ShellVerb::Open);
    const std::string path = desktop.requests[0].path;
    EXPECT_TRUE(path.ends_with("/employee_records.pdf")) << path;
    EXPECT_TRUE(ReadBytes(path).starts_with("%PDF-"));
    EXPECT_EQ(ModeOf(path), 0600);
    EXPECT_EQ(ModeOf(std::filesystem::path(path).parent_path()), 0700);

    desktop.shellCodes = {31};
    EXPECT_FALSE(report->OpenPages());
    EXPECT_TRUE(std::filesystem::exists(path)) << "what is open stays";
    report->UnloadReportWindow();
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::path(path).parent_path()));

    setenv("TMPDIR", "/proc/none", 1);
    EXPECT_FALSE(report->OpenPages());
    EXPECT_FALSE(report->PrintReport());
    EXPECT_NE(report->Refusal(), "") << "whatever the reason is, it is told";
    unsetenv("TMPDIR");
    EXPECT_EQ(desktop.requests.size(), 2U);
}

} // namespace

} // namespace ptk
