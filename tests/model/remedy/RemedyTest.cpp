// What is offered for each finding, for the two weeks from Sunday 3/1 to Saturday 3/14/2026, checked on Sunday 3/15 at noon.
#include "model/remedy/Remedy.h"

#include "model/CEmployee.h"
#include "model/check/CardCheck.h"
#include "model/remedy/UsualEnds.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ptk {

namespace {

struct Stored
{
    const char* start;
    const char* end; // "-" is not set, "?" cannot be read
};

const DateTime kFirst = ToDateTime("3/1/2026");
const DateTime kLast = ToDateTime("3/14/2026");

std::optional<DateTime> Time(const std::string& text)
{
    return text == "-" ? DateTime() : ParseDateTime(text);
}

Punches RowsOf(const std::vector<Stored>& records)
{
    Punches punches;
    for (const Stored& record : records) {
        Punch punch{static_cast<std::int64_t>(punches.size() + 1), Time(record.start), Time(record.end), false, "", ""};
        punch.fetched = !punch.IsReadable() || (*punch.start >= kFirst && *punch.end <= kLast.AddDays(1));
        punches.push_back(punch);
    }
    return punches;
}

// The remedies of the first finding of a kind, a line each.
std::string Offered(std::string_view kind, const std::vector<Stored>& records, const char* usual, const char* automatic)
{
    CEmployee employee;
    employee.AutoDeduct(true);
    employee.AutoDeductLunchLength(30);
    const Punches punches = RowsOf(records);
    const CheckedCard card{employee, kFirst, kLast};
    const CheckLimits limits;
    const CardCheck check = CheckCard(card, punches, ToDateTime("3/15/2026 12:00"), limits);
    const auto second = [](const char* time) { return *time == '\0' ? std::nullopt : std::optional(ToDateTime(time).Seconds()); };
    const ShiftEnds ends{[&](DateTime) { return second(usual); }, second(automatic)};
    const auto found =
        std::find_if(check.findings.begin(), check.findings.end(), [&](const Finding& f) { return KindName(f.kind) == kind; });
    std::string text = found == check.findings.end() ? "no such finding" : "";
    for (const Remedy& remedy :
         found == check.findings.end() ? std::vector<Remedy>() : RemediesOf(*found, {card, punches, check, limits}, ends)) {
        EXPECT_TRUE(!remedy.hours || remedy.text.ends_with("the card has " + *remedy.hours + " hours"));
        text += remedy.text + '\n';
    }
    return text;
}

// 8:00 to 16:00 is 7.50 hours after the deduction of half an hour.
TEST(RemedyTest, IsOfferedForEachFindingThatHasOne)
{
    struct Case
    {
        const char* name;
        const char* kind;
        std::vector<Stored> records;
        const char* usual;
        const char* automatic;
        const char* offered;
    };
    for (const Case& c : {
             Case{"three for an open shift",
                  "open",
                  {{"3/2/2026 8:00", "-"}},
                  "16:30:20",
                  "17:00",
                  "End at 04:30:20 PM: the card has 8.00 hours\nEnd at 05:00 PM: the card has 8.50 hours\n"
                  "Delete the record: the card has 0.00 hours\n"},
             Case{"equal ends once",
                  "open",
                  {{"3/2/2026 8:00", "-"}},
                  "17:00",
                  "17:00",
                  "End at 05:00 PM: the card has 8.50 hours\nDelete the record: the card has 0.00 hours\n"},
             Case{"an open night",
                  "open",
                  {{"3/2/2026 22:00", "-"}},
                  "6:00",
                  "22:00",
                  "End at 06:00 AM on 03/03/2026: the card has 7.50 hours\nDelete the record: the card has 0.00 hours\n"},
             Case{"up to the next record",
                  "open",
                  {{"3/2/2026 8:00", "-"}, {"3/2/2026 16:00", "3/2/2026 18:00"}},
                  "16:00",
                  "16:01",
                  "End at 04:00 PM: the card has 9.50 hours\nDelete the record: the card has 1.50 hours\n"},
             Case{"the next is behind the period",
                  "open",
                  {{"3/14/2026 19:00", "-"}, {"3/15/2026 5:00", "-"}},
                  "6:00",
                  "",
                  "Delete the record: the card has -0.50 hours\n"},
             Case{"16 hours at most",
                  "long",
                  {{"3/2/2026 6:00", "3/2/2026 23:00"}},
                  "22:00",
                  "22:01",
                  "End at 10:00 PM: the card has 15.50 hours\n"},
             Case{"a day later",
                  "backward",
                  {{"3/2/2026 22:00", "3/2/2026 6:00"}},
                  "",
                  "",
                  "End at 06:00 AM on 03/03/2026: the card has 7.50 hours\nDelete the record: the card has 0.00 hours\n"},
             Case{"even then backward",
                  "backward",
                  {{"3/4/2026 22:00", "3/2/2026 6:00"}},
                  "",
                  "",
                  "Delete the record: the card has 0.00 hours\n"},
             Case{"pressed twice",
                  "empty",
                  {{"3/2/2026 8:00", "3/2/2026 8:00"}},
                  "17:00",
                  "",
                  "Delete the record: the card has 0.00 hours\n"},
             Case{"over the end",
                  "crosses-end",
                  {{"3/14/2026 22:00", "3/15/2026 6:00"}},
                  "",
                  "",
                  "Split at midnight, where 03/15/2026 begins: the card has 1.50 hours\n"},
             Case{"over all of it",
                  "crosses-start",
                  {{"2/28/2026 23:00", "3/15/2026 1:00"}},
                  "",
                  "",
                  "Split at midnight, where 03/01/2026 and 03/15/2026 begin: the card has 335.50 hours\n"},
             Case{"covered by the first",
                  "overlap",
                  {{"3/2/2026 8:00", "3/2/2026 16:00"}, {"3/2/2026 9:00", "3/2/2026 16:00:30"}},
                  "",
                  "",
                  "Delete the shift from 09:00 AM to 04:00:30 PM: the card has 7.50 hours\n"},
             Case{"covered by the second",
                  "overlap",
                  {{"3/2/2026 8:00", "3/2/2026 15:00"}, {"3/2/2026 8:00:10", "3/2/2026 16:00"}},
                  "",
                  "",
                  "Delete the shift from 08:00 AM to 03:00 PM: the card has 7.50 hours\n"},
             Case{"one after the other",
                  "overlap",
                  {{"3/2/2026 8:00", "3/2/2026 12:30"}, {"3/2/2026 12:00", "3/2/2026 16:00"}},
                  "",
                  "",
                  "End the first shift at 12:00 PM: the card has 7.50 hours\n"},
             Case{"a chain",
                  "overlap",
                  {{"3/2/2026 8:00", "3/2/2026 12:00"}, {"3/2/2026 9:00", "3/2/2026 11:00"}, {"3/2/2026 10:00", "3/2/2026 14:00"}},
                  "",
                  "",
                  ""},
             Case{"the one without an end",
                  "same-start",
                  {{"3/2/2026 8:00", "3/2/2026 16:00"}, {"3/2/2026 8:00", "-"}},
                  "",
                  "",
                  "Delete the record without an end: the card has 7.50 hours\n"},
             Case{"neither has hours",
                  "same-start",
                  {{"3/2/2026 8:00", "3/2/2026 7:00"}, {"3/2/2026 8:00", "-"}},
                  "",
                  "",
                  "Delete the record without an end: the card has -0.50 hours\n"
                  "Delete the record that ends at 07:00 AM: the card has -0.50 hours\n"},
             Case{"both alike",
                  "same-start",
                  {{"3/2/2026 8:00", "-"}, {"3/2/2026 8:00", "-"}},
                  "",
                  "",
                  "Delete the record without an end: the card has -0.50 hours\n"},
             Case{"at work",
                  "same-start",
                  {{"3/14/2026 23:00", "-"}, {"3/14/2026 23:00", "3/14/2026 23:00"}},
                  "",
                  "",
                  "Delete the record that ends at 11:00 PM: the card has -0.50 hours\n"},
             Case{"with one that cannot be read",
                  "empty",
                  {{"3/2/2026 8:00", "3/2/2026 8:00"}, {"3/3/2026 8:00", "?"}},
                  "",
                  "",
                  "Delete the record: the card still has a record that cannot be read\n"},
             Case{"for a person to judge", "deduction", {{"3/2/2026 8:00", "3/2/2026 8:20"}}, "17:00", "17:00", ""},
         }) {
        EXPECT_EQ(Offered(c.kind, c.records, c.usual, c.automatic), c.offered) << c.name;
    }
}

TEST(RemedyTest, SplitsAShiftIntoPartsOfWhichTheFirstKeepsTheRecord)
{
    CEmployee employee;
    const Punches punches = RowsOf({{"2/28/2026 23:00", "3/15/2026 1:00"}});
    const CheckedCard card{employee, kFirst, kLast};
    const CardCheck check = CheckCard(card, punches, kLast, {});
    const CheckLimits limits;
    const auto remedies = RemediesOf(check.findings.at(0), {card, punches, check, limits}, {});
    const DateTime after = ToDateTime("3/15/2026");
    EXPECT_EQ(remedies.at(0).changes, (std::vector<RecordChange>{{1, ToDateTime("2/28/2026 23:00"), kFirst},
                                                                 {std::nullopt, kFirst, after},
                                                                 {std::nullopt, after, ToDateTime("3/15/2026 1:00")}}));
}

TEST(RemedyTest, KnowsTheEndsOfTheDay)
{
    EXPECT_EQ(UsualEnd({61000, 59400}), std::nullopt);
    EXPECT_EQ(UsualEnd({61000, 59400, 59425}), 59425);
    EXPECT_EQ(UsualEnd({5, 61000, 59400, 59425}), 59400);
    EXPECT_EQ(AutoShiftEnd(ToDateTime("8:00"), ToDateTime("17:00")), 61200);
    EXPECT_EQ(AutoShiftEnd(ToDateTime("8:00"), ToDateTime("3/5/2003")), std::nullopt);
    EXPECT_EQ(AutoShiftEnd(DateTime(), ToDateTime("17:00")), std::nullopt);
}

} // namespace

} // namespace ptk
