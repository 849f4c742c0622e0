#include "office/overview/Overview.h"

#include "model/CEmployeeList.h"
#include "model/check/FindingText.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecordFactory.h"
#include "office/card/CheckedTimecard.h"
#include "office/overview/OverviewReading.h"
#include "office/overview/OverviewTexts.h"
#include "platform/text/Text.h"
#include "reports/forms/ReportDocument.h"
#include "store/CJetDB.h"
#include "store/engine/Statement.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/BulkWriter.h"
#include "store/whole/DatabaseCreator.h"
#include "support/Execute.h"
#include "support/Failures.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

const PayPeriod kPeriod{ToDateTime("3/1/2026"), ToDateTime("3/14/2026")};
const DateTime kNow = ToDateTime("3/15/2026 12:00");

EmployeeRow Worker(const char* first, const char* last, std::int16_t lunch = 0)
{
    EmployeeRow row;
    row.FirstName = first;
    row.LastName = last;
    row.PayRate = 10;
    row.OvertimePayRate = 15;
    row.EmployeeActive = true;
    row.AutoDeduct = lunch != 0;
    row.AutoDeductLunchLength = lunch;
    return row;
}

Overview Empty()
{
    Overview overview;
    overview.period = kPeriod;
    overview.made = kNow;
    return overview;
}

class OverviewTest : public testing::Test
{
protected:
    OverviewTest()
    {
        CreateDatabase(Path(), [](BulkWriter& writer) {
            for (const EmployeeRow& row : {Worker("Ann", "Lee", 45), Worker("Ann", "Lee"), Worker("", "Zimmer"), Worker("No", "Hours")}) {
                writer.AddEmployee(row);
            }
        });
        m_database->DatabaseName(Path());
        m_employees->LoadList(m_database);
        m_factory->PTKDatabase(m_database);
        Add("'2026-03-02 08:00:59'", "'2026-03-02 17:45:00'", 40); // 9:45 less 0:45
        Add("'2026-03-03 08:00:00'", "'2026-03-03 08:20:00'", 40); // 0:20 less 0:45
        Add("'2026-03-02 08:00:00'", "'2026-03-02 12:20:00'", 41);
        Add("'2026-03-14 22:00:00'", "'2026-03-15 06:00:00'", 41);
        Add("'2026-03-02 08:00:00'", "'2026-03-02 16:00:00'", 42);
        Add("'2026-03-03 08:00:00'", "'17:30'", 42);
    }

    std::string Path() const { return m_folder.Path() + "/system/ptk_11.mdb"; }
    void Add(const std::string& start, const std::string& end, std::int32_t employee)
    {
        ExecuteIn(Path(), "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (" + std::to_string(employee) + ", " + start +
                              ", " + end + ")");
    }

    TemporaryFolder m_folder;
    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_folder.Path());
    std::shared_ptr<CEmployeeList> m_employees = std::make_shared<CEmployeeList>();
    std::shared_ptr<CTimeRecordFactory> m_factory = std::make_shared<CTimeRecordFactory>();
};

TEST(OfferedEmployeesTest, AreAllActiveOnesFromTheFirstToTheLast)
{
    EmployeeRow gone = Worker("Bo", "Brown");
    gone.EmployeeActive = false;
    CEmployeeList list;
    for (const EmployeeRow& row : {Worker("Ann", "Abel"), gone, Worker("", "administrator"), Worker("Cy", "Young")}) {
        list.Insert(std::make_shared<CEmployee>(row), list.Count() + 1);
    }
    EXPECT_EQ(OfferedEmployees(list), (Employees{list.Item(1), list.Item(4)}));
}

