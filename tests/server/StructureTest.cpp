// What a server's database holds by itself, whichever tool writes there: the trail to the letter, its rates, and who may do what.
#include "platform/Failure.h"
#include "store/postgres/PostgresEngine.h"
#include "store/postgres/ServerCreator.h"
#include "store/whole/DatabaseChecker.h"
#include "support/NewServerDatabase.h"

#include <gmock/gmock.h>

namespace ptk {

namespace {

using ::testing::HasSubstr;

class StructureTest : public ::testing::Test
{
protected:
    // The rows of the last statement: "a|NULL|b|", each value with its bar.
    static std::string Rows(ServerLine& line, const std::string& sql)
    {
        std::string rows;
        const auto results = line.Send({{sql, {}, false, false}});
        for (int row = 0; row < results.back().RowCount(); ++row) {
            for (int column = 0; column < results.back().ColumnCount(); ++column) {
                rows += results.back().IsNull(row, column) ? "NULL" : std::string(results.back().Text(row, column));
                rows += '|';
            }
        }
        return rows;
    }
    std::string Rows(const std::string& sql) { return Rows(m_line, sql); }
    std::string Entries(const std::string& columns) { return Rows("SELECT " + columns + " FROM _Change ORDER BY ChangeID"); }

    // Empty when the script was done.
    static std::string Refusal(ServerLine& line, const std::string& script)
    {
        try {
            line.RunScript(script.c_str());
            return "";
        } catch (const Failure& failure) {
            return failure.Description();
        }
    }

