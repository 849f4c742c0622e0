// Files of punches: what is stored, what is there already, what is refused and why; on a file and, in the server's tests, on a server.
#include "office/sheet/PunchImport.h"
#include "platform/Failure.h"
#include "store/CJetDB.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/engine/StoredDate.h"
#include "support/EitherDatabase.h"
#include "support/Execute.h"
#include "support/Failures.h"
#include "support/Files.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace ptk {

namespace {

class PunchImportTest : public testing::Test
{
protected:
    PunchImportTest()
    {
        m_database->DatabaseName(m_own.Name());
        m_database->StoredBy({"office", "ptk-console"});
        Execute(*m_own.Open(), "INSERT INTO Employee (FirstName, LastName, EmployeeNumber, SSNumber) VALUES "
                               "('Ann', 'Lee', 7, '123-45-6789'), ('', 'Cher', 8, ''), ('Ann', 'Lee', 41, ''), "
                               "('José', 'Núñez', 12, '987-65-4321')"); // 40 to 43
    }

    PunchAccount Import(const std::string& text, const char* words = "", bool partly = false, bool trial = false)
    {
        const std::string path = m_own.Folder() + "/punches.csv";
        WriteBytes(path, text);
        return ImportPunches(m_database, {{path, std::nullopt, ReadSheetWords(words).value_or(SheetWords())}, trial, partly});
    }

    // The account in one line.
    std::string Account(const std::string& text, const char* words = "", bool partly = false)
    {
        std::string all;
        for (const std::string& line : PunchAccountLines(Import(text, words, partly))) {
            all += (all.empty() ? "" : " | ") + line;
        }
        return all;
    }

    // Of all records in their order: employee, start and end.
    std::string Records() const
    {
        std::string all;
        for (const auto rows = m_own.Open()->Select("SELECT EmployeeID, StartTime, EndTime FROM TimeRecord ORDER BY TimeRecordID");
             !rows->EndOfFile(); rows->MoveNext()) {
            all += fmt::format("{}{} {} {}", all.empty() ? "" : " | ", rows->Int64At(0), StoredText(rows->DateTimeAt(1)),
                               StoredText(rows->DateTimeAt(2)));
        }
        return all;
    }

    std::int64_t Entries() const { return m_own.Open()->Select("SELECT COUNT(*) FROM _Change WHERE TableName = 'TimeRecord'")->Int64At(0); }

    EitherDatabase m_own;
    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_own.Folder());
};

TEST_F(PunchImportTest, ReadsTheDialectsOfOtherPrograms)
{
    struct Case
    {
        const char* name;
        std::string text;
        const char* words = "";
        const char* day = "2003-03-05";
    };
    for (const Case& c : {
             Case{"plain", "Employee,Start,End\n7,2003-03-05 08:00,2003-03-05 17:00\n"},
             Case{"semicolons and a mark", "\xEF\xBB\xBFNumber;Start;End\r\n7;2003-03-05T08:00:00;2003-03-05T17:00:00\r\n"},
             Case{"tabs, old line ends, blanks in headings",
                  "S S N\tStart Time\tEND TIME\r123-45-6789\t3/5/2003 8:00 AM\t3/5/2003 5:00PM\r"},
             Case{"quotation marks, a separator and a line within",
                  "\"Employee\", \"Note, of\nthe day\" ,Start,End\n\"007\",\"a \"\"b\"\", c\r\nd\",\"3-5-03 8:00\",3/5/03 17:00"},
             Case{"a quotation mark in the midst of a heading", "6\" tall;Number;Start;End\nx;7;2003-03-05 08:00;2003-03-05 17:00\n"},
             Case{"an employee beside two columns of numbers",
                  "Number,Employee Number,Employee,Start,End\nx,y,7,2003-03-05 08:00,2003-03-05 17:00\n"},
             Case{"an ID beside further columns", "Name,Number,Employee,Start,End\nx,y,40,3/5/2003 8:00,3/5/2003 17:00\n"},
             Case{"a day apart", "ID,Date,Start,End\n40,3/5/2003,8:00,5:00 pm\n"},
             Case{"blank lines before and within", "\n;;;\nNumber;Start;End;\n\n7;2003-03-05 8:00;2003-03-05 17:00:00\n;;;\n"},
             Case{"told columns", "Badge,From,To\n7,2003-03-05 08:00,2003-03-05 17:00\n", "badge=Employee Number,FROM=Start,to=end"},
             Case{"events by names, out of order", "Name,Time,Direction\nCher,2003-03-05 08:00,in\nCher,2003-03-05 07:00,IN\n", "", ""},
             Case{"events", "Employee,Time,Direction\n7,2003-03-05 17:00,O\n7,2003-03-05 08:00,in\n"},
             Case{"events in digits", "Employee,Time,Direction\n7,2003-03-05 08:00,1\n7,2003-03-05 17:00,0\n", "1=In,0=Out"},
             Case{"told against its name", "ID,Number,Start,End\n7,x,2003-03-05 08:00,2003-03-05 17:00\n", "ID=Number"},
         }) {
        SCOPED_TRACE(c.name);
        Execute(*m_own.Open(), "DELETE FROM TimeRecord");
        const PunchAccount account = Import(c.text, c.words);
        EXPECT_EQ(account.isStored, *c.day != '\0');
        EXPECT_EQ(Records(), *c.day == '\0' ? "" : fmt::format("40 {0} 08:00:00 {0} 17:00:00", c.day));
    }
}