TEST_F(OverviewTest, ReadsOneRowAnOfferedEmployeeInTheListsOrder)
{
    Overview overview = Empty();
    std::string seen;
    EXPECT_TRUE(ReadOverview(overview, m_database, OfferedEmployees(*m_employees), [&](const OverviewRow& row) {
        seen += std::to_string(row.employee->EmployeeID()) + ": ";
        seen += row.figures ? row.figures->regular + " " + row.figures->overtime + " " + row.figures->gross : "not readable";
        seen += ", " + row.LongestWeek() + ", " + FindingSummary(row.check) + '\n';
        return true;
    }));
    EXPECT_EQ(seen, "43: 0.00 0.00 0.00, 0.00, No problems or notices\n"
                    "40: 7.58 1.00 90.83, 8.58, 1 problem\n" // 8 - 0:25
                    "41: 4.33 0.00 43.33, 8.00, 1 problem\n" // the night shift is in the second week, but on no card
                    "42: not readable, 8.00, 1 problem\n");
    const OverviewTotals totals = TotalsOf(overview.rows);
    EXPECT_EQ(totals.figures.regular + " " + totals.figures.overtime + " " + totals.figures.gross, "11.91 1.00 134.16");
    EXPECT_EQ(totals.problems, 3);
}

TEST_F(OverviewTest, StopsWhenItIsToldToAndLetsTheFileGo)
{
    Overview overview = Empty();
    const auto afterOne = [&](const OverviewRow&) { return overview.rows.size() < 2; };
    EXPECT_FALSE(ReadOverview(overview, m_database, OfferedEmployees(*m_employees), afterOne));
    EXPECT_EQ(overview.rows.size(), 2U);
    EXPECT_NO_THROW(Add("NULL", "NULL", 43));
}

TEST_F(OverviewTest, ReadsOnInStepsBetweenWhichTheFileIsFree)
{
    ASSERT_TRUE(SaveCheckLimits(m_database, {4, 1, false}, {}));
    OverviewReading reading(m_database, OfferedEmployees(*m_employees), kPeriod, kNow);
    EXPECT_FALSE(reading.IsDone());
    reading.ReadOn([] { return false; });
    EXPECT_EQ(reading.Result().rows.size(), 1U) << "at least one";
    EXPECT_EQ(reading.Result().limits.firstWeekday, 1);
    Add("'2026-03-04 08:00:00'", "'2026-03-04 09:00:00'", 41);
    reading.ReadOn([&] { return reading.Result().rows.size() < 3; });
    EXPECT_FALSE(reading.IsDone());
    reading.ReadOn([] { return true; });
    ASSERT_TRUE(reading.IsDone());
    EXPECT_EQ(reading.Result().rows.at(2).figures->regular, "5.33");
    OverviewReading nobody(m_database, {}, kPeriod, kNow);
    EXPECT_TRUE(nobody.IsDone());
    CJetDB holder(m_folder.Path());
    holder.DatabaseName(Path());
    ASSERT_TRUE(holder.OpenDB());
    OverviewReading held(m_database, OfferedEmployees(*m_employees), kPeriod, kNow);
    EXPECT_EQ(FailureOf([&] { held.ReadOn([] { return true; }); }), 5);
    EXPECT_TRUE(held.Result().rows.empty());
}

TEST_F(OverviewTest, ChecksAlsoACardThatCannotBeGenerated)
{
    CTimeCard card(m_factory);
    card.PTKDatabase(m_database);
    const auto checked = [&](std::int32_t employee, const PayPeriod& period) {
        return GenerateChecked(card, m_database, m_employees->GetEmployeeByID(employee), period, kNow, {});
    };
    const CheckedTimecard whole = checked(40, kPeriod);
    EXPECT_TRUE(whole.generated);
    EXPECT_EQ(FindingSummary(whole.check.value()), "1 problem");
    EXPECT_EQ(whole.check->days.at(0).overtime, 60);
    EXPECT_EQ(whole.check->days.at(1).regular, -25);

    const CheckedTimecard empty = checked(41, {ToDateTime("3/15/2026"), ToDateTime("3/20/2026")});
    EXPECT_FALSE(empty.generated);
    EXPECT_EQ(card.ErrorNumber(), timecard::NoRecords);
    EXPECT_EQ(KindName(empty.check.value().findings.at(0).kind), "crosses-start");
    EXPECT_FALSE(checked(99, kPeriod).check.has_value());

    std::filesystem::remove(Path());
    EXPECT_EQ(checked(40, kPeriod).failure.Number(), 14);
}

