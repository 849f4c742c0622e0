// Everything moves from a file to a server and back: copies, backups, imports, and what the check says of a server's database.
#include "platform/Failure.h"
#include "platform/files/FileSteps.h"
#include "store/backup/BackupNames.h"
#include "store/backup/Backups.h"
#include "store/backup/Restore.h"
#include "store/engine/RecordSet.h"
#include "store/engine/StoredTable.h"
#include "store/import/ImportWriter.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/DatabaseChecker.h"
#include "store/whole/DatabaseCopier.h"
#include "support/NewServerDatabase.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace ptk {

namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class CopyTest : public testing::Test
{
protected:
    CopyTest() { CreateDatabase(file); }

    std::string Path(const char* name) const { return folder.Path() + '/' + name; }

    // As another tool would; the trail tells of it.
    static void Change(const std::string& path, const std::string& script)
    {
        SqliteEngine engine(path);
        engine.BeginMany();
        engine.RunScript(script.c_str());
        engine.Commit();
    }

    // Every row of every table, to the last bit, and the numbers that were given.
    static std::string Dump(const std::string& path)
    {
        SqliteEngine engine(path, ReadOnly{});
        std::string dump;
        const auto add = [&](const std::string& sql) {
            for (const auto rows = engine.Prepare(sql)->ReadRows(); !rows->EndOfFile(); rows->MoveNext()) {
                dump += std::string(rows->TextAt(0)) + '\n';
            }
        };
        for (const StoredTable& table : StoredTables()) {
            std::string cells = "''";
            for (const StoredColumn& column : table.columns) {
                cells += fmt::format("||'|'||quote({})", column.name);
            }
            add(fmt::format("SELECT '{}'||{} FROM {}", table.name, cells, table.name));
        }
        add("SELECT name||seq FROM sqlite_sequence ORDER BY name");
        return dump;
    }

    static std::string Refusal(const std::function<void()>& action)
    {
        try {
            action();
        } catch (const Failure& failure) {
            return failure.Description();
        }
        return "";
    }
    static std::string Copied(const std::string& from, const std::string& to)
    {
        return Refusal([&] { static_cast<void>(CopyDatabase(from, to)); });
    }

    static std::string Answer(const std::string& address, const std::string& sql)
    {
        ServerLine line(address, std::nullopt);
        const auto results = line.Send({{sql, {}, false, false}});
        return std::string(results.front().Text(0, 0));
    }

    TemporaryFolder folder;
    std::string file = folder.Path() + "/system/ptk_11.mdb";
};

constexpr const char* kHardValues = R"(
    INSERT INTO Company (CompanyID, Name, Address1, City, URL) VALUES (7, 'Müller "Bäckerei" 株式会社 🥨', '', NULL, char(9, 10, 13, 92, 78, 7));
    INSERT INTO Employee (EmployeeID, LastName, PayRate, OvertimePayRate, DateOfBirth, Active, Address) VALUES
        (-3, '\N', 1e-45, 3.4028233e38, '0100-01-01 00:00:00', 1, '\.'),
        (2147483646, 'O''Neil', 12.3, -0.1, '9999-12-31 23:59:59', 0, '\\'), (50, NULL, 1e9, 16777216, NULL, NULL, NULL);
    INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (50, '2003-03-05 08:00:00', '1899-12-30 00:00:00'), (NULL, NULL, NULL);
    INSERT INTO TimeRecord (TimeRecordID) VALUES (4711);
    DELETE FROM TimeRecord WHERE TimeRecordID = 4711;
    INSERT INTO _Profile (Name, Definition) VALUES ('Böhm', 'column=Pay' || char(9) || 'Lohn' || char(10)), (NULL, NULL);
    UPDATE _CheckLimits SET long_shift_hours = 12;)";

