// The edit trail: what the database writes down of every change, whoever makes it.
#include "store/backup/Backups.h"
#include "store/CJetDB.h"
#include "store/engine/Engine.h"
#include "store/StoreFixture.h"
#include "store/trail/TrailReader.h"
#include "store/trail/TrailSQL.h"
#include "store/whole/DatabaseChecker.h"
#include "support/Execute.h"
#include "support/Files.h"

#include <fmt/format.h>

namespace ptk {

namespace {

class TrailTest : public StoreTest
{
protected:
    TrailTest()
    {
        m_database->DatabaseName(Path());
        m_database->StoredBy({"Ann Lee", "ptk-admin"});
    }

    std::string Entries(const std::string& columns) const { return Rows("SELECT " + columns + " FROM _Change ORDER BY ChangeID"); }
    void Forget() const { Run("DELETE FROM _Change"); }

    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_folder.Path());
};

TEST_F(TrailTest, HoldsEveryChangeOfAnotherToolWithoutAName)
{
    EXPECT_EQ(Entries("*"), "") << "a new database starts with none";
    struct Case
    {
        const char* sql;
        const char* entry; // table, row, action, before, after, employees
    };
    for (const Case& c : {
             Case{"INSERT INTO TimeRecord (EmployeeID, StartTime) VALUES (40, '2003-03-05 08:00:00')",
                  "TimeRecord|1|insert|NULL|{\"TimeRecordID\":1,\"EmployeeID\":40,\"ShiftDate\":null,\"StartTime\":\"2003-03-05 08:00:00\","
                  "\"EndTime\":null}|NULL|40|"},
             Case{"UPDATE TimeRecord SET EndTime = '2003-03-05 17:00:00', EmployeeID = 40",
                  "TimeRecord|1|update|{\"EndTime\":null}|{\"EndTime\":\"2003-03-05 17:00:00\"}|40|40|"},
             Case{"UPDATE TimeRecord SET EndTime = EndTime", ""},
             Case{"UPDATE TimeRecord SET TimeRecordID = 7, EmployeeID = 41",
                  "TimeRecord|1|update|{\"TimeRecordID\":1,\"EmployeeID\":40}|{\"TimeRecordID\":7,\"EmployeeID\":41}|40|41|"},
             Case{"DELETE FROM TimeRecord", "TimeRecord|7|delete|{\"TimeRecordID\":7,\"EmployeeID\":41,\"ShiftDate\":null,\"StartTime\":"
                                            "\"2003-03-05 08:00:00\",\"EndTime\":\"2003-03-05 17:00:00\"}|NULL|41|NULL|"},
             Case{"UPDATE Employee SET Password = 'new', PayRate = 12.300000190734863",
                  "Employee|39|update|{\"PayRate\":0,\"Password\":\"changed\"}|{\"PayRate\":12.300000190734863,\"Password\":\"changed\"}|"
                  "39|39|"},
             Case{
                 "UPDATE Employee SET Password = NULL, PayRate = -9e999",
                 "Employee|39|update|{\"PayRate\":12.300000190734863,\"Password\":\"changed\"}|{\"PayRate\":\"-Inf\",\"Password\":null}|39|"
                 "39|"},
             Case{"UPDATE Employee SET City = X'00FF', State = 'a\"\\' || char(10) || 'b'",
                  "Employee|39|update|{\"City\":\"\",\"State\":\"\"}|{\"City\":{\"blob\":\"00FF\"},\"State\":\"a\\\"\\\\\\nb\"}|39|39|"},
             Case{
                 "INSERT INTO Company (Name) VALUES ('Ltd')",
                 "Company|1|insert|NULL|{\"CompanyID\":1,\"Name\":\"Ltd\",\"Address1\":null,\"Address2\":null,\"City\":null,\"State\":null,"
                 "\"ZipCode\":null,\"Phone\":null,\"Fax\":null,\"FederalTaxID\":null,\"URL\":null}|NULL|NULL|"},
             Case{"UPDATE _System SET period_length = 7", "_System|1|update|{\"period_length\":14}|{\"period_length\":7}|NULL|NULL|"},
             Case{"DELETE FROM _CheckLimits",
                  "_CheckLimits|1|delete|{\"long_shift_hours\":16,\"first_weekday\":0,\"show_notices\":1}|NULL|NULL|NULL|"},
             Case{"ALTER TABLE Company ADD COLUMN Logo BLOB; UPDATE Company SET Logo = X'00'", ""},
             Case{"DELETE FROM _Session; UPDATE Company SET Fax = '5'", "Company|1|update|{\"Fax\":null}|{\"Fax\":\"5\"}|NULL|NULL|"},
         }) {
        Run(c.sql);
        EXPECT_EQ(Entries("TableName, RowID, Action, Before, After, EmployeeBefore, EmployeeAfter"), c.entry) << c.sql;
        EXPECT_EQ(
            Rows("SELECT COUNT(*) FROM _Change WHERE ChangedBy IS NOT NULL OR Program IS NOT NULL OR Step IS NOT NULL OR ABS(julianday("
                 "'now', 'localtime') - julianday(ChangedAt)) > 0.01 OR json_valid(IFNULL(Before, '{}')) + json_valid(IFNULL(After, "
                 "'{}')) < 2"),
            "0|")
            << c.sql;
        Forget();
    }
}

// Damaged text, nul characters and every other value that a tool can put somewhere.
TEST_F(TrailTest, RefusesNoWrite)
{
    for (const char* value : {"X'FF41'", "CAST(X'FF41' AS TEXT)", "'a' || char(0) || 'z'", "9e999", "1e-320", "-9223372036854775808",
                              "zeroblob(100000)", "json('{}')"}) {
        Run(fmt::format("UPDATE Employee SET SSNumber = {0}, EmployeeNumber = {0}, DateOfBirth = {0}, Active = {0}, Password = {0}",
                        value));
        EXPECT_EQ(Rows("SELECT COUNT(*), SUM(json_valid(Before) AND json_valid(After)) FROM _Change"), "1|1|") << value;
        Forget();
    }
}

TEST_F(TrailTest, NamesWhoWroteAndWhatBelongsTogether)
{
    const std::string insert =
        "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 40, #3/5/2003 8:00:00 AM#, #3/5/2003 5:00:00 PM#";
    const std::vector<std::string> three(3, insert);
    EXPECT_TRUE(ExecuteAll(*m_database, three));
    EXPECT_EQ(m_database->LastStep(), 1);
    EXPECT_FALSE(ExecuteAll(*m_database, {insert, "nonsense"}));
    EXPECT_TRUE(m_database->ExecuteAction(insert));
    EXPECT_EQ(m_database->LastStep(), 4);
    {
        const CJetDB::Step step(m_database);
        EXPECT_TRUE(m_database->AddNewCompany({}));
        EXPECT_TRUE(m_database->AddNewCompany({}));
    }
    m_database->StoredBy({"", "ptk-console"});
    EXPECT_TRUE(m_database->ExecuteAction("DELETE FROM Company"));
    EXPECT_EQ(Entries("ChangedBy, Program, Step, TableName"),
              "Ann Lee|ptk-admin|1|TimeRecord|Ann Lee|ptk-admin|1|TimeRecord|Ann Lee|ptk-admin|1|TimeRecord|Ann Lee|ptk-admin|4|TimeRecord|"
              "Ann Lee|ptk-admin|5|Company|Ann Lee|ptk-admin|5|Company|NULL|ptk-console|7|Company|NULL|ptk-console|7|Company|");
    EXPECT_EQ(Rows("SELECT * FROM _Session"), "NULL|NULL|NULL|NULL|");
}

TEST_F(TrailTest, CommandsThatEndTheTransactionLeaveNoName)
{
    for (const char* statement : {"COMMIT", "ROLLBACK", "SAVEPOINT a", "BEGIN"}) {
        EXPECT_EQ(m_database->ExecuteAction(statement), statement == std::string("SAVEPOINT a")) << statement;
        EXPECT_EQ(Rows("SELECT * FROM _Session"), "NULL|NULL|NULL|NULL|") << statement;
    }
}

// A file of the version before gets its trail with the first write that changes rows, after a backup, and stays one that version reads.
TEST_F(TrailTest, AnEarlierFileGetsItWithTheFirstChange)
{
    MakeEarlier();
    Run("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '2003-03-05 08:00:00', '2003-03-05 17:00:00')");
    const auto hasTrail = [&] { return Rows("SELECT COUNT(*) FROM sqlite_master WHERE name IN ('_Session', '_Change', '_CheckLimits')"); };
    EXPECT_EQ(CheckDatabase(Path()).problems, std::vector<std::string>());
    EXPECT_TRUE(m_database->ExecuteAction("UPDATE TimeRecord SET EndTime = StartTime WHERE TimeRecordID = 2"));
    EXPECT_FALSE(m_database->ExecuteAction("UPDATE TimeRecord SET Nothing = 1"));
    EXPECT_EQ(hasTrail() + std::to_string(BackupsIn(BackupFolder(m_folder.Path())).size()), "0|0") << "no row has changed";

    EXPECT_TRUE(m_database->ExecuteAction("DELETE FROM TimeRecord"));
    EXPECT_EQ(hasTrail(), "3|");
    EXPECT_EQ(Entries("ChangedBy, Step, RowID, Action"), "Ann Lee|1|1|delete|");
    EXPECT_EQ(Rows("PRAGMA user_version; PRAGMA integrity_check; SELECT COUNT(*) FROM TimeRecord; SELECT * FROM _CheckLimits"),
              "1|ok|0|16|0|1|");
    EXPECT_EQ(CheckDatabase(Path()).problems, std::vector<std::string>());
    const std::string folder = BackupFolder(m_folder.Path());
    const auto backups = BackupsIn(folder);
    ASSERT_EQ(backups.size(), 1U);
    EXPECT_EQ(CheckedBackup(folder, backups[0]).content.value().records, 1);
    EXPECT_TRUE(m_database->ExecuteAction("UPDATE _CheckLimits SET first_weekday = 1"));
    EXPECT_EQ(BackupsIn(folder).size(), 1U);
}

TEST_F(TrailTest, AnEarlierFileStaysAsItIsWithoutABackupAndLosesNoTableForAMissingColumn)
{
    MakeEarlier();
    Run("ALTER TABLE TimeRecord DROP COLUMN ShiftDate");
    WriteBytes(m_folder.Path() + "/backups", "no folder");
    EXPECT_FALSE(m_database->AddNewCompany({}));
    EXPECT_EQ(m_database->ErrorNumber(), jetdb::InsertFailed);
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM Company; SELECT COUNT(*) FROM sqlite_master WHERE name = '_Change'"), "0|0|");
    std::filesystem::remove(m_folder.Path() + "/backups");

    EXPECT_TRUE(m_database->AddNewCompany({}));
    EXPECT_TRUE(m_database->ExecuteAction("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 40, #3/5/2003#, #3/5/2003#"));
    EXPECT_EQ(Entries("TableName"), "Company|") << "the time records go without";
}

// A file with a trail, but without reasons and closings, is read as it is and brought up to date in the same way.
TEST_F(TrailTest, AFileOfTheFirstStructureIsReadAsItIsAndBroughtUpToDateWithTheFirstChange)
{
    Run("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '2003-03-05 08:00:00', '2003-03-05 17:00:00')");
    Run(kMakeFirstStructure);
    const std::string bytes = ReadBytes(Path());
    const auto entries = ReadTrail(m_database, TrailQuery());
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].action + entries[0].reason, "insert");
    EXPECT_EQ(CheckDatabase(Path()).problems, std::vector<std::string>());
    EXPECT_TRUE(m_database->ExecuteAction("UPDATE TimeRecord SET EndTime = EndTime WHERE TimeRecordID = 2"));
    EXPECT_TRUE(ReadBytes(Path()) == bytes) << "no row has changed";

    const CJetDB::Reason why(m_database, "she forgot");
    EXPECT_TRUE(m_database->ExecuteAction("UPDATE TimeRecord SET EndTime = #3/5/2003 6:00 PM#"));
    EXPECT_TRUE(m_database->ExecuteAction("UPDATE TimeRecord SET EndTime = #3/5/2003 6:00 PM#"));
    EXPECT_EQ(Rows("SELECT ChangeID, ChangedBy, Step, After, Reason FROM _Change WHERE ChangeID > 1; SELECT version FROM _Structure; "
                   "SELECT * FROM _Session"),
              "2|Ann Lee|2|{\"EndTime\":\"2003-03-05 18:00:00\"}|she forgot|2|NULL|NULL|NULL|NULL|");
    EXPECT_EQ(ReadTrail(m_database, TrailQuery()).front().reason, "she forgot");
    {
        const CJetDB::Reason none(m_database, "");
        EXPECT_TRUE(m_database->ExecuteAction("UPDATE TimeRecord SET EndTime = #3/5/2003 7:00 PM#"));
    }
    Run("UPDATE _Session SET reason = 'for a test'; UPDATE TimeRecord SET EndTime = '2003-03-05 20:00:00'; UPDATE _Session SET reason = "
        "NULL");
    EXPECT_EQ(ReadTrailReasons(m_database, 5), (std::vector<std::string>{"for a test", "she forgot"}));
    Run("INSERT INTO _Payday (EmployeeID, FromDay) VALUES (40, 'soon'); DELETE FROM _Payday");
    EXPECT_EQ(Rows("SELECT TableName, RowID, Action, EmployeeBefore, EmployeeAfter FROM _Change WHERE ChangeID > 4"),
              "_Payday|1|insert|NULL|40|_Payday|1|delete|40|NULL|");
    EXPECT_EQ(CheckDatabase(Path()).problems, std::vector<std::string>());
    EXPECT_EQ(BackupsIn(BackupFolder(m_folder.Path())).size(), 1U);
}