OverviewRow Row(const char* last, std::optional<CardFigures> figures, CardCheck check = {})
{
    OverviewRow row;
    row.employee = std::make_shared<CEmployee>(Worker("", last));
    row.figures = std::move(figures);
    row.check = std::move(check);
    return row;
}

// Of the largest single there is, twice, and of negative hours.
TEST(OverviewTotalsTest, AreExactWhateverTheirSize)
{
    const std::string most = "340282350000000000000000000000000000000.00";
    const std::vector<OverviewRow> rows{Row("A", CardFigures{"-7.25", "0.00", most}), Row("B", CardFigures{"7.20", "0.99", most}),
                                        Row("C", std::nullopt), Row("D", CardFigures{"-0.45", "0.01", "0.01"})};
    const CardFigures sums = TotalsOf(rows).figures;
    EXPECT_EQ(sums.regular, "-0.50");
    EXPECT_EQ(sums.overtime, "1.00");
    EXPECT_EQ(sums.gross, "680564700000000000000000000000000000000.01");
    EXPECT_EQ(TotalsOf({}).figures.gross, "0.00");
}

Overview SmallOverview()
{
    CardCheck check;
    check.findings.push_back(
        {FindingKind::Overlap, {7, 9}, 30, ToDateTime("3/2/2026 8:00"), ToDateTime("3/2/2026 16:00:30"), "Two, \"at once\"."});
    check.findings.push_back({FindingKind::Unreadable, {8}, 0, {}, {}, "Unreadable."});
    check.findings.push_back({FindingKind::Week, {}, 61, ToDateTime("3/1/2026"), ToDateTime("3/8/2026"), "A week."});
    check.weeks.push_back({ToDateTime("3/1/2026"), 2461, 0});
    check.problems = 2;
    check.notices = 1;
    check.clockedIn = true;
    Overview overview = Empty();
    overview.rows.push_back(Row("=Lee\n\x1B", CardFigures{"-0.50", "0.00", "12.00"}));
    check.changed.emplace();
    overview.rows.push_back(Row("Zo\xC3\xAB", std::nullopt, check));
    overview.rows.back().paid = Closing{1, 40, kPeriod, ToDateTime("3/14/2026 17:30"), "Ann \"A\" Lee", "1.00", "0.00", "10.00", 0};
    return overview;
}

