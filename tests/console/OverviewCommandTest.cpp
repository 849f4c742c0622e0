#include "console/ConsoleFixture.h"

#include "platform/text/Text.h"

#include "store/engine/Statement.h"
#include "store/sqlite/SqliteEngine.h"
#include "support/Execute.h"

#include <algorithm>
#include <set>

namespace ptk {

namespace {

// The clock says 3/20/2026 9:30 AM.
class OverviewCommandTest : public ConsoleTest
{
protected:
    void MakeSample() { ASSERT_EQ(Run({"create-database", "--sample"}).status, 0); }
    void Change(const std::string& sql) const { ExecuteIn(Database().string(), sql); }

    static int Count(const std::string& text, const std::string& part)
    {
        int count = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
            ++count;
        }
        return count;
    }

    // The kinds of finding in the overview of some days.
    std::set<std::string> Kinds(const char* from, const char* to)
    {
        std::set<std::string> kinds;
        const std::string json = Run({"overview", "--from", from, "--to", to, "--format", "json"}).out;
        for (std::size_t at = json.find("\"kind\":\""); at != std::string::npos; at = json.find("\"kind\":\"", at + 1)) {
            kinds.insert(json.substr(at + 8, json.find('"', at + 8) - at - 8));
        }
        return kinds;
    }
};

TEST_F(OverviewCommandTest, TheSampleShowsEveryKindOfFindingWhateverTheDay)
{
    MakeSample();
    EXPECT_EQ(Kinds("3/6/2026", "3/20/2026").size(), 17U);
    for (const char* day : {"1/1/2025", "2/28/2025", "3/17/2025", "7/6/2025", "8/8/2025", "11/23/2025"}) {
        std::filesystem::remove(Database());
        ASSERT_EQ(Run({"create-database", "--sample", "--today", day}).status, 0) << day;
        const DateTime today = ToDateTime(day);
        m_clock.now = DateTime::FromSeconds(today.Seconds() + 34200);
        EXPECT_EQ(Kinds(ShortDateText(today.AddDays(-14)).c_str(), day).size(), 17U) << day;
    }
}

TEST_F(OverviewCommandTest, OffersThePeriodOfTheReportsPageAndEndsWithTheProblems)
{
    MakeSample();
    const Answer all = Run({"overview"});
    EXPECT_EQ(all.status, 3);
    EXPECT_EQ(all.err, "");
    EXPECT_TRUE(all.out.starts_with("Payday overview 03/15/2026 - 03/29/2026, made 03/20/2026 09:30 AM\n\nName ")) << all.out;
    EXPECT_EQ(all.out.find('\r'), std::string::npos);
    EXPECT_NE(all.out.find("\n    problem: "), std::string::npos);
    EXPECT_NE(all.out.find("\n    notice: "), std::string::npos);
    Change("UPDATE _CheckLimits SET show_notices = 0");
    EXPECT_EQ(Run({"overview"}).out.find("\n    notice: "), std::string::npos);

    const Answer one =
        Run({"overview", "--employee", "Peter Lindqvist", "--employee", "Ann Lee", "--from", "1/1/2020", "--format", "json"});
    EXPECT_EQ(one.status, 0) << "nothing found";
    EXPECT_TRUE(one.out.starts_with("{\"from\":\"2020-01-01\",\"to\":\"2020-01-15\",")) << one.out;
    EXPECT_LT(one.out.find("Peter Lindqvist"), one.out.find("Ann Lee")) << "in the order given, also who is not offered";
    EXPECT_EQ(Run({"overview", "--to", "3/17/2026", "--format", "csv"}).out.find("Number,ID,Name,"), 0U);
    EXPECT_EQ(Run({"overview", "--from", "1/1/100", "--to", "12/31/9999", "--format", "json"}).status, 3);
}

TEST_F(OverviewCommandTest, RefusesWhatItCannotShow)
{
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"--from", "3/2/2026", "--to", "3/1/2026"}, {"--format", "xml"}, {"--from", "soon"}}) {
        std::vector<std::string> all{"overview"};
        all.insert(all.end(), words.begin(), words.end());
        const Answer answer = Run(all);
        EXPECT_EQ(answer.status, 2) << words.front();
        EXPECT_EQ(answer.out, "");
    }
    EXPECT_TRUE(Run({"overview"}).err.starts_with("ptk-console: 14: "));
    MakeSample();
    EXPECT_EQ(Run({"overview", "--to", "3/14/2026"}).status, 2) << "before the period that is offered";
    const Answer unknown = Run({"overview", "--employee", "Ann Lee", "--employee", "Nobody"});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_EQ(unknown.err, "ptk-console: 602: no employee has this name: Nobody\n");
    EXPECT_EQ(unknown.out, "");
}

