#include "store/CTimeRecSQLConverter.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

TimeRecordRow Record(std::int32_t state)
{
    TimeRecordRow record;
    record.TimeRecordID = 70000;
    record.EmployeeID = 12;
    record.StartTime = DateTime(CalendarDate{2003, 3, 5}, TimeOfDay{8, 5, 9});
    record.EndTime = DateTime(CalendarDate{2003, 3, 6}); // midnight has no time
    record.ObjectState = state;
    return record;
}

} // namespace

TEST(CTimeRecSQLConverterTest, WritesTheStatementForTheState)
{
    struct Case
    {
        std::int32_t state;
        const char* sql;
    };
    for (const Case& c : {
             Case{state::New, "INSERT INTO TimeRecord ( EmployeeID, StartTime, EndTime )  SELECT 12, #3/5/2003 8:05:09 AM#, #3/6/2003#;"},
             Case{state::Changed, "UPDATE TimeRecord SET TimeRecord.EmployeeID = 12, TimeRecord.StartTime = #3/5/2003 8:05:09 AM#, "
                                  "TimeRecord.EndTime = #3/6/2003# WHERE ((TimeRecord.TimeRecordID = 70000));"},
             Case{state::Deleted, "DELETE TimeRecord.TimeRecordID, TimeRecord.EmployeeID, TimeRecord.ShiftDate, TimeRecord.StartTime, "
                                  "TimeRecord.EndTime FROM TimeRecord WHERE ((TimeRecord.TimeRecordID = 70000)); "},
             Case{state::Unchanged, ""},
             Case{state::NothingToDo, ""},
             Case{4, ""},
         }) {
        CTimeRecSQLConverter converter;
        const TimeRecordRow record = Record(c.state);
        EXPECT_EQ(converter.ToSQL(&record), c.sql);
        EXPECT_EQ(converter.sqlstring(), c.sql);
        EXPECT_EQ(converter.ErrorNumber(), 0);
    }
}

TEST(CTimeRecSQLConverterTest, WritesAnOpenRecordsEndAsATimeAlone)
{
    TimeRecordRow record = Record(state::New);
    record.EmployeeID = -1;
    record.EndTime = DateTime();
    EXPECT_EQ(CTimeRecSQLConverter().ToSQL(&record),
              "INSERT INTO TimeRecord ( EmployeeID, StartTime, EndTime )  SELECT -1, #3/5/2003 8:05:09 AM#, #12:00:00 AM#;");
}

TEST(CTimeRecSQLConverterTest, KeepsTheLastStatementWhenThereIsNoRecord)
{
    CTimeRecSQLConverter converter;
    const TimeRecordRow record = Record(state::Deleted);
    const std::string sql = converter.ToSQL(&record);
    EXPECT_EQ(converter.ToSQL(nullptr), "");
    EXPECT_EQ(converter.sqlstring(), sql);
    const TimeRecordRow unchanged = Record(state::Unchanged);
    converter.ToSQL(&unchanged);
    EXPECT_EQ(converter.sqlstring(), "");
    EXPECT_TRUE(converter.ResetError());
}

TEST(CTimeRecSQLConverterTest, WritesThePeriodQuery)
{
    EXPECT_EQ(CTimeRecSQLConverter().BuildFetchSQL(12, DateTime(CalendarDate{2003, 12, 24}),
                                                   DateTime(CalendarDate{2004, 1, 7}, TimeOfDay{12, 0, 0})),
              "SELECT TimeRecord.TimeRecordID, TimeRecord.EmployeeID, TimeRecord.StartTime, TimeRecord.EndTime From TimeRecord "
              "Where ((TimeRecord.EmployeeID = 12) And ((TimeRecord.StartTime >= #12/24/2003#) "
              "And (TimeRecord.EndTime <= #1/7/2004 12:00:00 PM#))) ORDER BY TimeRecord.StartTime, TimeRecord.EndTime;");
}

} // namespace ptk