TEST(OverviewTextsTest, CarryTheSameInEveryForm)
{
    Overview overview = SmallOverview();
    EXPECT_EQ(
        OverviewJson(overview),
        "{\"from\":\"2026-03-01\",\"to\":\"2026-03-14\",\"made\":\"2026-03-15T12:00:00\",\"employees\":[\r\n"
        "{\"number\":0,\"id\":-1,\"name\":\"=Lee\\u000a\\u001b\",\"regular\":\"-0.50\",\"overtime\":\"0.00\",\"gross\":\"12.00\","
        "\"longestWeek\":\"0.00\",\"clockedIn\":false,\"problems\":0,\"notices\":0,\"findings\":[],\"weeks\":[],\"paid\":null,"
        "\"changed\":null},\r\n"
        "{\"number\":0,\"id\":-1,\"name\":\"Zo\xC3\xAB\",\"regular\":null,\"overtime\":null,\"gross\":null,\"longestWeek\":\"41.02\","
        "\"clockedIn\":true,\"problems\":2,\"notices\":1,\"findings\":["
        "{\"kind\":\"overlap\",\"severity\":\"problem\",\"records\":[7,9],\"minutes\":30,\"from\":\"2026-03-02T08:00:00\","
        "\"to\":\"2026-03-02T16:00:30\",\"text\":\"Two, \\\"at once\\\".\"},"
        "{\"kind\":\"unreadable\",\"severity\":\"problem\",\"records\":[8],\"minutes\":0,\"from\":null,\"to\":null,\"text\":\"Unreadable."
        "\"},"
        "{\"kind\":\"week\",\"severity\":\"notice\",\"records\":[],\"minutes\":61,\"from\":\"2026-03-01T00:00:00\","
        "\"to\":\"2026-03-08T00:00:00\",\"text\":\"A week.\"}],"
        "\"weeks\":[{\"from\":\"2026-03-01\",\"hours\":\"41.02\",\"above40\":\"1.02\",\"paidAsOvertime\":\"0.00\"}],\"paid\":{\"at\":"
        "\"2026-03-14T17:30:00\",\"by\":\"Ann \\\"A\\\" Lee\",\"regular\":\"1.00\",\"overtime\":\"0.00\",\"gross\":\"10.00\"},"
        "\"changed\":{\"regular\":null,\"overtime\":null,\"gross\":null}}\r\n"
        "],\"leftOut\":[],\"totals\":{\"regular\":\"-0.50\",\"overtime\":\"0.00\",\"gross\":\"12.00\",\"clockedIn\":1,\"problems\":2,"
        "\"notices\":1}}\r\n");
    EXPECT_EQ(
        OverviewCsv(overview),
        "Number,ID,Name,Regular,Overtime,Gross,Longest week,Clocked in,Problems,Notices,Kind,Severity,Records,Minutes,From,To,Text\r\n"
        "0,-1,\"'=Lee\n\x1B\",-0.50,0.00,12.00,0.00,false,0,0,,,,,,,\r\n"
        "0,-1,Zo\xC3\xAB,,,,41.02,true,2,1,,,,,,,\r\n"
        "0,-1,Zo\xC3\xAB,,,,,,,,overlap,problem,7 9,30,2026-03-02T08:00:00,2026-03-02T16:00:30,\"Two, \"\"at once\"\".\"\r\n"
        "0,-1,Zo\xC3\xAB,,,,,,,,unreadable,problem,8,0,,,Unreadable.\r\n"
        "0,-1,Zo\xC3\xAB,,,,,,,,week,notice,,61,2026-03-01T00:00:00,2026-03-08T00:00:00,A week.\r\n");
    overview.rows.erase(overview.rows.begin());
    const std::string text =
        "Payday overview 03/01/2026 - 03/14/2026, made 03/15/2026 12:00 PM\r\n\r\n"
        "Name   Regular  Overtime         Gross  Longest week  Problems  Notices  Clocked in        Paid       Changed\r\n"
        "Zo\xC3\xAB                       not readable         41.02         2        1         yes  03/14/2026  not readable\r\n"
        "    problem: Two, \"at once\".\r\n"
        "    problem: Unreadable.\r\n"
        "    notice: A week.\r\n\r\n"
        "Total     0.00      0.00          0.00                       2        1           1           1             1\r\n";
    EXPECT_EQ(OverviewText(overview), text);
    overview.limits.showNotices = false;
    std::string withoutNotices = text;
    withoutNotices.erase(withoutNotices.find("    notice"), 21);
    EXPECT_EQ(OverviewText(overview), withoutNotices) << "the sentences go, the number stays";
    const ReportDocument pages = OverviewDocument(overview);
    std::string printed;
    for (const ReportLine& line : pages.lines) {
        printed += line.text + "\r\n";
    }
    EXPECT_EQ(printed, withoutNotices.substr(withoutNotices.find("Name "))) << "the first line is the pages' head";
    EXPECT_EQ(pages.groups.size(), overview.rows.size() + 2) << "each employee's stand together";
    {
    }
}

} // namespace

} // namespace ptk
