// The history as the window shows and saves it, and what a card says of its records.
#include "office/history/History.h"
#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecordFactory.h"
#include "office/history/HistoryFile.h"
#include "office/history/HistoryPages.h"
#include "office/history/HistoryReading.h"
#include "office/history/HistoryScope.h"
#include "office/history/RecordEdits.h"
#include "platform/text/Text.h"
#include "reports/forms/ReportDocument.h"
#include "store/CJetDB.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/DatabaseCreator.h"
#include "support/Execute.h"
#include "support/Failures.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace ptk {

namespace {

class HistoryTest : public testing::Test
{
protected:
    HistoryTest()
    {
        CreateDatabase(Path());
        m_database->DatabaseName(Path());
        Elsewhere("INSERT INTO Employee (FirstName, LastName) VALUES ('Ann', 'Lee')");                  // 40
        Elsewhere("INSERT INTO TimeRecord (EmployeeID, StartTime) VALUES (40, '2003-03-05 08:00:00')"); // 1
        Elsewhere("INSERT INTO TimeRecord (EmployeeID, StartTime) VALUES (40, '2003-03-06 08:00:00')"); // 2
        Elsewhere("UPDATE TimeRecord SET EndTime = '2003-03-05 17:00:00' WHERE TimeRecordID = 1");
    }

    std::string Path() const { return m_folder.Path() + "/system/ptk_11.mdb"; }
    void Elsewhere(const std::string& sql) const { ExecuteIn(Path(), sql); }

    void By(const char* person, const std::string& sql, const char* program = "ptk-admin")
    {
        m_database->StoredBy({person, program});
        ASSERT_TRUE(m_database->ExecuteAction(sql)) << m_database->LastFailure().Description();
    }

    // As if at six, so that all is known.
    void Date() const { Elsewhere("UPDATE _Change SET ChangedAt = '2003-03-07 18:00:00'"); }

    std::shared_ptr<const EmployeeNames> Names() const
    {
        auto names = std::make_shared<EmployeeNames>(m_database);
        names->LearnGone(m_database);
        return names;
    }

    std::string Table(const TrailQuery& query) const
    {
        HistoryReading reading(m_database, query, Names());
        while (!reading.IsDone()) {
            reading.ReadOn();
        }
        return TabSeparated(reading.Rows());
    }

    TemporaryFolder m_folder;
    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_folder.Path());
};

TEST_F(HistoryTest, ACardTellsWhatWasEnteredOrChangedByHand)
{
    By("Ann Lee", "UPDATE TimeRecord SET EndTime = #3/5/2003 6:00 PM# WHERE TimeRecordID = 1");
    By("Bob Ray", "UPDATE TimeRecord SET EndTime = #3/5/2003 7:00 PM# WHERE TimeRecordID = 1");
    By("Bob Ray", "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 40, #3/7/2003 8:00 AM#, #3/7/2003 9:00 AM#");   // 3
    Elsewhere("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 40, '2003-03-08 08:00:00', '1899-12-30 00:00:00'"); // 4
    Elsewhere("UPDATE TimeRecord SET EndTime = '2003-03-08 17:00:00' WHERE TimeRecordID = 4");
    Elsewhere("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 40, '2003-03-09 08:00:00', '2003-03-09 09:00:00'"); // 5
    Elsewhere("UPDATE TimeRecord SET EndTime = '2003-03-09 17:00:00' WHERE TimeRecordID = 5");
    By("Cy", "UPDATE TimeRecord SET StartTime = #3/7/2003 7:00 AM# WHERE TimeRecordID = 3");
    Date();
    EmployeeRow row;
    row.EmployeeID = 40;
    const auto factory = std::make_shared<CTimeRecordFactory>();
    factory->PTKDatabase(m_database);
    CTimeCard card(factory);
    card.PTKDatabase(m_database);
    ASSERT_TRUE(card.GenerateTimecard(std::make_shared<CEmployee>(row), ToDateTime("3/1/2003"), ToDateTime("3/20/2003")));
    EXPECT_EQ(ReadRecordEdits(m_database, card),
              (RecordEdits{{1, "Changed by Bob Ray on 03/07/2003 06:00 PM"},
                           {3, "Added by Bob Ray on 03/07/2003 06:00 PM\nChanged by Cy on 03/07/2003 06:00 PM"},
                           {5, "Changed by another program on 03/07/2003 06:00 PM"}}));
}

TEST_F(HistoryTest, ATableSaysInPlainWordsWhoDidWhat)
{
    By("Ann Lee", "UPDATE TimeRecord SET EndTime = #3/5/2003 6:00 PM# WHERE TimeRecordID = 1");
    By("root", "UPDATE Employee SET FirstName = '=A' || char(9) WHERE EmployeeID = 40", "ptk-console");
    By("Bob Ray", "INSERT INTO Company (Name) VALUES ('Ltd')");
    Elsewhere("DELETE FROM Employee WHERE EmployeeID = 40");
    Elsewhere("INSERT INTO _Change (ChangedAt, Action, After) VALUES ('', 'restore', '{\"file\":\"a.mdb\"}')");
    Elsewhere("UPDATE _Change SET ChangedAt = '2003-03-07 18:00:09' WHERE ChangedAt <> ''");
    TrailQuery query;
    query.newerThan = 4;
    EXPECT_EQ(Table(query), "\tanother program\t\tDatabase restored from a.mdb\n"
                            "03/07/2003 06:00:09 PM\tanother program\t'=A? Lee\temployee deleted\n"
                            "03/07/2003 06:00:09 PM\tBob Ray\t\tCompany 1: \"Ltd\" added\n"
                            "03/07/2003 06:00:09 PM\troot (ptk-console)\t'=A? Lee\tfirst name \"Ann\" became \"=A?\"\n"
                            "03/07/2003 06:00:09 PM\tAnn Lee\t'=A? Lee\tend 03/05/2003 05:00 PM became 03/05/2003 06:00 PM\n");
    EXPECT_EQ(Names()->Gone(), std::vector<std::int64_t>{40});
}