TEST_F(CopyTest, ComesBackFromAServerAsItWas)
{
    Change(file, kHardValues);
    const ServerDatabase server;
    const ServerDatabase second;
    const CopyAccount account = CopyDatabase(file, server.Address());
    EXPECT_EQ(*account.tables[1].before, 4) << "employees, the shipped one among them";
    EXPECT_EQ(account.tables[1].after, 4);
    static_cast<void>(CopyDatabase(server.Address(), second.Address()));
    static_cast<void>(CopyDatabase(second.Address(), Path("back.mdb")));
    EXPECT_EQ(Dump(Path("back.mdb")), Dump(file));

    EXPECT_EQ(CheckDatabase(server.Address()).problems, CheckDatabase(file).problems);
    server.Run("INSERT INTO TimeRecord (EmployeeID) VALUES (50); INSERT INTO Company (Name) VALUES ('Next')");
    EXPECT_EQ(Answer(server.Address(), "SELECT MAX(TimeRecordID) FROM TimeRecord"), "4712") << "behind what was ever given";
    EXPECT_EQ(Answer(server.Address(), "SELECT MAX(CompanyID) FROM Company"), "8");
    EXPECT_EQ(Answer(server.Address(), "SELECT COUNT(*) FROM _Change"), std::to_string(*account.tables.back().before + 2)) << "told again";
}

TEST_F(CopyTest, AFileGoesIntoAFileAsItIs)
{
    Change(file, kHardValues);
    Change(file, "CREATE TABLE Mine (a); INSERT INTO Mine VALUES (x'00'); UPDATE Employee SET PayRate = x'00' WHERE EmployeeID = 50");
    static_cast<void>(CopyDatabase(file, Path("copy.mdb")));
    EXPECT_EQ(Dump(Path("copy.mdb")), Dump(file));
    EXPECT_THAT(Copied(file, Path("copy.mdb")), HasSubstr("copy.mdb"));
}

TEST_F(CopyTest, TellsWhatOtherToolsAddedToAFile)
{
    Change(file, "CREATE TABLE Mine (a); ALTER TABLE Company ADD COLUMN Mood TEXT; DROP TABLE _CheckLimits;");
    const ServerDatabase server;
    const CopyAccount account = CopyDatabase(file, server.Address());
    EXPECT_THAT(account.leftBehind, ElementsAre("Company.Mood", "Mine"));
    EXPECT_FALSE(account.tables[4].before);
    EXPECT_THAT(CheckDatabase(server.Address()).problems, IsEmpty()) << "its own limits stay";
}

TEST_F(CopyTest, AValueThatAServerCannotHoldEndsIt)
{
    struct Case
    {
        const char* change;
        const char* refusal;
    };
    for (const Case& c : {
             Case{"UPDATE Employee SET PayRate = x'0102'", "Employee 39: PayRate is bytes (no number)"},
             Case{"UPDATE Employee SET PayRate = 9e999", "Employee 39: PayRate is Inf (no finite number)"},
             Case{"UPDATE Employee SET PayRate = 1e39", "Employee 39: PayRate is 1.0e+39 (out of range)"},
             Case{"UPDATE Employee SET EmployeeNumber = 2147483648", "Employee 39: EmployeeNumber is 2147483648 (out of range)"},
             Case{"UPDATE Employee SET CompanyID = 1.5", "Employee 39: CompanyID is 1.5 (no whole number)"},
             Case{"UPDATE Employee SET Active = 'yes'", "Employee 39: Active is \"yes\" (no number)"},
             Case{"UPDATE Employee SET City = 'a' || char(0) || 'b'", "Employee 39: City is \"a?b\" (a text with a zero byte)"},
             Case{"UPDATE Employee SET City = CAST(x'41FF' AS TEXT)", "(a text that is not in UTF-8)"},
             Case{"INSERT INTO TimeRecord VALUES (9, 39, NULL, '03/05/2003', NULL)", "TimeRecord 9: StartTime is \"03/05/2003\" (no date"},
             Case{"UPDATE _System SET auto_shift_end_time = 5", "_System: auto_shift_end_time is 5 (no date"},
             Case{"INSERT INTO _Change (ChangeID, After) VALUES (90, '{')", "_Change 90: After is \"{\" (no JSON)"},
         }) {
        SCOPED_TRACE(c.change);
        const std::string source = Path("source.mdb");
        CreateDatabase(source);
        Change(source, c.change);
        const ServerDatabase server;
        EXPECT_THAT(Copied(source, server.Address()), HasSubstr(c.refusal));
        EXPECT_EQ(Answer(server.Address(), "SELECT COUNT(*) FROM pg_class WHERE relname = 'employee'"), "0");
        std::filesystem::remove(source);
    }
}

