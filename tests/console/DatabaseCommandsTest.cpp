#include "console/ConsoleFixture.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "store/CJetDB.h"
#include "store/whole/BulkWriter.h"
#include "store/whole/DatabaseCreator.h"

#include <filesystem>

namespace ptk {

namespace {

class DatabaseCommandsTest : public ConsoleTest
{
protected:
    int FilesInSystem() const
    {
        int count = 0;
        for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(Folder() / "system")) {
            ++count;
        }
        return count;
    }
};

TEST_F(DatabaseCommandsTest, CreatesAnEmptyDatabaseThatItsOwnerAloneReads)
{
    const Answer created = Run({"create-database"});
    EXPECT_EQ(created.status, 0) << created.err;
    EXPECT_EQ(created.out, "created: " + Database().string() + "\n");
    EXPECT_EQ(std::filesystem::status(Database()).permissions(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);

    const Answer check = Run({"check"});
    EXPECT_EQ(check.status, 0) << check.err;
    EXPECT_EQ(check.out, "database: " + Database().string() + "\nCompany: 0\nEmployee: 1\nTimeRecord: 0\n");
}

TEST_F(DatabaseCommandsTest, CopiesIntoANewDatabaseAlone)
{
    EXPECT_EQ(Run({"create-database"}).status, 0);
    const std::string copy = System("copy.mdb").string();
    const Answer copied = Run({"copy-database", "--to", copy});
    EXPECT_EQ(copied.status, 0) << copied.err;
    EXPECT_EQ(copied.out,
              "from: " + Database().string() + "\nto: " + copy +
                  "\nCompany: 0 rows, 0 copied\nEmployee: 1 rows, 1 copied\nTimeRecord: 0 rows, 0 copied\n"
                  "_System: 1 rows, 1 copied\n_CheckLimits: 1 rows, 1 copied\n_Payday: 0 rows, 0 copied\n_Profile: 0 rows, 0 copied\n"
                  "_Change: 0 rows, 0 copied\n");
    const Answer again = Run({"copy-database", "--from", copy, "--to", Database().string()});
    EXPECT_EQ(again.status, 1);
    EXPECT_TRUE(again.err.starts_with("ptk-console: 75: ")) << again.err;
    EXPECT_EQ(Run({"backup", "--to", "postgresql://books.example/ptk"}).status, 1);
}

TEST_F(DatabaseCommandsTest, NeverTouchesWhatIsThere)
{
    for (const std::vector<std::string>& words : {std::vector<std::string>{"create-database"}, {"create-database", "--sample"}}) {
        WriteBytes(Database().string(), "somebody's file");
        const Answer answer = Run(words);
        EXPECT_EQ(answer.status, 1);
        EXPECT_TRUE(answer.err.starts_with("ptk-console: 75: ")) << answer.err;
        EXPECT_EQ(ReadBytes(Database().string()), "somebody's file");
    }
}

TEST_F(DatabaseCommandsTest, MakesNoFileWhenItFails)
{
    struct Case
    {
        const char* name;
        std::string configuration;
        std::vector<std::string> words;
        const char* err; // what the error output begins with
    };
    for (const Case& c : {
             Case{"a sample that begins before the calendar",
                  "DatabasePath=<app.path>\\system\\new.mdb\r\n",
                  {"create-database", "--sample", "--today", "1/1/100"},
                  "ptk-console: "},
             Case{"no such folder", "DatabasePath=<app.path>\\data\\new.mdb\r\n", {"create-database", "--sample"}, "ptk-console: 76: "},
             Case{"no path configured", "ShowLoginHelp=True\r\n", {"create-database"}, "ptk-console: the configuration file "},
         }) {
        SCOPED_TRACE(c.name);
        WriteBytes(System("ptk_11.cfg").string(), c.configuration);
        const Answer answer = Run(c.words);
        EXPECT_EQ(answer.status, 1);
        EXPECT_EQ(answer.out, "");
        EXPECT_TRUE(answer.err.starts_with(c.err)) << answer.err;
        EXPECT_EQ(FilesInSystem(), 1);
    }
}

TEST_F(DatabaseCommandsTest, AListThatCannotBeReadNamesTheValue)
{
    ASSERT_EQ(Run({"create-database"}).status, 0);
    CJetDB database(m_folder.Path());
    ASSERT_TRUE(database.ExecuteAction("UPDATE Employee SET LastName = 'Lee', Active = NULL"));
    EXPECT_EQ(Run({"report", "employees"}).err,
              "ptk-console: 411: a stored query of the database could not be read: Employee 39: Active is NULL (Invalid use of Null)\n");
}

TEST_F(DatabaseCommandsTest, TheSampleIsAWholeBusinessUpToToday)
{
    ASSERT_EQ(Run({"create-database", "--sample"}).status, 0);
    EXPECT_TRUE(Run({"check"}).out.find("Company: 2\nEmployee: 13\n") != std::string::npos);

    const auto database = std::make_shared<CJetDB>(m_folder.Path());
    CEmployeeList employees;
    ASSERT_TRUE(employees.LoadList(database));
    const auto ann = employees.GetEmployeeByName("Ann Lee");
    ASSERT_NE(ann, nullptr);
    EXPECT_EQ(ann->CompanyID(), 1);
    EXPECT_EQ(ann->PayRate(), 18.5F);
    ASSERT_NE(employees.GetEmployeeByName("Calloway"), nullptr);
    EXPECT_EQ(employees.GetEmployeeByName("Yuki Tanaka")->CompanyID(), 2);
    EXPECT_FALSE(employees.GetEmployeeByName("Peter Lindqvist")->EmployeeActive());

    // The clock says 3/20/2026, and somebody has not left yet.
    const Answer today = Run({"time-card", "--employee", "Omar Haddad", "--from", "3/20/2026", "--to", "3/20/2026"});
    EXPECT_NE(today.out.find("\t12/30/1899 12:00 AM\t"), std::string::npos) << today.out;
}

TEST_F(DatabaseCommandsTest, TheSampleIsTheSameForTheSameDay)
{
    const std::vector<std::string> words{"create-database", "--sample", "--today", "6/30/2025"};
    ASSERT_EQ(Run(words).status, 0);
    const std::string first = ReadBytes(Database().string());
    std::filesystem::remove(Database());
    m_clock.now = DateTime(CalendarDate{2031, 1, 1});
    ASSERT_EQ(Run(words).status, 0);
    EXPECT_EQ(ReadBytes(Database().string()), first);
}

TEST_F(DatabaseCommandsTest, CheckNamesWhatIsWrong)
{
    ASSERT_EQ(Run({"create-database"}).status, 0);
    CJetDB database(m_folder.Path());
    ASSERT_TRUE(database.ExecuteAction("DROP TABLE Company"));
    ASSERT_TRUE(database.ExecuteAction("DELETE FROM _StoredQuery WHERE name = 'UpdateEmployee'"));
    const Answer answer = Run({"check"});
    EXPECT_EQ(answer.status, 1);
    EXPECT_NE(answer.out.find("problem: There is no column Company.Name."), std::string::npos) << answer.out;
    EXPECT_NE(answer.out.find("problem: The stored query UpdateEmployee "), std::string::npos) << answer.out;
    EXPECT_TRUE(answer.err.starts_with("ptk-console: the database has problems: ")) << answer.err;

    WriteBytes(Database().string(), std::string(4096, 'x'));
    EXPECT_EQ(Run({"check"}).err, "ptk-console: 26: the file is not a database of this program: " + Database().string() + "\n");
    std::filesystem::remove(Database());
    EXPECT_EQ(Run({"check"}).err, "ptk-console: 14: the database file is missing or cannot be opened: " + Database().string() + "\n");
    EXPECT_FALSE(std::filesystem::exists(Database()));
    std::filesystem::create_directory(Database());
    EXPECT_EQ(Run({"check"}).err, "ptk-console: 14: the database's path leads to a folder, a pipe or a device instead of a file: " +
                                      Database().string() + "\n");
}

} // namespace

} // namespace ptk