TEST_F(TrailTest, AFileOfANewerStructureIsRefusedBeforeItIsTouched)
{
    Run("UPDATE _Structure SET version = 3; PRAGMA journal_mode = WAL");
    const std::string bytes = ReadBytes(Path());
    EXPECT_FALSE(m_database->ExecuteAction("DELETE FROM Employee"));
    EXPECT_EQ(m_database->LastFailure().Number(), 26);
    EXPECT_EQ(m_database->LastFailure().Description(), "the database file was made by a newer version of the program");
    EXPECT_TRUE(ReadBytes(Path()) == bytes);
}

// What Ann and Bob did to the records 1 to 3 of the employees 40 and 41, and another tool to the options.
class TrailReaderTest : public TrailTest
{
protected:
    TrailReaderTest()
    {
        Write("Ann Lee", "INSERT INTO Employee (FirstName, LastName) VALUES ('Jo', 'Kim')");                                           // 1
        Write("Ann Lee", "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 40, #3/5/2003 8:00 AM#, #3/5/2003 5:00 PM#"); // 2
        Write("Bob Ray", "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 40, #4/5/2003 8:00 AM#, #4/5/2003 5:00 PM#"); // 3
        Write("Bob Ray", "UPDATE TimeRecord SET EndTime = #3/5/2003 6:00 PM# WHERE TimeRecordID = 1");                                 // 4
        Write("Ann Lee", "UPDATE TimeRecord SET EmployeeID = 41 WHERE TimeRecordID = 1");                                              // 5
        Write("Bob Ray", "UPDATE TimeRecord SET StartTime = #3/6/2003#, EndTime = #3/6/2003 9:00 AM# WHERE TimeRecordID = 2");         // 6
        Write("Bob Ray", "DELETE FROM TimeRecord WHERE TimeRecordID = 2");                                                             // 7
        Run("UPDATE _System SET period_length = 7");                                                                                   // 8
        Write("Bob Ray", "INSERT INTO Company (Name) VALUES ('Ltd')");                                                                 // 9
        Run("INSERT INTO _Change (Action, ChangedAt, After) VALUES ('restore', '2003-03-05 23:59:59', 'no JSON')");                    // 10
        Run("UPDATE _Change SET ChangedAt = '2003-03-0' || (ChangeID - 1) || ' 08:00:00' WHERE ChangeID < 10");
    }

