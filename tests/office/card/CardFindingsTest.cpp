#include "office/card/CardFindings.h"

#include "office/card/CheckedTimecard.h"
#include "office/card/HoursColumns.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

Punch PunchOf(std::int64_t id, const char* start, const char* end, bool fetched)
{
    Punch punch;
    punch.id = id;
    punch.start = *start == '\0' ? DateTime() : ToDateTime(start);
    punch.end = *end == '\0' ? DateTime() : ToDateTime(end);
    punch.fetched = fetched;
    return punch;
}

Finding FindingOf(FindingKind kind, std::vector<std::int64_t> records, const char* text = "It is so.")
{
    return {kind, std::move(records), 0, {}, {}, text};
}

// 1 and 2 are on the card, 3 crosses its end, 4 is open and begins later, 5 has no beginning.
CheckedTimecard Checked()
{
    CheckedTimecard checked;
    checked.generated = true;
    checked.punches = {PunchOf(5, "", "3/4/2026 17:00", false), PunchOf(1, "3/2/2026 8:00", "3/2/2026 12:00", true),
                       PunchOf(2, "3/2/2026 11:00", "3/2/2026 15:00", true), PunchOf(3, "3/14/2026 22:00", "3/15/2026 6:00", false),
                       PunchOf(4, "3/20/2026 8:00", "", false)};
    checked.check.emplace();
    return checked;
}

TEST(CardFindingsTest, MarkRowsWithTheWorstAndAllSentences)
{
    CardCheck check;
    check.findings = {FindingOf(FindingKind::Empty, {2}, "Two is empty."), FindingOf(FindingKind::Overlap, {1, 2}, "One and two."),
                      FindingOf(FindingKind::Week, {}, "A week.")};
    RowMarks marks = MarksOf(check, true);
    EXPECT_EQ(marks.size(), 2U);
    EXPECT_EQ(marks.at(1).text, "Problem: One and two.");
    EXPECT_EQ(marks.at(2).text, "Notice: Two is empty.\nProblem: One and two.");
    EXPECT_EQ(marks.at(2).severity, Severity::Problem);
    check.findings.at(1).records = {1};
    EXPECT_EQ(MarksOf(check, true).at(2).severity, Severity::Notice);
    EXPECT_FALSE(MarksOf(check, false).contains(2));
    EXPECT_EQ(ShownFindings(check, false).size(), 1U);
    EXPECT_EQ(ShownFindings(check, true).size(), 3U);
}

TEST(CardFindingsTest, SayInOneLineHowManyAndWhatKeepsTheCardFromBeingMade)
{
    CheckedTimecard checked = Checked();
    EXPECT_EQ(FindingLineText(checked), "No problems or notices");
    checked.check->problems = 2;
    checked.check->notices = 1;
    EXPECT_EQ(FindingLineText(checked), "2 problems, 1 notice");
    checked.limits.showNotices = false;
    EXPECT_EQ(FindingLineText(checked), "2 problems, 1 notice (notices are not shown)");
    EXPECT_EQ(FindingDetailText(checked), "") << "record 5 is on no card";
    checked.punches.at(0).fetched = true;
    EXPECT_EQ(FindingDetailText(checked), "Record 5, which ends on 03/04/2026 05:00 PM, cannot be read: it has no start.");
    checked.check.reset();
    EXPECT_EQ(FindingLineText(checked) + FindingDetailText(checked), "") << "nobody to check";
    checked.failure = Failure(5, "SQLite", "the file is in use");
    EXPECT_EQ(FindingDetailText(checked), "Not checked: the file is in use");
}

TEST(CardFindingsTest, SayOnWhichDaysARecordLiesThatIsNotOnTheCard)
{
    struct Case
    {
        std::vector<std::int64_t> records;
        bool generated;
        std::vector<std::int64_t> onCard;
        std::vector<std::int64_t> elsewhere;
        const char* text;
    };
    for (const Case& c : {
             Case{{1, 2}, true, {1, 2}, {}, ""},
             {{3}, true, {}, {3}, "It lies on 03/14/2026 - 03/15/2026, not on this card."},
             {{1, 3}, true, {1}, {3}, "One lies on 03/14/2026 - 03/15/2026, not on this card."},
             {{1, 4, 3}, true, {1}, {4, 3}, "The first lies on 03/20/2026; 2 are not on this card."},
             {{5}, true, {}, {5}, "It lies on 03/04/2026, not on this card."},
             {{1, 2}, false, {}, {1, 2}, "The first lies on 03/02/2026."},
             {{}, true, {}, {}, ""},
         }) {
        CheckedTimecard checked = Checked();
        checked.generated = c.generated;
        const FindingPlace place = PlaceOf(FindingOf(FindingKind::Overlap, c.records), checked);
        std::vector<std::int64_t> elsewhere;
        for (const Punch* punch : place.elsewhere) {
            elsewhere.push_back(punch->id);
        }
        EXPECT_EQ(place.onCard, c.onCard) << c.text;
        EXPECT_EQ(elsewhere, c.elsewhere) << c.text;
        EXPECT_EQ(place.text, c.text);
    }
    CheckedTimecard checked = Checked();
    checked.punches.at(0).end.reset();
    EXPECT_EQ(PlaceOf(FindingOf(FindingKind::Unreadable, {5}), checked).text, "It has no day that can be read.");
}

// Sunday 1 March to Tuesday 10 March 2026, weeks from Monday: the first one began on 23 February.
TEST(HoursColumnsTest, ShowEveryDayAndEachWeekBehindItsDays)
{
    CardCheck check;
    check.days = {{ToDateTime("3/2/2026"), 480, 90}, {ToDateTime("3/3/2026"), -25, 0}, {ToDateTime("3/20/2026"), 0, 0}};
    check.weeks = {{ToDateTime("2/23/2026"), 2460, 30}, {ToDateTime("3/2/2026"), 545, 90}};
    const PayPeriod period{ToDateTime("3/1/2026"), ToDateTime("3/10/2026")};
    std::string seen;
    for (const HoursColumn& column : HoursColumns(check, period, 1)) {
        seen += column.name + ' ' + column.day + ' ' + column.above + (column.isWeek ? " week\n" : "\n");
    }
    EXPECT_EQ(seen, "Su 3/1 \nWeek 2/23 41.00 week\nMo 3/2 9.50\nTu 3/3 -0.42\nWe 3/4 \nTh 3/5 \nFr 3/6 \nSa 3/7 \nSu 3/8 \n"
                    "Week 3/2 9.08 week\nMo 3/9 \nTu 3/10 \nFr 3/20 0.00\n");
    const auto columns = HoursColumns(check, period, 1);
    EXPECT_EQ(columns.at(0).text, "Sunday 03/01/2026: no shift");
    EXPECT_EQ(columns.at(1).text, "Week from 02/23/2026: 41.00 hours, 1.00 above 40, 0.50 paid as overtime");
    EXPECT_EQ(columns.at(2).text, "Monday 03/02/2026: 9.50 hours, 8.00 regular and 1.50 overtime");
    EXPECT_EQ(columns.at(3).text, "Tuesday 03/03/2026: -0.42 hours, -0.42 regular and 0.00 overtime");
    EXPECT_EQ(columns.at(3).regular, 0) << "no bar hangs below";
    EXPECT_EQ(HoursColumns(check, {ToDateTime("1/1/2026"), ToDateTime("1/2/2027")}, 1).size(), 5U) << "of 367 days those with shifts";
    EXPECT_EQ(HoursColumns({}, {ToDateTime("1/1/2026"), ToDateTime("1/1/2027")}, 1).size(), 366U);
}

} // namespace

} // namespace ptk
