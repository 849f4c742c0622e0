#include "console/ConsoleFixture.h"

#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/whole/BulkWriter.h"
#include "store/whole/DatabaseCreator.h"

#include <filesystem>

namespace ptk {

namespace {

class TimeCardTest : public ConsoleTest
{
protected:
    // Ann's breaks: 30 and 15 minutes, taken off automatically.
    TimeCardTest()
    {
        CreateDatabase(Database().string(), [](BulkWriter& writer) {
            EmployeeRow ann;
            ann.FirstName = "Ann";
            ann.LastName = "Lee";
            ann.SSN = "123-45-6789";
            ann.PayRate = 10;
            ann.OvertimePayRate = 15;
            ann.AutoDeduct = true;
            ann.AutoDeductLunchLength = 30;
            ann.AutoDeductBreakLength = 15;
            AddShifts(writer, writer.AddEmployee(ann));
        });
    }

    static void AddShifts(BulkWriter& writer, std::int32_t employeeID)
    {
        struct Shift
        {
            const char* start;
            const char* end;
        };
        for (const Shift& shift : {
                 Shift{"3/1/2026 11:00 PM", "3/2/2026 1:00 AM"},  // before the period
                 Shift{"3/3/2026 1:00 PM", "3/3/2026 6:30 PM"},   // stored before the morning of its day
                 Shift{"3/2/2026 8:00 AM", "3/2/2026 4:45 PM"},   // exactly 8 hours after the breaks
                 Shift{"3/3/2026 8:00 AM", "3/3/2026 12:00 PM"},  // 4 + 5.5 hours on one day
                 Shift{"3/4/2026 10:00 PM", "3/5/2026 7:00 AM"},  // over midnight: 9 hours of the 4th
                 Shift{"3/5/2026 6:00 PM", "3/6/2026"},           // up to the last moment of the period
                 Shift{"3/5/2026 11:00 PM", "3/6/2026 12:01 AM"}, // one minute past it
                 Shift{"3/6/2026 8:00 AM", "3/6/2026 4:00 PM"},   // after it
             }) {
            TimeRecordRow record;
            record.EmployeeID = employeeID;
            record.StartTime = ToDateTime(shift.start);
            record.EndTime = ToDateTime(shift.end);
            writer.AddTimeRecord(record);
        }
    }
};

TEST_F(TimeCardTest, PrintsTheCardOfTheDaysFromToInclusive)
{
    const Answer answer = Run({"time-card", "--employee", "Ann Lee", "--from", "3/2/2026", "--to", "2026-03-05"});
    // Regular 8 + 8 + 8 + 5.25, overtime 0.75 + 0.25, breaks 4 x 0.75, pay 292.50 + 15.00.
    EXPECT_EQ(answer.out, "Name:  \t\t\t\tAnn Lee\n"
                          "Social Security Number: \t123-45-6789\n"
                          "\n"
                          "\tStart Time\t\tEnd Time\t\tHours\n"
                          "\n"
                          "\t03/02/2026 08:00 AM\t03/02/2026 04:45 PM\t8.00\n"
                          "\t03/03/2026 08:00 AM\t03/03/2026 12:00 PM\t3.25\n"
                          "\t03/03/2026 01:00 PM\t03/03/2026 06:30 PM\t4.75\n"
                          "\t03/04/2026 10:00 PM\t03/05/2026 07:00 AM\t8.25\n"
                          "\t03/05/2026 06:00 PM\t03/06/2026 12:00 AM\t5.25\n"
                          "\n"
                          "\tRegular: \t\t\t29.25\n"
                          "\tRegular Pay Rate: \t\t10.00\n"
                          "\tOvertime: \t\t\t1.00\n"
                          "\tOvertime Pay Rate: \t\t15.00\n"
                          "\tTotal Break Time: \t\t3.00\n"
                          "\tGross Pay: \t\t\t307.50\n");
    EXPECT_EQ(answer.err, "");
    EXPECT_EQ(answer.status, 0);
}

TEST_F(TimeCardTest, SaysWithItsNumberWhatFailed)
{
    struct Case
    {
        const char* name;
        const char* employee;
        const char* from;
        const char* to;
        const char* err;
    };
    for (const Case& c : {
             Case{"unknown", "Ann Leigh", "3/2/2026", "3/5/2026", "ptk-console: 602: no employee has this name: Ann Leigh\n"},
             Case{"other letter case", "ann lee", "3/2/2026", "3/5/2026", "ptk-console: 602: no employee has this name: ann lee\n"},
             Case{"nobody", "", "3/2/2026", "3/5/2026", "ptk-console: 602: no employee has this name\n"},
             Case{"two lines", "A\nB", "3/2/2026", "3/5/2026", "ptk-console: 602: no employee has this name: A B\n"},
             Case{"empty period", "Ann Lee", "4/2/2026", "4/5/2026",
                  "ptk-console: 605: there are no time records in this period: Ann Lee\n"},
             Case{"reversed", "Ann Lee", "3/5/2026", "3/2/2026", "ptk-console: 605: there are no time records in this period: Ann Lee\n"},
             Case{"no time records at all", "administrator", "3/2/2026", "3/5/2026",
                  "ptk-console: 605: there are no time records in this period: administrator\n"},
         }) {
        SCOPED_TRACE(c.name);
        const Answer answer = Run({"time-card", "--employee", c.employee, "--from", c.from, "--to", c.to});
        EXPECT_EQ(answer.out, "");
        EXPECT_EQ(answer.err, c.err);
        EXPECT_EQ(answer.status, 1);
    }
    const Answer beyond = Run({"time-card", "--employee", "Ann Lee", "--from", "3/2/2026", "--to", "12/31/9999"});
    EXPECT_EQ(beyond.status, 1);
    EXPECT_TRUE(beyond.err.starts_with("ptk-console: 6: ")) << beyond.err;
}

TEST_F(TimeCardTest, TellsADatabaseThatCannotBeOpenedByTheEnginesNumber)
{
    const std::vector<std::string> card{"time-card", "--employee", "Ann Lee", "--from", "3/2/2026", "--to", "3/5/2026"};
    {
        CJetDB holder(m_folder.Path());
        ASSERT_TRUE(holder.OpenDB());
        EXPECT_EQ(Run(card).err, "ptk-console: 5: the database is in use by another program: " + Database().string() + "\n");
    }
    EXPECT_EQ(Run(card).status, 0);

    std::filesystem::remove(Database());
    EXPECT_EQ(Run(card).err, "ptk-console: 14: the database file is missing or cannot be opened: " + Database().string() + "\n");
    EXPECT_FALSE(std::filesystem::exists(Database()));

    std::filesystem::remove(System("ptk_11.cfg"));
    const Answer answer = Run(card);
    EXPECT_EQ(answer.err, "ptk-console: the configuration file is missing or names no database: " + System("ptk_11.cfg").string() + "\n");
    EXPECT_EQ(answer.status, 1);
}

} // namespace

} // namespace ptk
