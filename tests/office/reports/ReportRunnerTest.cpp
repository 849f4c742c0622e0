#include "office/reports/ReportRunner.h"

#include "reports/ReportFixture.h"

namespace ptk {

namespace {

// Listed: Ann Lee and Zorn, who have shifts, José Ünsal, who has none, and the administrator.
class ReportRunnerTest : public ReportTest, private ReportClient
{
protected:
    void SetUp() override
    {
        ReportTest::SetUp();
        AddShifts();
    }

    // What the client is told, a line each: "TITLE: OUTCOME" of a report, after a "!" where it is not complete; what is said in brackets.
    // `most`: how many employees the client lets pass.
    std::string Run(ReportKind kind, const std::vector<std::string>& names, std::int32_t most = 99)
    {
        m_told.clear();
        m_most = most;
        RunReports({EntryOf(kind), database, ListOf({ann, jose, zorn, Named(39, "", "administrator")}), names, first, to}, *this);
        return m_told;
    }

    Value to = last;

private:
    std::shared_ptr<Report> NewReport(const ReportEntry& entry) override { return New(entry.kind); }
    bool GoOn(std::int32_t done) override { return done < m_most; }
    void Say(const std::string& outcome) override { m_told += "[" + outcome + "]\n"; }
    void Made(Report& report, bool complete, const std::string& outcome) override
    {
        m_told += (complete ? "" : "!") + report.ReportName() + ": " + outcome + "\n";
    }

    void Replaced(const std::string& sentence) override { m_told += "(" + sentence + ")\n"; }

    std::string m_told;
    std::int32_t m_most = 0;
};

TEST_F(ReportRunnerTest, MakesOneForEach)
{
    EXPECT_EQ(Run(ReportKind::TimeCard, {"Zorn", "José Ünsal", "Ann Lee"}),
              "Employee Time Card :  Zorn : 1/1/2003 - 1/15/2003: 1 report written\n"
              "!Employee Time Card : José Ünsal : 1/1/2003 - 1/15/2003: The report is not complete: error 605\n"
              "Employee Time Card : Ann Lee : 1/1/2003 - 1/15/2003: 1 report written\n"
              "[2 of 3 reports complete, 1 failed]\n");
    EXPECT_EQ(Run(ReportKind::TimeCard, {"Zorn", "Ann Lee"}, 1), "Employee Time Card :  Zorn : 1/1/2003 - 1/15/2003: 1 report written\n"
                                                                 "[Cancelled: 1 of 2 reports written]\n");
    EXPECT_EQ(Run(ReportKind::TimeCard, {}), "[Nobody is selected]\n");
    EXPECT_EQ(Run(ReportKind::TimeCard, {"Nobody"}),
              "!Employee Time Card : : The report was not written: error 602\n[0 of 1 report complete, 1 failed]\n");
    EXPECT_EQ(Run(ReportKind::YTDTotals, {"José Ünsal"}),
              "!Employee Year-To-Date Totals : José Ünsal : 1/1/2003 - 1/16/2003: The report is not complete: error 710, there are no time "
              "records in this period\n[0 of 1 report complete, 1 failed: there are no time records in this period]\n");
    to = "next week";
    EXPECT_EQ(Run(ReportKind::YTDTotals, {"Zorn"}),
              "!Employee Year-To-Date Totals : : The report was not written: error 603\n[0 of 1 report complete, 1 failed]\n");
}

// Who is chosen twice replaces nobody's.
TEST_F(ReportRunnerTest, TellsWhoseFileWasReplaced)
{
    zorn->EmployeeNumber(ann->EmployeeNumber());
    EXPECT_EQ(Run(ReportKind::TimeCard, {"Ann Lee", "Ann Lee", "Zorn"}),
              "Employee Time Card : Ann Lee : 1/1/2003 - 1/15/2003: 1 report written\n"
              "Employee Time Card : Ann Lee : 1/1/2003 - 1/15/2003: 1 report written\n"
              "Employee Time Card :  Zorn : 1/1/2003 - 1/15/2003: 1 report written\n"
              "(the report of Zorn took the place of that of Ann Lee, who has the same number)\n"
              "[3 reports written; the report of Zorn took the place of that of Ann Lee, who has the same number]\n");
}

TEST_F(ReportRunnerTest, MakesOneForAllAndSaysItFirst)
{
    EXPECT_EQ(Run(ReportKind::Review, {"Zorn", "Ann Lee"}),
              "[1 report written]\nAccountant's Review : 1/1/2003 - 1/16/2003: 1 report written\n");
    EXPECT_EQ(Run(ReportKind::Review, {"Zorn", "Ann Lee", "Zorn"}, 2),
              "[Cancelled after 2 of 3 employees]\n!Accountant's Review : 1/1/2003 - 1/16/2003: Cancelled after 2 of 3 employees\n");
    EXPECT_EQ(Run(ReportKind::Employee, {}), "[Nobody is selected: the report written is empty]\n"
                                             "Employee Records: Nobody is selected: the report written is empty\n");
    EXPECT_EQ(Run(ReportKind::PhoneBook, {"Zorn", "administrator", "Ann Lee"}),
              "[1 report written]\nEmployee Phone Book: 1 report written\n");
    const std::string& book = viewers.made.back()->text;
    EXPECT_NE(book.find("Zorn                                    Lee, Ann\r\n"), std::string::npos);
    EXPECT_EQ(book.find("administrator"), std::string::npos);
    std::filesystem::remove_all(File(""));
    EXPECT_EQ(Run(ReportKind::PhoneBook, {"Zorn"}), "[The report was not written: error 503]\n"
                                                    "!Employee Phone Book: The report was not written: error 503\n");
}

} // namespace

} // namespace ptk
