// A new database file, how it comes into being, and the check of a file.
#include "store/sqlite/SqliteEngine.h"
#include "store/StoreFixture.h"
#include "store/whole/BulkWriter.h"
#include "store/whole/DatabaseChecker.h"
#include "store/whole/DatabaseCreator.h"
#include "support/Files.h"

#include <sys/stat.h>

#include <csignal>
#include <filesystem>

namespace ptk {

namespace {

using DatabaseFileTest = StoreTest;

} // namespace

TEST_F(DatabaseFileTest, StartsWithOptionsQueriesAndTheAdministrator)
{
    struct stat file
    {
    };
    ASSERT_EQ(stat(Path().c_str(), &file), 0);
    EXPECT_EQ(file.st_mode & 0777U, 0600U);
    EXPECT_EQ(SystemFiles(), 1);
    EXPECT_EQ(Rows("PRAGMA application_id; PRAGMA user_version; PRAGMA integrity_check"), "1347701553|1|ok|"); // "PTK1"
    EXPECT_EQ(Rows("SELECT * FROM _System"), "PTK - Administrator|1.0|14|1899-12-30 08:00:00|1899-12-30 17:00:00|");
    EXPECT_EQ(Rows("SELECT EmployeeID, FirstName, LastName, Password, Active FROM Employee"), "39||administrator|wharf271|1|");
    EXPECT_EQ(Rows("SELECT name FROM _StoredQuery ORDER BY name"),
              "AddNewCompany|AddNewEmployee|GetAllCompanies|GetAllEmployees|UpdateCompany|UpdateEmployee|");
    const DatabaseCheck check = CheckDatabase(Path());
    EXPECT_TRUE(check.problems.empty()) << check.problems[0];
    EXPECT_EQ(check.companies, 0);
    EXPECT_EQ(check.employees, 1);
    EXPECT_EQ(check.timeRecords, 0);
}

TEST_F(DatabaseFileTest, NeverReplacesWhatIsThere)
{
    const std::string before = ReadBytes(Path());
    EXPECT_EQ(FailureOf([&] { CreateDatabase(Path()); }), failure::PathFileAccess);
    EXPECT_EQ(ReadBytes(Path()), before);
    std::filesystem::create_symlink(File("nowhere"), File("link.mdb"));
    EXPECT_EQ(FailureOf([&] { CreateDatabase(File("link.mdb")); }), failure::PathFileAccess);
    for (const char* leftover : {"-journal", "-wal", "-shm"}) {
        WriteBytes(File("new.mdb") + leftover, "of another database");
        EXPECT_EQ(FailureOf([&] { CreateDatabase(File("new.mdb")); }), failure::PathFileAccess) << leftover;
        EXPECT_TRUE(std::filesystem::remove(File("new.mdb") + leftover));
    }
    const std::string late = File("late.mdb");
    EXPECT_EQ(FailureOf([&] { CreateDatabase(late, [&](BulkWriter&) { WriteBytes(late, "somebody else's"); }); }), failure::PathFileAccess);
    EXPECT_EQ(ReadBytes(late), "somebody else's");
    EXPECT_EQ(FailureOf([&] { CreateDatabase(File("missing/new.mdb")); }), failure::PathNotFound);
    EXPECT_EQ(SystemFiles(), 3); // the database, the link, the late file
}

TEST_F(DatabaseFileTest, LeavesNothingBehindWhenFillingFails)
{
    const auto fail = [](BulkWriter& rows) {
        rows.AddCompany(CompanyRow());
        throw Failure(failure::InvalidProcedureCall);
    };
    EXPECT_EQ(FailureOf([&] { CreateDatabase(File("new.mdb"), fail); }), failure::InvalidProcedureCall);
    EXPECT_EQ(SystemFiles(), 1);
}

TEST_F(DatabaseFileTest, ClearsWhatAKilledAttemptLeftButNothingElse)
{
    const auto attempt = [&](const std::function<void()>& halfway) {
        return [&, halfway](BulkWriter& rows) {
            rows.AddCompany(CompanyRow());
            halfway();
        };
    };
    EXPECT_TRUE(WIFSIGNALED(InAnotherProcess([&] { CreateDatabase(File("new.mdb"), attempt([] { kill(getpid(), SIGKILL); })); })));
    EXPECT_GE(SystemFiles(), 2);
    WriteBytes(File("new.mdb.backup"), "mine");
    CreateDatabase(File("new.mdb"), attempt([&] {
                       EXPECT_EQ(SystemFiles(), 4) << "the draft, its journal, and what was there";
                       EXPECT_EQ(FailureOf([&] { CreateDatabase(File("new.mdb"), attempt([] { throw Failure(7); })); }), 7);
                   }));
    EXPECT_EQ(SystemFiles(), 3);
}

TEST_F(DatabaseFileTest, AFolderThatMayNotBeUsedIsAMissingPermission)
{
    chmod(m_folder.Path().c_str(), 0755);
    const std::string folder = m_folder.Path() + "/closed";
    std::filesystem::create_directory(folder);
    for (const mode_t mode : {0500U, 0000U}) {
        chmod(folder.c_str(), mode);
        EXPECT_EQ(InAnotherProcess([&] {
                      EXPECT_TRUE(getuid() != 0 || seteuid(65534) == 0);
                      EXPECT_EQ(FailureOf([&] { CreateDatabase(folder + "/new.mdb"); }), failure::PermissionDenied);
                  }),
                  0)
            << mode;
    }
}

TEST_F(DatabaseFileTest, TakesManyRowsInOneTransaction)
{
    EmployeeRow ann;
    ann.LastName = "Lee";
    ann.PayRate = 18.5F;
    CompanyRow mill;
    mill.CompanyName = "Mill";
    TimeRecordRow shift;
    shift.StartTime = DateTime(CalendarDate{2003, 3, 5}, TimeOfDay{8, 0, 0});
    CreateDatabase(File("new.mdb"), [&](BulkWriter& rows) {
        ann.CompanyID = rows.AddCompany(mill);
        shift.EmployeeID = rows.AddEmployee(ann);
        EXPECT_EQ(rows.AddTimeRecord(shift), 1);
        EXPECT_EQ(rows.AddTimeRecord(shift), 2);
    });
    {
        SqliteEngine engine(File("new.mdb"));
        BulkWriter(engine).AddCompany(mill); // never committed
    }
    RawDatabase file(File("new.mdb"));
    EXPECT_EQ(file.Rows("SELECT CompanyID, Name FROM Company"), "1|Mill|");
    EXPECT_EQ(file.Rows("SELECT EmployeeID, LastName, PayRate, CompanyID FROM Employee WHERE CompanyID = 1"), "40|Lee|18.5|1|");
    EXPECT_EQ(file.Rows("SELECT EmployeeID, StartTime, EndTime FROM TimeRecord WHERE TimeRecordID = 2"),
              "40|2003-03-05 08:00:00|1899-12-30 00:00:00|");
}

TEST_F(DatabaseFileTest, TheCheckFindsWhatIsWrong)
{
    struct Case
    {
        const char* change;
        const char* problem;
    };
    for (const Case& c : {
             Case{"PRAGMA application_id = 0", "The application_id is 0, not 1347701553."},
             Case{"PRAGMA user_version = 0", "The user_version is 0, not 1."},
             Case{"DROP TABLE TimeRecord", "There is no column TimeRecord.TimeRecordID."},
             Case{"PRAGMA legacy_alter_table = ON; ALTER TABLE Employee DROP COLUMN AutoDeduct", "There is no column Employee.AutoDeduct."},
             Case{"ALTER TABLE _Change RENAME COLUMN Step TO Steps", "There is no column _Change.Step."},
             Case{"DELETE FROM _Session", "The table _Session has 0 rows, not 1."},
             Case{"DROP TRIGGER _PaydayInsert", "The edit trail misses changes of the table _Payday."},
             Case{"ALTER TABLE _Profile RENAME COLUMN Name TO Names", "There is no column _Profile.Name."},
             Case{"DELETE FROM _Structure", "The table _Structure has 0 rows, not 1."},
             Case{"INSERT INTO _Payday (FromDay, ToDay) VALUES ('2003-03-05 00:00:00', '2003-03-04 00:00:00')",
                  "The days of _Payday 1 cannot be read or run backward: it counts for nothing."},
             Case{"DROP TRIGGER _CompanyDelete", "The edit trail misses changes of the table Company."},
             Case{"DROP TRIGGER _EditWritten", "The edit trail tells nothing: there is no trigger _EditWritten."},
             Case{"DROP TRIGGER _EditWritten; CREATE TRIGGER _EditWritten INSTEAD OF INSERT ON _Edit BEGIN SELECT 1; END",
                  "The trigger _EditWritten of the edit trail is not the program's own."},
             Case{"CREATE TRIGGER less AFTER INSERT ON TimeRecord BEGIN DELETE FROM _Change; END",
                  "The trigger less on TimeRecord is not the program's: it may change what is stored there."},
             Case{"DROP TABLE _System; CREATE TABLE _System (program TEXT, version REAL, period_length INTEGER, auto_shift_start_time "
                  "DATETIME, "
                  "auto_shift_end_time DATETIME); INSERT INTO _System VALUES ('', 1, 14, '', '')",
                  "The column _System.version is REAL, not TEXT."},
             Case{"DELETE FROM _System", "The table _System has 0 rows, not 1."},
             Case{"DELETE FROM _StoredQuery WHERE name = 'UpdateCompany'",
                  "The stored query UpdateCompany cannot be used: there is no stored query UpdateCompany."},
             Case{"UPDATE _StoredQuery SET sql = 'SELECT x FROM y' WHERE name = 'GetAllCompanies'",
                  "The stored query GetAllCompanies cannot be used: no such table: y."},
             Case{"INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (1, 'a', 'b'); PRAGMA writable_schema = 1; "
                  "UPDATE sqlite_schema SET sql = replace(sql, 'EndTime)', 'ShiftDate)') WHERE name = 'TimeRecordPeriod'",
                  "The file is damaged: "},
         }) {
        std::filesystem::remove(Path());
        CreateDatabase(Path());
        Run(c.change);
        const DatabaseCheck check = CheckDatabase(Path());
        ASSERT_FALSE(check.problems.empty()) << c.change;
        EXPECT_EQ(check.problems[0].substr(0, std::string(c.problem).size()), c.problem);
    }
}

TEST_F(DatabaseFileTest, TheCheckNamesEveryValueThatTheProgramCouldNotUse)
{
    struct Case
    {
        const char* change;
        std::vector<std::string> problems;
    };
    for (const Case& c : {
             Case{"UPDATE Employee SET Active = NULL, AutoDeduct = 'maybe', AutoDeductLunchLength = 70000, EmployeeNumber = 2147483648",
                  {"Employee 39: EmployeeNumber is 2147483648 (Overflow).", "Employee 39: Active is NULL (Invalid use of Null).",
                   "Employee 39: AutoDeduct is \"maybe\" (Type mismatch).", "Employee 39: AutoDeductLunchLength is 70000 (Overflow)."}},
             Case{"UPDATE Employee SET PayRate = '12,50', HireDate = '6/14/2026', LastName = x'00'",
                  {"Employee 39: LastName is a value of bytes (Type mismatch).",
                   "Employee 39: HireDate is \"6/14/2026\" (not stored as YYYY-MM-DD HH:MM:SS).",
                   "Employee 39: PayRate is \"12,50\" (Type mismatch)."}},
             Case{"UPDATE Employee SET EmployeeID = 3000000000; INSERT INTO Company (CompanyID) VALUES (0)",
                  {"Company 0: CompanyID is 0 (not a key that the program can use).",
                   "Employee 3000000000: EmployeeID is 3000000000 (Overflow)."}},
             Case{"INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (39, '6/14/2026 8:00', '2026-06-14T08:00:00')",
                  {"TimeRecord 1: StartTime is \"6/14/2026 8:00\" (not stored as YYYY-MM-DD HH:MM:SS).",
                   "TimeRecord 1: EndTime is \"2026-06-14T08:00:00\" (Type mismatch)."}},
             Case{"INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (5000000000, 46000, NULL)",
                  {"TimeRecord 1: EmployeeID is 5000000000 (Overflow).",
                   "TimeRecord 1: StartTime is 46000 (not stored as YYYY-MM-DD HH:MM:SS).",
                   "TimeRecord 1: EndTime is NULL (a time that is not set is stored as 1899-12-30 00:00:00)."}},
             Case{"UPDATE _System SET version = NULL, period_length = 40000, auto_shift_end_time = '17:00'",
                  {"_System: version is NULL (Invalid use of Null).", "_System: period_length is 40000 (Overflow).",
                   "_System: auto_shift_end_time is \"17:00\" (not stored as YYYY-MM-DD HH:MM:SS)."}},
             Case{"UPDATE _StoredQuery SET sql = replace(sql, ':paramURL', ':url') WHERE name = 'AddNewCompany'",
                  {"The stored query AddNewCompany cannot be used: there is no parameter paramURL."}},
             Case{"UPDATE _StoredQuery SET sql = replace(sql, '= :State', '= :State || :x') WHERE name = 'UpdateEmployee'",
                  {"The stored query UpdateEmployee cannot be used: parameter 9 has no value."}},
             Case{"UPDATE _StoredQuery SET sql = 'SELECT 40 EmployeeID, * FROM (SELECT NULL Active)' WHERE name = 'GetAllEmployees'",
                  {"The stored query GetAllEmployees cannot be used: There is no column SSNumber."}},
             Case{"UPDATE _StoredQuery SET sql = replace(sql, ' Active,', ' NULL AS Active,') WHERE name = 'GetAllEmployees'",
                  {"Employee 39: Active is NULL (Invalid use of Null)."}},
             Case{"INSERT INTO Company (Name) VALUES (NULL); UPDATE Employee SET HireDate = NULL, PayRate = NULL, CompanyID = 0;"
                  "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (7, '2026-06-14 08:00:00', '1899-12-30 00:00:00')",
                  {}},
         }) {
        std::filesystem::remove(Path());
        CreateDatabase(Path());
        Run(c.change);
        EXPECT_EQ(CheckDatabase(Path()).problems, c.problems) << c.change;
    }
}

TEST_F(DatabaseFileTest, TheCheckAcceptsFurtherTablesAndColumns)
{
    Run("ALTER TABLE Employee ADD COLUMN Shoe TEXT; CREATE TABLE Extra (a); CREATE INDEX more ON Employee (LastName)");
    EXPECT_TRUE(CheckDatabase(Path()).problems.empty());
    EXPECT_EQ(FailureOf([&] { return CheckDatabase(File("missing.mdb")); }), SQLITE_CANTOPEN);
}

} // namespace ptk