    NewServerDatabase m_database;
    ServerLine m_line{m_database.Address(), std::nullopt};
};

TEST_F(StructureTest, TellsEveryChangeOfAnotherToolAsTheFileDoes)
{
    EXPECT_EQ(Entries("*"), "") << "a new database starts with none";
    struct Case
    {
        const char* sql;
        const char* entry; // table, row, action, before, after, employees
    };
    for (const Case& c : {
             Case{"INSERT INTO TimeRecord (EmployeeID, StartTime) VALUES (40, '0100-01-01 08:00:00')",
                  R"(TimeRecord|1|insert|NULL|{"TimeRecordID":1,"EmployeeID":40,"ShiftDate":null,"StartTime":"0100-01-01 08:00:00",)"
                  R"("EndTime":null}|NULL|40|)"},
             Case{"UPDATE TimeRecord SET EndTime = '9999-12-31 23:59:59', EmployeeID = 40",
                  R"(TimeRecord|1|update|{"EndTime":null}|{"EndTime":"9999-12-31 23:59:59"}|40|40|)"},
             Case{"UPDATE TimeRecord SET EndTime = EndTime", ""},
             Case{"UPDATE TimeRecord SET TimeRecordID = 7, EmployeeID = 41",
                  R"(TimeRecord|1|update|{"TimeRecordID":1,"EmployeeID":40}|{"TimeRecordID":7,"EmployeeID":41}|40|41|)"},
             Case{"DELETE FROM TimeRecord",
                  R"(TimeRecord|7|delete|{"TimeRecordID":7,"EmployeeID":41,"ShiftDate":null,"StartTime":"0100-01-01 08:00:00",)"
                  R"("EndTime":"9999-12-31 23:59:59"}|NULL|41|NULL|)"},
             Case{"SET extra_float_digits = 0; UPDATE Employee SET Password = 'new', PayRate = 16777215, OvertimePayRate = 0.1, Active = "
                  "false",
                  R"(Employee|39|update|{"PayRate":0,"OvertimePayRate":0,"Active":1,"Password":"changed"}|)"
                  R"({"PayRate":16777215,"OvertimePayRate":0.1,"Active":0,"Password":"changed"}|39|39|)"},
             Case{"UPDATE Employee SET Password = NULL, PayRate = -0.5, HireDate = NULL, Active = NULL",
                  R"(Employee|39|update|{"HireDate":"1899-12-30 00:00:00","PayRate":16777215,"Active":0,"Password":"changed"}|)"
                  R"({"HireDate":null,"PayRate":-0.5,"Active":null,"Password":null}|39|39|)"},
             Case{R"(UPDATE Employee SET City = 'true', State = E'Тула "a"\\\n\x01', ZipCode = '2003-03-05T08:00:00')",
                  R"(Employee|39|update|{"City":"","State":"","ZipCode":""}|)"
                  R"({"City":"true","State":"Тула \"a\"\\\n\u0001","ZipCode":"2003-03-05T08:00:00"}|39|39|)"},
             Case{"INSERT INTO Company (Name) VALUES ('Ltd')",
                  R"(Company|1|insert|NULL|{"CompanyID":1,"Name":"Ltd","Address1":null,"Address2":null,"City":null,"State":null,)"
                  R"("ZipCode":null,"Phone":null,"Fax":null,"FederalTaxID":null,"URL":null}|NULL|NULL|)"},
             Case{"UPDATE _System SET period_length = 7, auto_shift_end_time = '1899-12-30 16:30:00'",
                  R"(_System|1|update|{"period_length":14,"auto_shift_end_time":"1899-12-30 17:00:00"}|)"
                  R"({"period_length":7,"auto_shift_end_time":"1899-12-30 16:30:00"}|NULL|NULL|)"},
             Case{"DELETE FROM _CheckLimits",
                  R"(_CheckLimits|1|delete|{"long_shift_hours":16,"first_weekday":0,"show_notices":1}|NULL|NULL|NULL|)"},
             Case{"INSERT INTO _Payday (EmployeeID, FromDay) VALUES (40, '2003-03-05')",
                  R"(_Payday|1|insert|NULL|{"PaydayID":1,"EmployeeID":40,"FromDay":"2003-03-05 00:00:00","ToDay":null,"PaidAt":null,)"
                  R"("PaidBy":null,"Regular":null,"Overtime":null,"Gross":null,"Entry":null}|NULL|40|)"},
             Case{"ALTER TABLE Company ADD COLUMN Logo bytea, DROP COLUMN Address2; UPDATE Company SET Logo = '\\x00'", ""},
             Case{"SET ptk.step = 'x'; SET ptk.next = '99999999999999999999'; UPDATE Company SET Fax = '5'",
                  R"(Company|1|update|{"Fax":null}|{"Fax":"5"}|NULL|NULL|)"},
         }) {
        m_line.RunScript(c.sql);
        EXPECT_EQ(Entries("TableName, RowID, Action, Before, After, EmployeeBefore, EmployeeAfter"), c.entry) << c.sql;
        EXPECT_EQ(Rows("SELECT COUNT(*) FROM _Change WHERE ChangedBy IS NOT NULL OR Program IS NOT NULL OR Step IS NOT NULL OR "
                       "ABS(EXTRACT(epoch FROM localtimestamp - ChangedAt::timestamp)) > 60"),
                  "0|")
            << c.sql;
        m_line.RunScript("DELETE FROM _Change");
    }
}

TEST_F(StructureTest, KeepsAStepTogether)
{
    const std::string open = "BEGIN; SELECT set_config('ptk.user', 'Ann Lee', true), set_config('ptk.program', 'ptk-admin', true), "
                             "set_config('ptk.step', n, true), set_config('ptk.next', n, true) "
                             "FROM (SELECT nextval('_change_changeid_seq')::text) AS step (n);";
    const std::string two = "INSERT INTO Company (Name) VALUES ('a'), ('b');";
    m_line.RunScript((open + two).c_str());
    EXPECT_EQ(Rows("SELECT current_setting('ptk.last')"), "2|");
    m_line.RunScript("COMMIT");
    m_line.RunScript((open + "SAVEPOINT a; " + two + "ROLLBACK TO a; DELETE FROM Company WHERE Name = 'a'; COMMIT").c_str());
    m_line.RunScript("BEGIN; SET LOCAL ptk.untold = '1'; DELETE FROM Company; SELECT ptk_add_entry('import', 'x'); COMMIT");
    m_line.RunScript(two.c_str());
    EXPECT_EQ(Entries("ChangeID, ChangedBy, Program, Step, Action"),
              "1|Ann Lee|ptk-admin|1|insert|2|Ann Lee|ptk-admin|1|insert|5|Ann Lee|ptk-admin|3|delete|6|NULL|NULL|NULL|import|"
              "7|NULL|NULL|NULL|insert|8|NULL|NULL|NULL|insert|");
}

// Structure 2, as far as 3 differs from it and any value is taken.
constexpr const char* kBackToTwo = R"(
    DROP FUNCTION ptk_next, ptk_said;
    DROP INDEX TimeRecordUnusual;
    DROP TABLE _Payday, _Profile;
    ALTER TABLE _Change DROP COLUMN Reason;
    GRANT CREATE ON SCHEMA public TO PUBLIC;
    UPDATE _Structure SET version = 2)";

