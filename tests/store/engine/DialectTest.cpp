#include "store/engine/Dialect.h"

#include "platform/Failure.h"

#include <gtest/gtest.h>

namespace ptk {

TEST(DialectTest, TurnsTheProgramsStatementsIntoTheEnginesWords)
{
    struct Case
    {
        const char* name;
        const char* statement;
        const char* translated;
    };
    for (const Case& c : {
             Case{
                 "a time record inserted",
                 "INSERT INTO TimeRecord ( EmployeeID, StartTime, EndTime )  SELECT 12, #3/5/2003 8:00:09 AM#, #12:00:00 AM#;",
                 "INSERT INTO TimeRecord ( EmployeeID, StartTime, EndTime )  SELECT 12,  '2003-03-05 08:00:09' ,  '1899-12-30 00:00:00' ;"},
             Case{"changed",
                  "UPDATE TimeRecord SET TimeRecord.EmployeeID = 12, TimeRecord.StartTime = #3/5/2003#, TimeRecord.EndTime = #3/5/2003 "
                  "5:00:00 PM# "
                  "WHERE ((TimeRecord.TimeRecordID = 7));",
                  "UPDATE TimeRecord SET  EmployeeID = 12,  StartTime =  '2003-03-05 00:00:00' ,  EndTime =  '2003-03-05 17:00:00'  "
                  "WHERE ((TimeRecord.TimeRecordID = 7));"},
             Case{"deleted",
                  "DELETE TimeRecord.TimeRecordID, TimeRecord.EmployeeID, TimeRecord.ShiftDate, TimeRecord.StartTime, TimeRecord.EndTime "
                  "FROM TimeRecord WHERE ((TimeRecord.TimeRecordID = 7)); ",
                  "DELETE       FROM TimeRecord WHERE ((TimeRecord.TimeRecordID = 7)); "},
             Case{"the options", "SELECT [_System].program, [_System].version FROM _System;",
                  "SELECT [_System].program, [_System].version FROM _System;"},
             Case{"the options changed", "UPDATE _System SET _System.period_length = 14, _System.auto_shift_start_time = #8:00:00 AM#;",
                  "UPDATE _System SET  period_length = 14,  auto_shift_start_time =  '1899-12-30 08:00:00' ;"},
             Case{"any letter case", "update [TimeRecord] set TIMERECORD.[EmployeeID] = 1 where TimeRecord.x = 2",
                  "update [TimeRecord] set  [EmployeeID] = 1 where TimeRecord.x = 2"},
             Case{"nothing but names between them", "DELETE*FROM T", "DELETE FROM T"},
             Case{"no list of columns", "DELETE FROM T", "DELETE FROM T"},
             Case{"commas of an expression", "UPDATE T SET T.a = max(T.b, T.c), T.d = (T.e)",
                  "UPDATE T SET  a = max(T.b, T.c),  d = (T.e)"},
             Case{"another table's column", "UPDATE T SET S.a = 1", "UPDATE T SET S.a = 1"},
             Case{"a condition", "UPDATE T SET a = 1 WHERE T.b = 1, T.c", "UPDATE T SET a = 1 WHERE T.b = 1, T.c"},
             Case{"keywords as names", "DELETE [from].a FROM [from]", "DELETE   FROM [from]"},
             Case{"a number sign in quotes", "SELECT '#', 'it''s #x#', \"a#\", [b#c], `d#`",
                  "SELECT '#', 'it''s #x#', \"a#\", [b#c], `d#`"},
             Case{"and in comments", "SELECT 1 -- #x#\n, /* #y */ #3/5/2003#", "SELECT 1 -- #x#\n, /* #y */  '2003-03-05 00:00:00' "},
             Case{"texts side by side", "SELECT 'a'#3/5/2003##3/6/2003#", "SELECT 'a' '2003-03-05 00:00:00'  '2003-03-06 00:00:00' "},
             Case{"what the engine will refuse", "DELETE 'a' FROM T; SELECT [x", "DELETE 'a' FROM T; SELECT [x"},
             Case{"the first year", "#1/1/100#", " '0100-01-01 00:00:00' "},
             Case{"nothing", "", ""},
         }) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(TranslateStatement(c.statement), c.translated);
    }
}

TEST(DialectTest, RefusesWhatIsNoDateBetweenNumberSigns)
{
    for (const char* statement : {"SELECT #3/5/2003", "SELECT #", "SELECT ##", "SELECT #2/30/2003#", "SELECT #12#", "SELECT #3/5/2003 8#",
                                  "SELECT #'3/5/2003'#", "UPDATE T SET T.a = #x#"}) {
        SCOPED_TRACE(statement);
        try {
            ADD_FAILURE() << "accepted as " << TranslateStatement(statement);
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), failure::TypeMismatch);
        }
    }
}

} // namespace ptk