TEST_F(CopyTest, AValueThatAFileCannotHoldEndsIt)
{
    const NewServerDatabase server;
    server.TakeAnyValue();
    for (const auto& [column, value] :
         {std::pair("PayRate", "'NaN'"), {"HireDate", "'infinity'"}, {"HireDate", "'10000-01-01'"}, {"HireDate", "'0044-03-15 BC'"}}) {
        server.Run(fmt::format("UPDATE Employee SET PayRate = 0, HireDate = NULL; UPDATE Employee SET {} = {}", column, value));
        EXPECT_THAT(Copied(server.Address(), Path("new.mdb")), HasSubstr(fmt::format("Employee 39: {} is ", column)));
        EXPECT_FALSE(IsThere(Path("new.mdb")));
    }
}

TEST_F(CopyTest, OnlyAnEmptyTargetIsTaken)
{
    const NewServerDatabase taken;
    EXPECT_THAT(Copied(file, taken.Address()), HasSubstr("already holds tables"));
    EXPECT_THAT(Copied(taken.Address(), file), HasSubstr(file));
    const ServerDatabase empty;
    EXPECT_THAT(Copied(empty.Address(), Path("new.mdb")), HasSubstr("no tables of this program"));
    EXPECT_FALSE(IsThere(Path("new.mdb")));
    EXPECT_THAT(Copied(file, "postgresql:misspelt"), HasSubstr("cannot be read"));
    EXPECT_FALSE(IsThere("postgresql:misspelt"));
    EXPECT_THAT(Copied(taken.Address(), Path("no such folder/new.mdb")), HasSubstr("Path not found"));
}

TEST_F(CopyTest, ALoginOfTheOfficeBacksAServerUpButRestoresNothing)
{
    const NewServerDatabase server;
    const std::string login = fmt::format("ann_{}", ::getpid());
    server.Run(fmt::format("CREATE ROLE {} LOGIN IN ROLE ptk_office; INSERT INTO Company (Name) VALUES ('Acme')", login));
    const std::string folderOfBackups = Path("backups");
    const std::string backup = BackUp(server.Address(login), folderOfBackups, DateTime::FromSeconds(0));
    EXPECT_THAT(backup, EndsWith(".mdb"));
    EXPECT_EQ(ExamineBackup(backup).employees, 1);
    BackUpTo(server.Address(login), Path("other.mdb"));
    EXPECT_EQ(Dump(backup), Dump(Path("other.mdb")));
    EXPECT_THAT(Refusal([&] {
                    static_cast<void>(Restore({backup, server.Address(), folderOfBackups, DateTime(), {}}));
                }),
                HasSubstr("copy-database"));
    EXPECT_THAT(BackupsIn(folderOfBackups), testing::SizeIs(1));
    server.Run(fmt::format("DROP ROLE {}", login));
}

