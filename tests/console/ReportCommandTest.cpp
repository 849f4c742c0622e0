#include "console/ConsoleFixture.h"

#include "store/CJetDB.h"
#include "support/Hardship.h"

#include <filesystem>
#include <map>

namespace ptk {

namespace {

// On the sample business at 3/20/2026: the offered pay period is 3/15 to 3/29.
class ReportCommandTest : public ConsoleTest
{
protected:
    void SetUp() override { ASSERT_EQ(Run({"create-database", "--sample"}).status, 0); }

    std::string Report(const std::string& name) const { return ReadBytes((Folder() / "reports" / name).string()); }

    // What `err` says of the files written, in order.
    std::string Written(const std::vector<std::string>& names) const
    {
        std::string lines;
        for (const std::string& name : names) {
            lines += "ptk-console: written: " + (Folder() / "reports" / name).string() + "\n";
        }
        return lines;
    }

    static std::string WithLineFeeds(std::string text)
    {
        std::erase(text, '\r');
        return text;
    }
};

TEST_F(ReportCommandTest, WritesEachReportForTheTabsEmployeesAndDates)
{
    struct Case
    {
        std::vector<std::string> words;
        const char* file;
        const char* title;
    };
    for (const Case& c : {
             Case{{"timecard", "--employee", "Ann Lee"},
                  "101_0315_0329_2026_time_card.txt",
                  "Employee Time Card : Ann Lee : 3/15/2026 - 3/28/2026"},
             Case{{"review"}, "salary_review_0315_0329_2026.txt", "Accountant's Review : 3/15/2026 - 3/29/2026"},
             Case{{"ytd", "--employee", "Ann Lee"},
                  "101_0101_0320_2026_ytd_totals.txt",
                  "Employee Year-To-Date Totals : Ann Lee : 1/1/2026 - 3/20/2026"},
             Case{{"employees"}, "employee_records.txt", "Employee Records"},
             Case{{"phonebook"}, "phone_book.txt", "Employee Phone Book"},
         }) {
        SCOPED_TRACE(c.words.front());
        std::vector<std::string> words{"report"};
        words.insert(words.end(), c.words.begin(), c.words.end());
        const Answer answer = Run(words);
        EXPECT_EQ(answer.status, 0);
        EXPECT_EQ(answer.err, Written({c.file}));
        EXPECT_TRUE(answer.out.starts_with(std::string(c.title) + "\n")) << answer.out.substr(0, 100);
        EXPECT_EQ(answer.out, WithLineFeeds(Report(c.file)));
    }
    for (const char* text : {"Peter", "administrator"}) { // neither is offered on the page
        EXPECT_EQ(Report("employee_records.txt").find(text), std::string::npos) << text;
    }
}

TEST_F(ReportCommandTest, TakesTheDatesGivenAndMovesTheEndWithTheStart)
{
    EXPECT_EQ(Run({"report", "review", "--employee", "Ann Lee", "--from", "3/1"}).err, Written({"salary_review_0301_0315_2026.txt"}));
    EXPECT_EQ(Run({"report", "ytd", "--employee", "Ann Lee", "--from", "2-1", "--to", "2026-03-01"}).err,
              Written({"101_0201_0301_2026_ytd_totals.txt"}));
}

TEST_F(ReportCommandTest, KeepsTheOrderAndAnEmptyLineBetweenReports)
{
    const Answer answer = Run({"report", "timecard", "--employee", "Yuki Tanaka", "--employee", "Ann Lee"});
    EXPECT_EQ(answer.status, 0);
    EXPECT_EQ(answer.err, Written({"201_0315_0329_2026_time_card.txt", "101_0315_0329_2026_time_card.txt"}));
    EXPECT_EQ(answer.out, WithLineFeeds(Report("201_0315_0329_2026_time_card.txt") + "\n" + Report("101_0315_0329_2026_time_card.txt")));
}

TEST_F(ReportCommandTest, AFailedReportIsToldAndTheOthersStillCome)
{
    const Answer answer = Run({"report", "timecard", "--employee", "Peter Lindqvist", "--employee", "Ann Lee"});
    EXPECT_EQ(answer.status, 1);
    EXPECT_EQ(answer.err, Written({"106_0315_0329_2026_time_card.txt"}) +
                              "ptk-console: 605: there are no time records in this period: "
                              "Employee Time Card : Peter Lindqvist : 3/15/2026 - 3/28/2026\n" +
                              Written({"101_0315_0329_2026_time_card.txt"}));

    const Answer unknown = Run({"report", "ytd", "--employee", "Ann Lee", "--employee", "Nobody"});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_EQ(unknown.err, "ptk-console: 602: no employee has this name: Nobody\n");
    EXPECT_EQ(unknown.out, "");
}

TEST_F(ReportCommandTest, WhoseFileWasReplacedIsTold)
{
    CJetDB database(m_folder.Path());
    ASSERT_TRUE(database.ExecuteAction("UPDATE Employee SET EmployeeNumber = 101 WHERE LastName = 'Tanaka'"));
    const std::vector<std::string> words{"report", "timecard", "--employee", "Ann Lee", "--employee", "Yuki Tanaka"};
    const std::string file = "101_0315_0329_2026_time_card.txt";
    const std::string told = "ptk-console: the report of Yuki Tanaka took the place of that of Ann Lee, who has the same number\n";
    const Answer answer = Run(words);
    EXPECT_EQ(answer.status, 3);
    EXPECT_EQ(answer.err, Written({file, file}) + told);
}

TEST_F(ReportCommandTest, OneFileTakesAllReportsOfARun)
{
    const std::string file = Folder().string() + "/all";
    const auto run = [&](const std::string& format, const std::string& output) {
        return Run({"report", "timecard", "--employee", "Yuki Tanaka", "--employee", "Ann Lee", "--format", format, "-o", output});
    };
    const std::vector<std::string> names{"201_0315_0329_2026_time_card.txt", "101_0315_0329_2026_time_card.txt"};
    for (const auto& [format, start] : std::map<std::string, std::string>{{"text", Report(names[0])},
                                                                          {"csv", "\xEF\xBB\xBF"
                                                                                  "Employee Number,"},
                                                                          {"json", "{\"made\":\"2026-03-20T09:30:00\","},
                                                                          {"pdf", "%PDF-"}}) {
        WriteBytes(file, "an earlier one");
        const Answer answer = run(format, file);
        EXPECT_EQ(answer.status, 0);
        EXPECT_EQ(answer.out, "");
        EXPECT_EQ(answer.err, Written(names) + "ptk-console: written: " + file + "\n");
        EXPECT_TRUE(ReadBytes(file).starts_with(start)) << format;
    }
    EXPECT_EQ(run("text", file).status, 0);
    EXPECT_EQ(ReadBytes(file), Report(names[0]) + "\r\n" + Report(names[1]));

    const Answer nowhere = run("csv", Folder().string() + "/none/file");
    EXPECT_EQ(nowhere.status, 1);
    EXPECT_EQ(nowhere.err, Written(names) + "ptk-console: 76: Path not found: " + Folder().string() + "/none/file\n");
    EXPECT_EQ(run("csv", "").status, 2);
    EXPECT_EQ(run("xml", file).status, 2);

    const Answer incomplete = Run({"report", "timecard", "--employee", "Peter Lindqvist", "--format", "json", "-o", file});
    EXPECT_EQ(incomplete.status, 1);
    EXPECT_NE(incomplete.err.find("ptk-console: 605: "), std::string::npos);
    EXPECT_NE(ReadBytes(file).find("\"complete\":false,\"missing\":null,\"rows\":[]"), std::string::npos);
}

TEST_F(ReportCommandTest, AnUnreadableRecordIsNamedAndWhomItLeavesOut)
{
    CJetDB database(m_folder.Path());
    ASSERT_TRUE(
        database.ExecuteAction("UPDATE TimeRecord SET EndTime = '2026-03-16 4 pm' WHERE EmployeeID = (SELECT EmployeeID FROM Employee "
                               "WHERE LastName = 'Lee') AND StartTime > '2026-03-16' AND StartTime < '2026-03-17'"));
    const std::vector<std::string> period{"--from", "3/15/2026", "--to", "3/28/2026", "--employee", "Ann Lee"};
    const auto failed = [&](std::vector<std::string> words) {
        words.insert(words.end(), period.begin(), period.end());
        const Answer answer = Run(words);
        EXPECT_EQ(answer.status, 1);
        const std::size_t failure = answer.err.rfind("ptk-console: ");
        return answer.err.substr(failure, answer.err.find(" TimeRecord ", failure) - failure);
    };
    EXPECT_EQ(failed({"time-card"}), "ptk-console: 605: the time records could not be read: Ann Lee:");
    EXPECT_EQ(failed({"report", "timecard"}),
              "ptk-console: 605: the time records could not be read: Employee Time Card : Ann Lee : 3/15/2026 - 3/27/2026:");
    EXPECT_EQ(failed({"report", "review"}), "ptk-console: 710: a time card or another part of the report is missing from it: Accountant's "
                                            "Review : 3/15/2026 - 3/28/2026: without Ann Lee:");
}

TEST_F(ReportCommandTest, AFileThatCannotBeWrittenWholeIsAFailure)
{
    {
        const FullDisk disk(100);
        const Answer full = Run({"report", "phonebook"});
        EXPECT_EQ(full.status, 1);
        EXPECT_EQ(full.err, "ptk-console: 702: a line of the report could not be written to its file: Employee Phone Book\n");
        EXPECT_TRUE(std::filesystem::is_empty(Folder() / "reports"));
    }
    std::filesystem::remove_all(Folder() / "reports");
    const Answer missing = Run({"report", "employees"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_TRUE(missing.err.starts_with("ptk-console: 503: ")) << missing.err;
    EXPECT_EQ(missing.out, "");
}

TEST_F(ReportCommandTest, TheDatesOfReportsNeedTheOptions)
{
    CJetDB database(m_folder.Path());
    ASSERT_TRUE(database.ExecuteAction("DELETE FROM _System"));
    const Answer review = Run({"report", "review"});
    EXPECT_EQ(review.status, 1);
    EXPECT_TRUE(review.err.starts_with("ptk-console: 3021: ")) << review.err;
    EXPECT_EQ(Run({"report", "employees"}).status, 0);
}

} // namespace

} // namespace ptk