// All that is in the schema of the tables, in words.
constexpr const char* kDescription = R"(
    SELECT string_agg(line, E'\n' ORDER BY line COLLATE "C") FROM (
        SELECT pg_get_functiondef(oid) || array_to_string(proacl, ' ') FROM pg_proc WHERE pronamespace = 'public'::regnamespace UNION ALL
        SELECT pg_get_indexdef(indexrelid) FROM pg_index JOIN pg_class ON oid = indexrelid WHERE relnamespace = 'public'::regnamespace UNION ALL
        SELECT conrelid::regclass || conname || pg_get_constraintdef(oid) FROM pg_constraint UNION ALL
        SELECT pg_get_triggerdef(oid) FROM pg_trigger UNION ALL
        SELECT attrelid::regclass || ' ' || attname || format_type(atttypid, atttypmod) || rank() OVER (PARTITION BY attrelid ORDER BY attnum)
            FROM pg_attribute JOIN pg_class ON pg_class.oid = attrelid WHERE NOT attisdropped AND relnamespace = 'public'::regnamespace UNION ALL
        SELECT relname || array_to_string(relacl, ' ') FROM pg_class WHERE relnamespace = 'public'::regnamespace UNION ALL
        SELECT array_to_string(nspacl, ' ') FROM pg_namespace WHERE nspname = 'public' UNION ALL
        SELECT 'structure ' || version FROM _Structure) AS lines (line))";

TEST_F(StructureTest, AnOlderOneBecomesWhatANewOneIs)
{
    const std::string made = Rows(kDescription);
    m_database.TakeAnyValue();
    m_line.RunScript("UPDATE Employee SET PayRate = 'NaN', HireDate = 'infinity'; DELETE FROM _Change");
    m_line.RunScript(kBackToTwo);
    EXPECT_NE(Rows(kDescription), made);
    const PostgresEngine owner(m_database.Address());
    EXPECT_EQ(Rows(kDescription), made);
    EXPECT_EQ(Rows("SELECT PayRate, HireDate FROM Employee"), "NaN|infinity|") << "which stays until somebody corrects it";
    EXPECT_THAT(Refusal(m_line, "UPDATE Employee SET City = 'x'"), HasSubstr("violates check constraint"));
    m_line.RunScript("UPDATE Employee SET PayRate = 1, HireDate = NULL");
}

TEST_F(StructureTest, ANumberThatIsNoneIsNoStructure)
{
    m_line.RunScript("ALTER TABLE _Structure ALTER COLUMN version TYPE text, ALTER COLUMN version DROP NOT NULL");
    for (const char* none : {"UPDATE _Structure SET version = 'three'", "UPDATE _Structure SET version = NULL",
                             "UPDATE _Structure SET version = '3 '", "UPDATE _Structure SET version = '0'", "DELETE FROM _Structure"}) {
        m_line.RunScript(none);
        try {
            const PostgresEngine refused(m_database.Address());
            ADD_FAILURE() << none;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), engine::NoDatabase) << none;
            EXPECT_THAT(failure.Description(), HasSubstr("_Structure")) << none;
        }
    }
}

TEST_F(StructureTest, KeepsRatesToTheLastBit)
{
    for (const char* rate : {"12.3", "0.1", "1.6777216e+07", "7.8333335", "3.4028235e+38", "1e-45", "-0.33333334"}) {
        EXPECT_EQ(Rows(fmt::format("UPDATE Employee SET PayRate = '{}' RETURNING PayRate", rate)), fmt::format("{}|", rate));
        EXPECT_EQ(Rows("SELECT (After ->> 'PayRate')::real FROM _Change ORDER BY ChangeID DESC LIMIT 1"), fmt::format("{}|", rate));
    }
}