TEST_F(HistoryTest, ACardAsksForARecordOrForItsDays)
{
    By("Bob Ray", "UPDATE TimeRecord SET StartTime = #3/20/2003#, EndTime = #3/20/2003 1:00 AM# WHERE TimeRecordID = 1");
    By("Bob Ray", "UPDATE TimeRecord SET EmployeeID = 39 WHERE TimeRecordID = 2");
    const PayPeriod period{ToDateTime("3/5/2003"), ToDateTime("3/5/2003")};
    const auto count = [&](const HistoryScope& scope) {
        TrailQuery query;
        query.employee = 40;
        Narrow(query, scope);
        return ReadTrail(m_database, query).size();
    };
    const HistoryScope record{39, period, 2, ToDateTime("3/6/2003 8:00 AM")};
    EXPECT_EQ(ScopeText(record), "Only the record of 03/06/2003 08:00 AM");
    EXPECT_EQ(count(record), 2U) << "also while it was another's";
    const HistoryScope days{40, period, {}, {}};
    EXPECT_EQ(ScopeText(days), "Only what counts for 03/05/2003 - 03/05/2003");
    EXPECT_EQ(count(days), 4U) << "the employee, and all three changes of the record that was there";
}

TEST_F(HistoryTest, IsReadAndSavedPageByPage)
{
    const std::string path = m_folder.Path() + "/history.csv";
    Elsewhere("WITH RECURSIVE Day (d) AS (SELECT 1 UNION ALL SELECT d + 1 FROM Day WHERE d < 1000) INSERT INTO TimeRecord (EmployeeID, "
              "StartTime) SELECT 40, datetime('2000-01-01', d || ' days') FROM Day");
    HistoryReading reading(m_database, {}, Names());
    reading.ReadOn();
    EXPECT_EQ(HistoryNews(reading.Rows().size(), !reading.IsDone()), "The newest 250 changes; older ones follow as you scroll down");
    HistoryFile file(path, ReportForm::Csv, {}, m_database, {}, Names());
    file.WriteOn();
    EXPECT_FALSE(file.IsDone() || std::filesystem::exists(path));
    Elsewhere("DELETE FROM TimeRecord WHERE TimeRecordID = 1002");
    while (!reading.IsDone()) {
        reading.ReadOn();
    }
    EXPECT_EQ(reading.Rows().size(), 1004U) << "the deletion came later";
    {
        CJetDB holder(m_folder.Path());
        holder.DatabaseName(Path());
        ASSERT_TRUE(holder.OpenDB());
        EXPECT_EQ(FailureOf([&] { file.WriteOn(); }), 5);
    }
    file.WriteOn();
    ASSERT_TRUE(file.IsDone());
    EXPECT_EQ(file.Written(), 1004);
    TrailQuery query;
    query.olderThan = 1005;
    EXPECT_EQ(ReadBytes(path), "\xEF\xBB\xBF" + HistoryIn(ReportForm::Csv, m_database, query));
    EXPECT_EQ(FailureOf([&] { HistoryFile(m_folder.Path() + "/nowhere/history.csv", ReportForm::Csv, {}, m_database, {}, Names()); }), 76);
    const std::string pages = m_folder.Path() + "/history.pdf";
    HistoryFile asPages(pages, ReportForm::Pdf, ToDateTime("3/5/2003"), m_database, {}, Names());
    asPages.WriteOn();
    asPages.WriteOn();
    EXPECT_TRUE(asPages.IsDone() && ReadBytes(pages).starts_with("%PDF-"));
    EXPECT_EQ(HistoryFileName(ToDateTime("3/5/2003")), "PTK history 2003-03-05");
}

TEST(HistoryPagesTest, AreATableOfWhichNoMoreIsKeptThanAPdfDocumentHolds)
{
    HistoryPages pages;
    pages.Add({"03/07/2003 06:00:00 PM", "Zo\xC3\xAB (ptk-console)", "Ann Lee", "employee deleted"});
    pages.Add({"", "\xE5\x8D\x9A", "", "Options: period length 14 became 7"});
    const ReportDocument document = pages.Document();
    std::string printed;
    for (const ReportLine& line : document.lines) {
        printed += line.text + "\n";
    }
    EXPECT_EQ(printed, "When                    Who                What\n\n"
                       "03/07/2003 06:00:00 PM  Zo\xC3\xAB (ptk-console)  Ann Lee: employee deleted\n"
                       "                        \xE5\x8D\x9A                  Options: period length 14 became 7\n"
                       "\n2 changes\n");
    for (int row = 2; row < 10000; ++row) {
        pages.Add({});
    }
    EXPECT_EQ(FailureOf([&] { pages.Add({}); }), 6);
}

} // namespace

} // namespace ptk