    void Write(const char* person, const std::string& sql)
    {
        m_database->StoredBy({person, "ptk-admin"});
        ASSERT_TRUE(m_database->ExecuteAction(sql)) << m_database->LastFailure().Description();
    }

    std::string Found(const TrailQuery& query)
    {
        std::string numbers;
        for (const TrailEntry& entry : ReadTrail(m_database, query)) {
            numbers += std::to_string(entry.id) + " ";
        }
        return numbers;
    }
};

struct QueryCase
{
    const char* name;
    std::function<void(TrailQuery&)> set;
    const char* entries;
    const char* index; // by which they are found; the order of the numbers where it is empty
};

const QueryCase kQueryCases[] = {
    {"all", [](TrailQuery&) {}, "10 9 8 7 6 5 4 3 2 1 ", ""},
    {"a page", [](TrailQuery& query) { query.olderThan = 6, query.most = 2; }, "5 4 ", ""},
    {"an employee", [](TrailQuery& query) { query.employee = 40; }, "7 6 5 4 3 2 1 ", "_ChangeEmployee (EmployeeAfter=?"},
    {"whose record it became", [](TrailQuery& query) { query.employee = 41; }, "5 ", "_ChangeEmployeeBefore (EmployeeBefore=?"},
    {"an employee's page", [](TrailQuery& query) { query.employee = 40, query.olderThan = 6, query.most = 3; }, "5 4 3 ",
     "_ChangeEmployee (EmployeeAfter=? AND rowid>? AND rowid<?)"},
    {"a person", [](TrailQuery& query) { query.person = "Bob Ray"; }, "9 7 6 4 3 ", "_ChangePerson (ChangedBy=?"},
    {"another tool", [](TrailQuery& query) { query.person = ""; }, "10 8 ", ""},
    {"a person's of an employee", [](TrailQuery& query) { query.person = "Ann Lee", query.employee = 40; }, "5 2 1 ", "_Change"},
    {"time records", [](TrailQuery& query) { query.kind = TrailKind::TimeRecords; }, "7 6 5 4 3 2 ", ""},
    {"employees", [](TrailQuery& query) { query.kind = TrailKind::People; }, "1 ", "_ChangeOther (TableName=?"},
    {"companies", [](TrailQuery& query) { query.kind = TrailKind::Companies; }, "9 ", "_ChangeOther (TableName=?"},
    {"options", [](TrailQuery& query) { query.kind = TrailKind::Options; }, "8 ", "_ChangeOther (TableName=?"},
    {"whole", [](TrailQuery& query) { query.kind = TrailKind::Whole; }, "10 ", "_ChangeOther (TableName=?"},
    {"deletions", [](TrailQuery& query) { query.action = "delete"; }, "7 ", ""},
    {"days",
     [](TrailQuery& query) {
         query.from = DateTime({2003, 3, 4}), query.to = DateTime({2003, 3, 5});
     },
     "10 6 5 ", ""},
    {"records",
     [](TrailQuery& query) {
         query.records = std::vector<std::int64_t>{1, 7};
     },
     "5 4 2 ", "_ChangeRecord (RowID=?"},
    {"no records", [](TrailQuery& query) { query.records.emplace(); }, "", "_ChangeRecord (RowID=?"},
    {"what was in days", // the first record is another's now, the second was moved there and deleted
     [](TrailQuery& query) {
         query.employee = 40, query.recordsIn = TrailDays{DateTime({2003, 3, 6}), DateTime({2003, 3, 9})};
     },
     "7 6 3 1 ", "_ChangeEmployee (EmployeeAfter=?"},
    {"what is in days",
     [](TrailQuery& query) {
         query.employee = 41, query.recordsIn = TrailDays{DateTime({2003, 3, 5}), DateTime({2003, 3, 5})};
     },
     "5 ", "_ChangeEmployee (EmployeeAfter=?"},
};