TEST_F(PunchImportTest, TextsThatAreNoUtf8AreOfTheCodePage)
{
    EXPECT_TRUE(Import("Name,Start,End\nJos\xE9 N\xFA\xF1"
                       "ez,2003-03-05 08:00,\n")
                    .isStored);
    EXPECT_EQ(Records(), "43 2003-03-05 08:00:00 1899-12-30 00:00:00");
    EXPECT_EQ(Import("Name,Start,End\nJosé Núñez,2003-03-05 08:00,\n").there, 1);
}

TEST_F(PunchImportTest, RefusesAFileAsAWhole)
{
    struct Case
    {
        const char* reason;
        std::string text;
        const char* words = "";
    };
    for (const Case& c : {
             Case{"the file has no heading line", " \n;;\n"},
             Case{"no column says whose punches these are: Employee, Number, ID, Name or SSN", "Start,End\n"},
             Case{"the columns ID and Name both say whose punches these are", "ID,Name,Start,End\n"},
             Case{"the columns are those of pairs (Start, End) and of events (Time, Direction) at once", "ID,Start,End,Time\n"},
             Case{"pairs need both columns, Start and End", "ID,Start\n"},
             Case{"events need both columns, Time and Direction", "ID,Time\n"},
             Case{"no columns say when somebody came and went: Start and End, or Time and Direction", "ID,Date\n"},
             Case{"the heading note stands twice", "ID,Start,Note,End,note\n"},
             Case{"the columns Start and Start Time mean the same", "ID,Start,Start Time,End\n"},
             Case{"the file has no column badge", "ID,Start,End\n", "Badge=Number"},
             Case{"line 3: a quotation mark is opened and never closed", "ID,Start,End\n40,a,b\n40,\"a,b\n\n"},
             Case{"line 2: the file holds a NUL byte; it is no text file that can be read", std::string("ID,Start,End\n4\0000,,\n", 19)},
             Case{"line 2: the line is longer than 1 MiB", "ID,Start,End\n" + std::string((1 << 20) + 1, 'x')},
             Case{"the file begins with the mark of UTF-8 and is no UTF-8", "\xEF\xBB\xBFID,Start,End\n\xFF,,\n"},
         }) {
        EXPECT_EQ(FailureTextOf([&] { static_cast<void>(Import(c.text, c.words, true)); }), c.reason);
    }
    EXPECT_EQ(Records(), "");
}

TEST_F(PunchImportTest, NamesLineColumnAndReasonOfWhatItRefuses)
{
    const std::string text = "Employee,Start,End\n"
                             "99,2003-03-05 08:00,\n"
                             "Ann Lee,2003-03-05 08:00,\n"
                             "41,2003-03-05 08:00,\n" // one's ID, another one's number
                             ",2003-03-05 08:00,\n"
                             "7,13/5/2003 08:00,\n"
                             "7,2003-03-05,\n"
                             "7,2003-03-05 08:00+01:00,\n"
                             "7,2003-03-05 08:00,2003-03-05 07:59\n"
                             "7,2003-03-05 08:00,2003-03-05 24:00\n"
                             "\"7\"x,2003-03-05 08:00,\n"
                             "7,2003-03-05 08:00,,x\n"
                             "7,1899-12-30 00:00,\n"
                             "7,2003-03-05 08:00:60,\n";
    EXPECT_EQ(
        Account(text, "", true),
        "Lines: 13, stored 0, there already 0, refused 13 | Line 2: Employee: nobody has \"99\" | Line 3: Employee: several people have "
        "\"Ann Lee\" | "
        "Line 4: Employee: several people have \"41\" | Line 5: Employee: empty | Line 6: Start: no day with a time: \"13/5/2003 08:00\" | "
        "Line 7: Start: no day with a time: \"2003-03-05\" | Line 8: Start: no day with a time: \"2003-03-05 08:00+01:00\" | "
        "Line 9: End: the end is before the start | Line 10: End: no day with a time: \"2003-03-05 24:00\" | "
        "Line 11: Employee: text behind the closing quotation mark | Line 12: column 4: a cell without a heading | "
        "Line 13: Start: a day on which nobody can have come | Line 14: Start: no day with a time: \"2003-03-05 08:00:60\"");
    EXPECT_TRUE(Import(text, "", true).IsRefused(true));
}