TEST_F(OverviewCommandTest, PutsTheFindingsUnderACardAlsoWhereThereIsNone)
{
    MakeSample();
    const std::vector<std::string> words{"time-card", "--employee", "Omar Haddad", "--from", "3/20/2026", "--to", "3/20/2026"};
    std::vector<std::string> checked = words;
    checked.emplace_back("--check");
    const Answer clockedIn = Run(checked);
    EXPECT_EQ(clockedIn.status, 0) << clockedIn.err;
    EXPECT_TRUE(clockedIn.out.starts_with(Run(words).out + "\n1 notice\n    notice: Still clocked in since 03/20/2026 ")) << clockedIn.out;

    Change("UPDATE TimeRecord SET EndTime = 'so\x1Bon' WHERE EndTime = '1899-12-30 00:00:00'");
    const Answer unreadable = Run(checked);
    EXPECT_EQ(unreadable.status, 1);
    EXPECT_TRUE(unreadable.out.starts_with("1 problem, 1 notice\n    notice: No shift in this period; there was one in the period "
                                           "before.\n    problem: Record "))
        << unreadable.out;
    EXPECT_TRUE(unreadable.out.ends_with("cannot be read: it has the end \"so?on\".\n")) << unreadable.out;
    EXPECT_TRUE(unreadable.err.starts_with("ptk-console: 605: ")) << unreadable.err;

    checked[2] = "Daniel Reyes";
    checked[4] = "3/1/2026";
    EXPECT_EQ(Run(checked).status, 3);
}

// Nobody of them is in the list: an inactive one, the administrator, records of nobody.
TEST_F(OverviewCommandTest, NamesWhoIsLeftOutAndTakesThemIn)
{
    ASSERT_EQ(Run({"create-database"}).status, 0);
    Change("INSERT INTO Employee (EmployeeNumber, FirstName, LastName, Active, AutoDeduct, PayRate) VALUES (7, 'Peter', 'Lind', 0, 0, 10), "
           "(8, 'Ann', 'Lee', "
           "1, 0, 10), (9, 'Bo', 'Zorn', 0, 0, 10)");
    Change("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '2026-03-16 08:00:00', '2026-03-16 16:00:00'), "
           "(39, '2026-03-14 22:00:00', '2026-03-15 01:00:00'), (41, '2026-03-16 08:00:00', '2026-03-16 16:00:00'), "
           "(42, '2026-03-01 08:00:00', '2026-03-01 16:00:00'), (77, '2026-03-16 08:00:00', 'soon'), "
           "(NULL, '2026-03-16 08:00:00', '2026-03-16 16:00:00'), (NULL, '2026-02-16 08:00:00', '2026-02-16 16:00:00')");
    const Answer json = Run({"overview", "--format", "json"});
    EXPECT_EQ(json.status, 3) << "they are owed";
    EXPECT_NE(
        json.out.find(R"("leftOut":[{"number":0,"id":39,"name":"administrator","reason":"administrator","records":1,"regular":"0.00",)"
                      R"("overtime":"0.00","gross":"0.00","paid":null,"changed":null},{"number":7,"id":40,"name":"Peter Lind",)"
                      R"("reason":"inactive","records":1,"regular":"8.00","overtime":"0.00","gross":"80.00","paid":null,"changed":null},)"
                      R"({"number":null,"id":77,"name":null,"reason":"unknown","records":1,"regular":null,"overtime":null,"gross":null,)"
                      R"("paid":null,"changed":null},{"number":null,"id":null,"name":null,"reason":"unknown","records":1,)"),
        std::string::npos)
        << json.out;
    EXPECT_NE(json.out.find(R"("totals":{"regular":"8.00")"), std::string::npos) << json.out;
    EXPECT_NE(Run({"overview"})
                  .out.find("\n\nNot in the list, with records in this period:\n    administrator (administrator): 1 record, 0.00 "
                            "regular and 0.00 overtime hours, 0.00; not paid\n"),
              std::string::npos);
    const Answer all = Run({"overview", "--all", "--format", "json"});
    EXPECT_NE(all.out.find(R"("leftOut":[{"number":null,"id":77,)"), std::string::npos) << all.out;
    EXPECT_NE(all.out.find(R"("totals":{"regular":"16.00")"), std::string::npos) << all.out;
    EXPECT_LT(all.out.find("administrator"), all.out.find("Ann Lee"));
    EXPECT_LT(all.out.find("Ann Lee"), all.out.find("Peter Lind")) << "in the list's order";
    EXPECT_EQ(Run({"overview", "--employee", "Ann Lee"}).status, 0) << "nobody else was asked about";
    EXPECT_EQ(Run({"overview", "--employee", "Ann Lee", "--all"}).status, 2);
    EXPECT_EQ(Run({"overview", "--remedies", "--format", "csv"}).status, 2);
}

