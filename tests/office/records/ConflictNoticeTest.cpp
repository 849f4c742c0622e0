#include "office/records/ConflictNotice.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

TEST(ConflictNoticeTest, NamesTheRecordAndWhatDiffersInPlainWords)
{
    const std::string load = "\r\n\r\nLoad what is stored now? What was typed can be brought back afterwards.";
    const std::string card = "\r\n\r\nNothing was stored. The card now shows what is stored.";
    struct Case
    {
        RowConflict conflict;
        const char* name;
        std::string text;
    };
    for (const Case& c : {
             Case{{"Employee", 40, {{"PayRate", "10", "12"}}},
                  "Ann Lee",
                  "The record of Ann Lee was changed by somebody else since it was read.\r\n\r\nPay rate: 10 when read, 12 now" + load},
             Case{{"Employee",
                   40,
                   {{"Active", "False", "True"},
                    {"HireDate", "", "03/05/2003 12:00:00 AM"},
                    {"City", "", "Os\r\nlo"},
                    {"SSNumber", "1", ""},
                    {"Password", "secret", "secret too"}}},
                  "Ann Lee",
                  "The record of Ann Lee was changed by somebody else since it was read.\r\n\r\nActive: no when read, yes now\r\n"
                  "Hire date: none when read, 03/05/2003 now\r\nCity: empty when read, Os??lo now\r\nSS number: 1 when read, empty now\r\n"
                  "Password: another one now" +
                      load},
             Case{{"Company", 1, {}},
                  "Acorn",
                  "The record of Acorn was removed by somebody else since it was read.\r\n\r\nRead the list again? What was typed can be "
                  "brought back afterwards, as a new record."},
             Case{{"TimeRecord", 7, {{"EmployeeID", "40", "41"}, {"EndTime", "", "03/05/2003 05:00:30 PM"}}},
                  "03/05/2003 08:00 AM of Ann Lee",
                  "The time record 03/05/2003 08:00 AM of Ann Lee was changed by somebody else since it was read.\r\n\r\n"
                  "Employee: Ann Lee when read, 41 now\r\nEnd: none when read, 03/05/2003 05:00:30 PM now" +
                      card},
             Case{{"TimeRecord", 7, {}},
                  "03/05/2003 08:00 AM of Ann Lee",
                  "The time record 03/05/2003 08:00 AM of Ann Lee was removed by somebody else since it was read." + card},
             Case{{"_System", 0, {{"auto_shift_end_time", "05:00 PM", "06:30 PM"}}},
                  "",
                  "The options were changed by somebody else since they were read.\r\n\r\nEnd of the automatic shift: 05:00 PM when read, "
                  "06:30 PM now" +
                      load},
             Case{{"_CheckLimits", 0, {{"first_weekday", "0", "6"}, {"a column", "1", "2"}}},
                  "",
                  "The limits of the check were changed by somebody else since they were read.\r\n\r\nFirst day of the work week: Sunday "
                  "when read, Saturday now\r\nA column: 1 when read, 2 now" +
                      load},
         }) {
        EXPECT_EQ(ConflictText(c.conflict, c.name, [](std::int64_t id) { return id == 40 ? "Ann Lee" : ""; }), c.text);
    }
}

} // namespace

} // namespace ptk