// A million entries of others cost such a question nothing.
TEST_F(TrailReaderTest, FindsWhatIsAskedForByItsIndex)
{
    for (const QueryCase& c : kQueryCases) {
        TrailQuery query;
        c.set(query);
        EXPECT_EQ(Found(query), c.entries) << c.name;
        const std::string plan = Rows("EXPLAIN QUERY PLAN " + TrailSql(query, kSqliteWords, true));
        const std::string search = *c.index == '\0' ? "_Change USING INTEGER PRIMARY KEY" : std::string("USING INDEX ") + c.index;
        EXPECT_NE(plan.find(search), std::string::npos) << c.name << ": " << plan;
        EXPECT_EQ(plan.find("SCAN _Change"), std::string::npos) << c.name << ": " << plan;
    }
}

TEST_F(TrailReaderTest, TellsThePersonsAndNeedsNoIndex)
{
    const auto persons = [&] { return ReadTrailPersons(m_database); };
    EXPECT_EQ(persons(), (std::vector<std::string>{"Ann Lee", "Bob Ray"}));
    Run("DROP INDEX _ChangePerson; DROP INDEX _ChangeRecord; DROP INDEX _ChangeOther");
    EXPECT_EQ(persons().size(), 2U) << "a file that was made before";
    for (const QueryCase& c : kQueryCases) {
        TrailQuery query;
        c.set(query);
        EXPECT_EQ(Found(query), c.entries) << c.name;
    }
    Run("DROP TABLE _Session");
    EXPECT_TRUE(persons().empty()) << "no trail";
}

} // namespace

} // namespace ptk
