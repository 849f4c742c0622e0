#include "office/card/FillPlan.h"

#include "platform/files/ProgramFolder.h"
#include "store/CJetDB.h"
#include "store/whole/BulkWriter.h"
#include "store/whole/DatabaseCreator.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>

namespace ptk {

namespace {

// 1 March 2003 was a Saturday.
TEST(FillPlanTest, ForetellsWhatSaveWillDo)
{
    struct Case
    {
        std::array<const char*, 4> texts;
        std::size_t shifts;
        const char* forecast;
    };
    const DayNumbers taken{DateTime({2003, 3, 3}).DayNumber(), DateTime({2003, 3, 9}, {8, 0, 0}).DayNumber()};
    for (const Case& c : {
             Case{{"03/01/2003", "03/03/2003", "08:00:00 AM", "05:00:00 PM"},
                  3,
                  "3 records, 2 on Saturdays and Sundays, 1 on days that already have records."},
             {{"03/03/2003", "03/07/2003", "8:00", "17:00"},
              5,
              "5 records, none on Saturdays and Sundays, 1 on days that already have records."},
             {{"03/03/2003", "03/04/2003", "", ""},
              2,
              "2 records, none on Saturdays and Sundays, 1 on days that already have records. Empty times mean midnight to midnight, 0 "
              "hours."},
             {{"03/04/2003", "03/05/2003", "22:00", ""},
              2,
              "2 records, none on Saturdays and Sundays, none on days that already have records. The empty time means midnight. They end "
              "before they start and count 0 hours."},
             {{"03/04/2003", "03/05/2003", "8:00", "8:00"},
              2,
              "2 records, none on Saturdays and Sundays, none on days that already have records. Each has 0 hours."},
             {{"03/04/2003", "03/04/2003", "8:00", "17:00"}, 0, "No records: the end date must lie after the start date."},
             {{"03/04/2003", "soon", "8:00", "17:00"}, 0, "No records: the two dates are no period."},
             {{"12/31/2100", "01/01/2101", "8:00", "17:00"}, 0, "No records: the two dates are no period."},
             {{"03/04/2003", "03/05/2003", "8:00", "late"}, 0, "No records: a time cannot be read."},
         }) {
        const FillTexts texts{c.texts[0], c.texts[1], TypedTime(c.texts[2]), TypedTime(c.texts[3])};
        const FillPlan plan = PlanFill(texts);
        EXPECT_EQ(plan.shifts.size(), c.shifts) << c.forecast;
        EXPECT_EQ(FillForecast(plan, texts, taken), c.forecast);
    }
    const FillTexts texts{"03/01/2003", "03/02/2003", TypedTime("8:00"), TypedTime("17:00")};
    EXPECT_EQ(FillForecast(PlanFill(texts), texts, std::nullopt),
              "2 records, 2 on Saturdays and Sundays. Days that already have records could not be counted.");
    EXPECT_EQ(PlanFill(texts).shifts[1].end, DateTime({2003, 3, 2}, {17, 0, 0}));
}

TEST(FillPlanTest, CountsTheDaysOfOneEmployeeOnly)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path() + "/ptk.mdb";
    CreateDatabase(path, [](BulkWriter& writer) {
        writer.AddTimeRecord({-1, 40, DateTime({2003, 3, 5}, {22, 0, 0}), DateTime({2003, 3, 6}, {6, 0, 0})});
        writer.AddTimeRecord({-1, 40, DateTime({2003, 3, 5}, {8, 0, 0}), DateTime()});
        writer.AddTimeRecord({-1, 41, DateTime({2003, 3, 7}, {8, 0, 0}), DateTime({2003, 3, 7}, {9, 0, 0})});
    });
    CJetDB database(folder.Path());
    database.DatabaseName(path);
    EXPECT_EQ(DaysWithRecords(database, 40), DayNumbers{DateTime({2003, 3, 5}).DayNumber()});
    EXPECT_EQ(DaysWithRecords(database, 42), DayNumbers());
    EXPECT_FALSE(database.DatabaseOpen());
    CJetDB holder(folder.Path());
    holder.DatabaseName(path);
    ASSERT_TRUE(holder.OpenDB());
    EXPECT_EQ(DaysWithRecords(database, 40), std::nullopt) << "unknown is not none";
}

} // namespace

} // namespace ptk