TEST_F(StructureTest, LetsTheRolesDoTheirsAndNoMore)
{
    for (const char* role : {"ptk_ann LOGIN IN ROLE ptk_office", "ptk_bob LOGIN IN ROLE ptk_reader"}) { // each test makes its own
        m_line.RunScript(fmt::format("DO $$ BEGIN CREATE ROLE {}; EXCEPTION WHEN duplicate_object THEN NULL; END $$", role).c_str());
    }
    ServerLine ann(m_database.Address("ptk_ann"), std::nullopt);
    ServerLine bob(m_database.Address("ptk_bob"), std::nullopt);
    for (const char* write :
         {"INSERT INTO Employee (LastName) VALUES ('Lee')", "UPDATE Employee SET City = 'x'",
          "INSERT INTO TimeRecord (EmployeeID) VALUES (40)", "DELETE FROM TimeRecord", "INSERT INTO Company (Name) VALUES ('a')",
          "UPDATE Company SET Name = 'b'", "DELETE FROM Company", "UPDATE _System SET period_length = 7",
          "UPDATE _CheckLimits SET show_notices = false", "INSERT INTO _Profile (Name) VALUES ('a')", "DELETE FROM _Profile",
          "SELECT nextval('_change_changeid_seq')", "SELECT ptk_add_entry('restore', 'x')"}) {
        EXPECT_EQ(Refusal(ann, write), "") << write;
        EXPECT_THAT(Refusal(bob, write), HasSubstr("permission denied")) << write;
    }
    EXPECT_EQ(Refusal(bob, "SELECT Password FROM Employee; SELECT * FROM _Change; SELECT * FROM _StoredQuery; SELECT * FROM _Structure"),
              "");
    for (const char* refused :
         {"ALTER TABLE Company ADD COLUMN x integer", "DROP INDEX EmployeeOrder", "INSERT INTO _Change (RowID) VALUES (1)",
          "UPDATE _Change SET Step = 1", "SELECT ptk_add('a', 'insert', 1, NULL, NULL, NULL, NULL)",
          "SELECT setval('_change_changeid_seq', 1)", "SET session_replication_role = replica", "CREATE TABLE public.x (y integer)",
          "CREATE TEMP TABLE x (y integer); CREATE TRIGGER x AFTER INSERT ON x EXECUTE FUNCTION ptk_tell()"}) {
        EXPECT_NE(Refusal(ann, refused), "") << refused;
        EXPECT_NE(Refusal(bob, refused), "") << refused;
    }
}