TEST_F(CopyTest, AnImportIsOneStepAndNumbersGoOnBehindIt)
{
    const auto fill = [](Engine& engine) {
        ImportWriter writer(engine);
        std::vector<Value> company(ImportTableOf(ImportTableId::Company).columns.size());
        company.front() = 70;
        EXPECT_TRUE(writer.Add(ImportTableId::Company, company));
    };
    const NewServerDatabase server;
    const std::string login = fmt::format("ben_{}", ::getpid());
    server.Run(fmt::format("CREATE ROLE {} LOGIN IN ROLE ptk_office", login));
    const ImportTarget target{server.Address(login), "old.mdb", {"Ann", "ptk-console"}, {}};
    TryImport(target, fill);
    EXPECT_EQ(Answer(server.Address(), "SELECT COUNT(*) FROM Company"), "0");
    EXPECT_EQ(Refusal([&] {
                  Import(target, [&](Engine& engine) {
                      fill(engine);
                      throw Failure(0, "PTK", "given up");
                  });
              }),
              "given up");
    EXPECT_EQ(Answer(server.Address(), "SELECT COUNT(*) FROM Company"), "0");
    Import(target, fill);
    EXPECT_EQ(Answer(server.Address(), "SELECT string_agg(ChangedBy || Action || After, ',') FROM _Change"),
              R"(Annimport{"file" : "old.mdb"})");
    server.Run("INSERT INTO Company (Name) VALUES ('Next')");
    EXPECT_EQ(Answer(server.Address(), "SELECT MAX(CompanyID) FROM Company"), "71");
    EXPECT_THAT(Refusal([&] { Import(target, fill); }), HasSubstr("already holds"));
    server.Run(fmt::format("DROP ROLE {}", login));
    const ServerDatabase none;
    EXPECT_THAT(Refusal([&] { Import({none.Address(), "old.mdb", {}, {}}, fill); }), HasSubstr("no tables of this program"));
}

TEST_F(CopyTest, TheCheckNamesWhatIsWrongWithAServersDatabase)
{
    struct Case
    {
        const char* change;
        const char* problem;
    };
    for (const Case& c : {
             Case{"ALTER TABLE Company DROP COLUMN Fax", "There is no column Company.Fax."},
             Case{"ALTER TABLE Employee DROP COLUMN City", "There is no column Employee.City."},
             Case{"ALTER TABLE Company ALTER COLUMN Name TYPE varchar(50)", "The column Company.Name is character varying(50), not text."},
             Case{"ALTER TABLE Company ALTER COLUMN Name TYPE text COLLATE \"POSIX\"",
                  "The column Company.Name is text in another order than \"C\", not text."},
             Case{"ALTER TABLE Employee ALTER COLUMN HireDate TYPE timestamp(3)",
                  "The column Employee.HireDate is timestamp(3) without time zone, not timestamp(0) without time zone."},
             Case{"ALTER TABLE TimeRecord DISABLE TRIGGER USER", "The edit trail misses changes of the table TimeRecord."},
             Case{"DROP TRIGGER _CompanyChange ON Company", "The edit trail misses changes of the table Company."},
             Case{"DROP INDEX TimeRecordPeriod", "There is no usable index TimeRecordPeriod: lists and time cards take long."},
             Case{"DELETE FROM _CheckLimits", "The table _CheckLimits has 0 rows, not 1."},
             Case{"UPDATE _CheckLimits SET first_weekday = 7",
                  "The table _CheckLimits holds a value of no use: the check takes its own instead."},
             Case{"INSERT INTO _System SELECT * FROM _System", "The table _System has 2 rows, not 1."},
             Case{"DELETE FROM _StoredQuery WHERE name = 'UpdateCompany'", "The stored query UpdateCompany cannot be used: "},
             Case{"UPDATE _StoredQuery SET sql = 'SELECT 1' WHERE name = 'GetAllEmployees'",
                  "The stored query GetAllEmployees cannot be used: "},
             Case{"INSERT INTO TimeRecord VALUES (5, 39, NULL, 'infinity', '2003-03-05 08:00:00')",
                  "TimeRecord 5: StartTime is \"infinity\" ("},
             Case{"UPDATE Employee SET PayRate = 'NaN'", "Employee 39: PayRate is NaN (no finite number)."},
             Case{"UPDATE Employee SET HireDate = '12003-03-05'", "Employee 39: HireDate is \"12003-03-05 00:00:00\" ("},
         }) {
        SCOPED_TRACE(c.change);
        const NewServerDatabase server;
        server.TakeAnyValue();
        server.Run(c.change);
        const DatabaseCheck check = CheckDatabase(server.Address());
        ASSERT_FALSE(check.problems.empty());
        EXPECT_THAT(check.problems.front(), HasSubstr(c.problem));
        EXPECT_EQ(check.employees, 1) << "also where a column is missing";
    }
}

} // namespace

} // namespace ptk
