// import-employees, person and kept.
#include "console/ConsoleFixture.h"
#include "store/sqlite/SqliteEngine.h"
#include "support/Execute.h"

namespace ptk {

namespace {

class PeopleCommandsTest : public ConsoleTest
{
protected:
    PeopleCommandsTest() { static_cast<void>(Run({"create-database"})); }

    std::string File() const { return (Folder() / "employees.csv").string(); }

    Answer Import(const std::string& text, std::vector<std::string> words = {})
    {
        WriteBytes(File(), text);
        words.insert(words.begin(), {"import-employees", File()});
        return Run(words);
    }

    void Execute(const char* sql) const { ExecuteIn(Database().string(), sql); }
};

TEST_F(PeopleCommandsTest, ImportEndsWithTheStatusThatTellsWhatBecameOfTheLines)
{
    EXPECT_EQ(Run({"import-employees", File()}).err, "ptk-console: 53: " + File() + ": File not found\n");
    const std::string one = "Number,Last Name,SSN\n7,Lee,1\n";
    EXPECT_EQ(Import(one, {"--dry-run"}).out, "Lines: 1, stored 1, there already 0, refused 0, changed 0\n");
    const Answer refused = Import(one + "8,Kim,\n");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out, "Lines: 2, stored 1, there already 0, refused 1, changed 0\nLine 3: SSN: empty\n");
    EXPECT_EQ(refused.err, "ptk-console: nothing was stored, since lines are refused\n");
    EXPECT_EQ(Import(one).status, 0);
    EXPECT_EQ(Import(one + "8,Kim,2\n").out, "Lines: 2, stored 1, there already 1, refused 0, changed 0\n");
    EXPECT_EQ(Import("Number,Last Name,SSN\n7,Fox,1\n", {"--change", "lastname"}).out,
              "Lines: 1, stored 0, there already 0, refused 0, changed 1\nEmployee 7, Last Name: \"Lee\" becomes \"Fox\"\n");
    EXPECT_EQ(Import(one, {"--change", "Phone"}).err, "ptk-console: " + File() + ": the file has no column Phone\n");
    for (const char* fields : {"", "Shoe Size", "Phone,", "Number"}) {
        EXPECT_EQ(Import(one, {"--change", fields}).status, 2) << fields;
    }
}

TEST_F(PeopleCommandsTest, APersonsDataHasNobodyElsesNameAndNoPassword)
{
    Execute(
        "INSERT INTO Employee (FirstName, LastName, EmployeeNumber, SSNumber, Password, PayRate, Active, AutoDeduct) VALUES "
        "('Ann', 'Lee', 7, '123-45-6789', 'secret', 12.5, 1, 0), ('Bo', 'Kim', 8, '2', '', 9, 1, 0), ('Ann', 'Lee', 9, '3', '', 9, 1, 0)");
    Execute("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (41, '2002-12-31 08:00:00', '2002-12-31 16:30:00'), "
            "(40, '2003-03-05 08:00:00', '1899-12-30 00:00:00'), (41, '2003-03-06 08:00:00', '2003-03-06 09:00:00')");
    Execute("UPDATE TimeRecord SET EmployeeID = 40 WHERE TimeRecordID = 1");
    std::filesystem::create_directories(Folder() / "reports");
    for (const char* name : {"8_2003-03-01_time_card.txt", "7_2003-03-01_time_card.txt", "Bo Kim.pdf", "employee_records.txt"}) {
        WriteBytes((Folder() / "reports" / name).string(), "");
    }
    EXPECT_EQ(Run({"person", "Ann Lee"}).err, "ptk-console: 2 people are named Ann Lee: the employee numbers are 7, 9; say which one\n");
    EXPECT_EQ(Run({"person", "Nobody"}).status, 1);
    const Answer person = Run({"person", "Ann Lee", "--number", "7"});
    EXPECT_EQ(person.status, 0) << person.err;
    const char* const records = "\"records\":[\n"
                                R"({"year":2002,"id":1,"start":"2002-12-31T08:00:00","end":"2002-12-31T16:30:00","minutes":510},)"
                                "\n"
                                R"({"year":2003,"id":2,"start":"2003-03-05T08:00:00","end":null,"minutes":null})";
    for (const char* part :
         {R"({"employee":{"number":7,"firstName":"Ann","lastName":"Lee","socialSecurityNumber":"123-45-6789",)",
          R"("regularPayRate":"12.5",)", records, R"("paid":[],)", R"("Password":"changed")", "employee 41 became Ann Lee",
          R"({"kind":"report","file":"reports/7_2003-03-01_time_card.txt"})", R"("file":"reports/employee_records.txt"})"}) {
        EXPECT_NE(person.out.find(part), std::string::npos) << part << '\n' << person.out;
    }
    for (const char* part : {"Kim", "secret", "8_2003"}) {
        EXPECT_EQ(person.out.find(part), std::string::npos) << part << '\n' << person.out;
    }
    const std::string pages = (Folder() / "bo.pdf").string();
    EXPECT_EQ(Run({"person", "Bo Kim", "--format", "pdf", "-o", pages}).status, 0);
    EXPECT_TRUE(ReadBytes(pages).starts_with("%PDF"));
    EXPECT_EQ(Run({"person", "Bo Kim", "--format", "csv"}).status, 2);
}

TEST_F(PeopleCommandsTest, TellsHowMuchIsOlderByTableAndYear)
{
    Execute("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '2019-12-31 08:00:00', NULL), "
            "(40, '2020-03-19 23:59:59', NULL), (40, '2020-03-20 00:00:00', NULL), (40, 'x', NULL), (40, '1899-12-30 00:00:00', NULL)");
    Execute("INSERT INTO Employee (LastName, ReleaseDate) VALUES ('Lee', '2018-06-01 00:00:00'), ('Kim', NULL)");
    EXPECT_EQ(Run({"kept", "--years", "6"}).out, "Older than 3/20/2020:\nTimeRecord 2019: 1\nTimeRecord 2020: 1\nEmployee 2018: 1\n");
    EXPECT_EQ(Run({"kept", "--years", "100"}).out, "Older than 3/20/1926:\nnothing\n");
    EXPECT_EQ(Run({"kept"}).status, 2);
    EXPECT_EQ(Run({"kept", "--years", "-1"}).status, 2);
}

} // namespace

} // namespace ptk