// The ways in for a stranger who may make objects beside the tables, and for a login of the office, which may always make temporary ones.
TEST_F(StructureTest, NothingOfAStrangersIsRunWithTheOwnersRight)
{
    m_line.RunScript("DO $$ BEGIN CREATE ROLE ptk_ann LOGIN IN ROLE ptk_office; EXCEPTION WHEN duplicate_object THEN NULL; END $$;"
                     "DO $$ BEGIN CREATE ROLE ptk_eve LOGIN; EXCEPTION WHEN duplicate_object THEN NULL; END $$;"
                     "GRANT CREATE, USAGE ON SCHEMA public TO PUBLIC; CREATE TABLE Caught (who text); GRANT ALL ON Caught TO PUBLIC");
    ServerLine eve(m_database.Address("ptk_eve"), std::nullopt);
    for (const char* way : {"FUNCTION concat_ws(text, text, text) RETURNS text", "FUNCTION json_build_object(text, text) RETURNS json",
                            "FUNCTION set_config(text, text, text) RETURNS text", "FUNCTION nextval(text) RETURNS bigint",
                            "FUNCTION ptk_add(text, text, integer, text, json, integer, integer) RETURNS void",
                            "FUNCTION trap(text, text) RETURNS text", "FUNCTION trap(json, text) RETURNS text"}) {
        const auto trap =
            fmt::format("CREATE {} LANGUAGE plpgsql AS $$ BEGIN INSERT INTO public.Caught VALUES (current_user); RETURN NULL; END $$", way);
        eve.RunScript(std::string(way).ends_with("void") ? std::string(trap).replace(trap.find("RETURN NULL"), 11, "RETURN").c_str()
                                                         : trap.c_str());
    }
    eve.RunScript(
        "CREATE OPERATOR || (LEFTARG = text, RIGHTARG = text, FUNCTION = trap); CREATE OPERATOR ->> (LEFTARG = json, RIGHTARG = text, "
        "FUNCTION = trap); CREATE DOMAIN jsonb AS text; CREATE TABLE pg_class (oid oid)");
    ServerLine ann(m_database.Address("ptk_ann"), std::nullopt);
    ann.RunScript(
        "CREATE TEMP TABLE _Change (LIKE public._Change); CREATE TEMP SEQUENCE _change_changeid_seq; CREATE DOMAIN pg_temp.json AS text; "
        "CREATE FUNCTION pg_temp.ptk_number(text) RETURNS bigint LANGUAGE sql AS 'SELECT 4711::bigint'; SET search_path = pg_temp, public");
    ann.RunScript("UPDATE Employee SET City = 'x'; INSERT INTO Company (Name) VALUES ('a'); SELECT public.ptk_add_entry('import', 'f')");
    EXPECT_EQ(Rows(ann, "SELECT COUNT(*) FROM Caught"), "0|");
    EXPECT_EQ(Rows(ann, "SELECT COUNT(*) FROM pg_temp._Change"), "0|");
    EXPECT_EQ(Rows("SELECT string_agg(ChangeID || Action, ' ' ORDER BY ChangeID) FROM _Change"), "1update 2insert 3import|");
    const DatabaseCheck check = CheckDatabase(m_database.Address());
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM Caught"), "0|") << "nor by the check";
    EXPECT_THAT(check.problems,
                testing::IsSupersetOf(
                    {"The function concat_ws(text, text, text) beside the tables is not the program's, and may be taken for one of the "
                     "server's own.",
                     "The operator ||(text, text) beside the tables is not the program's, and may be taken for one of the server's own.",
                     "PUBLIC may make objects beside the tables, which only their owner should."}));
    EXPECT_THAT(check.problems, testing::SizeIs(7 + 2 + 1));
}

TEST_F(StructureTest, TablesAreNotMadeBesideThingsOfStrangers)
{
    m_line.RunScript(
        "DROP SCHEMA public CASCADE; CREATE SCHEMA public; CREATE FUNCTION ptk_tell(integer) RETURNS integer LANGUAGE sql AS 'SELECT 1'");
    const auto refusal = [&] {
        try {
            CreateServerDatabase(m_database.Address(), [&](PostgresEngine&) { CreateDatabase(m_database.Address()); });
        } catch (const Failure& failure) {
            return failure.Description();
        }
        return std::string();
    };
    EXPECT_THAT(refusal(), HasSubstr("ptk_tell(integer)"));
    m_line.RunScript("DROP FUNCTION ptk_tell");
    EXPECT_THAT(refusal(), HasSubstr("Somebody else is making")) << "while it is being made";
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM pg_class WHERE relname = 'company'"), "0|");
}

// What a login of the office may say of itself: nothing that gets in the way of others, or fails its own write.
TEST_F(StructureTest, SettingsThatLieGetNowhere)
{
    m_line.RunScript(
        "SET ptk.next = '3'; SET ptk.step = '999999999999'; SELECT set_config('ptk.user', string_agg(md5(n::text), 'Ж'), false) FROM "
        "generate_series(1, 400) AS n; UPDATE Employee SET City = '1'; SET ptk.next = '999999999'; UPDATE Employee SET City = '2'; "
        "SELECT set_config('ptk.next', currval('_change_changeid_seq')::text, false); UPDATE Employee SET City = '3'");
    ServerLine other(m_database.Address(), std::nullopt);
    other.RunScript("UPDATE Employee SET City = '4'");
    EXPECT_EQ(Entries("ChangeID, Step, length(ChangedBy)"), "1|NULL|500|2|NULL|500|3|NULL|500|4|NULL|NULL|");
}

} // namespace

} // namespace ptk