// The ten newest of eleven shifts that began about then count: five ends at 16:00 are newer than the others at 17:00, one at noon is
// another kind.
TEST_F(OverviewCommandTest, OffersRemediesByTheUsualEnd)
{
    ASSERT_EQ(Run({"create-database"}).status, 0);
    Change("UPDATE _System SET auto_shift_start_time = '1899-12-30 00:00:00'");
    Change("INSERT INTO Employee (FirstName, LastName, Active, AutoDeduct, PayRate) VALUES ('Ann', 'Lee', 1, 0, 10)");
    Change("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 11) INSERT INTO TimeRecord (EmployeeID, StartTime, "
           "EndTime) SELECT 40, '2026-03-' || printf('%02d', i) || ' 09:59:59', '2026-03-' || printf('%02d', i) || CASE WHEN i > 5 THEN "
           "' 16:00:07' ELSE ' 17:00:00' END FROM n");
    Change("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '2026-03-12 10:01:00', '2026-03-12 12:00:00'), (40, "
           "'2026-03-13 08:00:00', '2026-03-13 08:00:59'), (40, '2026-03-16 07:59:00', '1899-12-30 00:00:00')");
    const Answer json = Run({"overview", "--remedies", "--format", "json"});
    EXPECT_NE(json.out.find(R"("remedies":[{"text":"End at 04:00:07 PM: the card has 8.02 hours","hours":"8.02","changes":[{"record":14,)"
                            R"("start":"2026-03-16T07:59:00","end":"2026-03-16T16:00:07"}]},{"text":"Delete the record: the card has 0.00 )"
                            R"(hours","hours":"0.00","changes":[{"record":14,"delete":true}]}])"),
              std::string::npos)
        << json.out;
    EXPECT_NE(Run({"overview", "--remedies"}).out.find("\n        End at 04:00:07 PM: the card has 8.02 hours\n        Delete "),
              std::string::npos);
}

// A row of no use, a great many of them, and names that would draw on a terminal.
TEST_F(OverviewCommandTest, BearsWhateverStandsInTheFile)
{
    ASSERT_EQ(Run({"create-database"}).status, 0);
    Change("INSERT INTO Employee (FirstName, LastName, Active, AutoDeduct) VALUES ('A' || char(27) || '[2J', 'Lee' || char(10), 1, 0)");
    Change("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 39999) INSERT INTO TimeRecord (EmployeeID, StartTime, "
           "EndTime) SELECT 40, '2026-03-' || printf('%02d', 15 + i % 5) || ' 08:00:00', '2026-03-' || printf('%02d', 15 + i % 5) || ' "
           "16:00:00' FROM n");
    const Answer many = Run({"overview"});
    EXPECT_EQ(many.status, 3);
    EXPECT_LT(many.out.size(), 2000U) << "one sentence a day, not one a record";
    EXPECT_NE(many.out.find("A?[2J Lee "), std::string::npos) << many.out;
    EXPECT_NE(many.out.find("not readable"), std::string::npos) << "more than 32,767 records make no card";
    EXPECT_NE(Run({"overview", "--format", "json"}).out.find("\"regular\":null"), std::string::npos);
    EXPECT_EQ(Run({"overview", "--format", "csv"}).out.find('\x1B'), std::string::npos);
}

} // namespace

} // namespace ptk