TEST_F(PunchImportTest, StoresAllOrNothingInOneStepAndTheSameFileAgainNothing)
{
    const std::string text =
        "Number,Start,End\n7,2003-03-05 08:00,2003-03-05 17:00\n8,2003-03-05 09:00,\n7,2003-03-05 08:00,2003-03-05 17:00\n";
    EXPECT_EQ(PunchAccountLines(Import(text, "", false, true)), std::vector<std::string>{"Lines: 3, stored 2, there already 1, refused 0"});
    EXPECT_EQ(Records(), "");
    EXPECT_EQ(Account(text + "8,2003-03-05 09:00,2003-03-05 10:00\n"),
              "Lines: 4, stored 2, there already 1, refused 1 | Line 5: Start: a record of this employee with this start and another end "
              "is there already");
    EXPECT_EQ(Records(), "");
    EXPECT_TRUE(Import(text + "8,2003-03-05 09:00,2003-03-05 10:00\n", "", true).isStored);
    EXPECT_EQ(Records(), "40 2003-03-05 08:00:00 2003-03-05 17:00:00 | 41 2003-03-05 09:00:00 1899-12-30 00:00:00");
    EXPECT_EQ(Entries(), 2);
    EXPECT_EQ(m_own.Open()->Select("SELECT COUNT(DISTINCT Step) FROM _Change WHERE Program = 'ptk-console'")->Int64At(0), 1);
    EXPECT_EQ(Account(text), "Lines: 3, stored 0, there already 3, refused 0");
    EXPECT_EQ(Entries(), 2);
}

TEST_F(PunchImportTest, PairsEventsAndGuessesNothing)
{
    const auto event = [](const char* number, const char* moment, const char* direction) {
        return fmt::format("{},2003-03-{},{}\n", number, moment, direction);
    };
    const std::string heading = "Number,Time,Direction\n";
    struct Case
    {
        const char* name;
        std::string text;
        const char* account;
    };
    for (const Case& c : {
             Case{"over midnight, and still there",
                  event("7", "05 22:00", "in") + event("7", "06 06:00", "out") + event("7", "06 22:00", "in"),
                  "Lines: 3, stored 3, there already 0, refused 0"},
             Case{"two ins and the out behind them",
                  event("7", "05 08:00", "in") + event("8", "05 09:00", "in") + event("7", "05 08:00", "in") +
                      event("7", "05 17:00", "out"),
                  "Lines: 4, stored 1, there already 0, refused 3 | Line 2: Direction: two ins follow each other, so nobody can say what "
                  "they belong to | "
                  "Line 4: Direction: two ins follow each other, so nobody can say what they belong to | Line 5: Direction: an out after "
                  "two ins"},
             Case{"two outs, and one at the beginning",
                  event("7", "05 07:00", "out") + event("7", "05 08:00", "in") + event("7", "05 17:00", "out") +
                      event("7", "05 18:00", "out"),
                  "Lines: 4, stored 2, there already 0, refused 2 | Line 2: Direction: an out without an in | Line 5: Direction: an out "
                  "without an in"},
             Case{"exactly the longest shift", event("7", "05 08:00", "in") + event("7", "06 00:00", "out"),
                  "Lines: 2, stored 2, there already 0, refused 0"},
             Case{"a minute longer", event("7", "05 08:00", "in") + event("7", "06 00:01", "out"),
                  "Lines: 2, stored 0, there already 0, refused 2 | Line 2: Time: the out comes more than 16 hours after the in | "
                  "Line 3: Time: the out comes more than 16 hours after the in"},
         }) {
        SCOPED_TRACE(c.name);
        Execute(*m_own.Open(), "DELETE FROM TimeRecord");
        EXPECT_EQ(Account(heading + c.text, "", true), c.account);
    }
}

} // namespace

} // namespace ptk
