#include "store/CheckLimits.h"
#include "store/CJetDB.h"
#include "store/PunchSQL.h"
#include "store/sqlite/SqliteWords.h"
#include "store/StoreFixture.h"
#include "store/whole/DatabaseChecker.h"

#include <fmt/format.h>

namespace ptk {

namespace {

class CheckLimitsTest : public StoreTest
{
protected:
    CheckLimitsTest() { m_database->DatabaseName(Path()); }

    // "16 0 true"
    std::string Loaded() const
    {
        const CheckLimits limits = LoadCheckLimits(m_database);
        return fmt::format("{} {} {}", limits.longShiftHours, limits.firstWeekday, limits.showNotices);
    }

    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_folder.Path());
};

TEST_F(CheckLimitsTest, AreWhatTheRowSaysAndTheShippedOnesWhereItSaysNothing)
{
    EXPECT_EQ(Rows("SELECT * FROM _CheckLimits"), "16|0|1|");
    struct Case
    {
        const char* name;
        const char* sql;
        const char* limits;
        const char* problem = ""; // what the check of the file says
    };
    const char* const useless = "The table _CheckLimits holds a value of no use: the check takes its own instead.";
    for (const Case& c : {
             Case{"all set", "UPDATE _CheckLimits SET long_shift_hours = 12, first_weekday = 6, show_notices = 0", "12 6 false"},
             Case{"none at all", "UPDATE _CheckLimits SET long_shift_hours = NULL, first_weekday = NULL, show_notices = NULL", "16 0 true",
                  useless},
             Case{"out of range", "UPDATE _CheckLimits SET long_shift_hours = -1, first_weekday = 7, show_notices = 0", "16 0 false",
                  useless},
             Case{"no numbers", "UPDATE _CheckLimits SET long_shift_hours = 'long', first_weekday = X'00', show_notices = 'no'",
                  "16 0 true", useless},
             Case{"no row", "DELETE FROM _CheckLimits", "16 0 true", "The table _CheckLimits has 0 rows, not 1."},
             Case{"other columns",
                  "DROP TABLE _CheckLimits; CREATE TABLE _CheckLimits (first_weekday INTEGER); INSERT INTO _CheckLimits VALUES (3)",
                  "16 3 true", "There is no column _CheckLimits.long_shift_hours."},
             Case{"no table", "DROP TABLE _CheckLimits", "16 0 true"},
         }) {
        Run(c.sql);
        EXPECT_EQ(Loaded(), c.limits) << c.name;
        EXPECT_EQ(m_database->ErrorNumber(), 0) << c.name;
        const std::vector<std::string> problems = CheckDatabase(Path()).problems;
        EXPECT_EQ(problems.empty() ? "" : problems.front(), c.problem) << c.name;
    }
    std::filesystem::remove(Path());
    EXPECT_EQ(FailureOf([&] { return LoadCheckLimits(m_database); }), 14);
}

TEST_F(CheckLimitsTest, AreSavedAlsoWhereTheTableOrItsRowIsMissing)
{
    for (const char* before : {"SELECT 1", "DELETE FROM _CheckLimits", "DROP TABLE _CheckLimits"}) {
        Run(before);
        EXPECT_TRUE(SaveCheckLimits(m_database, {10, 1, false}, {})) << before;
        EXPECT_EQ(Rows("SELECT * FROM _CheckLimits"), "10|1|0|") << before;
    }
    Run("DROP TABLE _CheckLimits; CREATE TABLE _CheckLimits (hours)");
    EXPECT_FALSE(SaveCheckLimits(m_database, {10, 1, false}, {}));
    EXPECT_EQ(m_database->ErrorNumber(), jetdb::StatementFailed);
    EXPECT_EQ(Rows("SELECT * FROM _CheckLimits"), "") << "nothing half";
}

TEST_F(CheckLimitsTest, OverwriteNobodyElses)
{
    Run("UPDATE _CheckLimits SET long_shift_hours = 12, show_notices = 0");
    EXPECT_FALSE(SaveCheckLimits(m_database, {10, 0, true}, {}));
    EXPECT_EQ(m_database->LastFailure().Description(),
              "_CheckLimits was changed since it was read: long_shift_hours was 16 and is 12 now, show_notices was True and is False now");
    EXPECT_TRUE(m_database->Conflict().has_value());
    EXPECT_TRUE(SaveCheckLimits(m_database, {}, {})) << "only somebody else changed them";
    EXPECT_TRUE(SaveCheckLimits(m_database, {12, 0, false}, {})) << "the same change";
    EXPECT_EQ(Rows("SELECT * FROM _CheckLimits"), "12|0|0|");
    EXPECT_TRUE(SaveCheckLimits(m_database, {10, 0, false}, {12, 0, false}));
    EXPECT_EQ(Rows("SELECT * FROM _CheckLimits"), "10|0|0|");
}

// The search for the rows that a check needs must not go through the history, and the index behind it must not refuse any value.
TEST_F(CheckLimitsTest, UnusualRecordsAreFoundByAnIndexThatTakesEverything)
{
    const auto plan = [&](const std::string& sql) { return Rows(fmt::format("EXPLAIN QUERY PLAN {}", sql)); };
    const std::string all = plan(punchsql::Of(punchsql::kOne, kSqliteWords));
    EXPECT_NE(all.find("SEARCH TimeRecord USING COVERING INDEX TimeRecordUnusual (EmployeeID=?)"), std::string::npos) << all;
    EXPECT_NE(all.find("USING COVERING INDEX TimeRecordPeriod (EmployeeID=? AND StartTime>? AND StartTime<?)"), std::string::npos) << all;
    const std::string earlier = plan(punchsql::EarlierEnds(kSqliteWords));
    EXPECT_NE(earlier.find("USING COVERING INDEX TimeRecordPeriod (EmployeeID=? AND StartTime<?)"), std::string::npos) << earlier;
    EXPECT_EQ(earlier.find("TEMP B-TREE"), std::string::npos) << "from the newest backwards";
    EXPECT_NE(plan(punchsql::WithShiftsIn(kSqliteWords)).find("TimeRecordPeriod (EmployeeID=? AND StartTime>? AND StartTime<?)"),
              std::string::npos);
    EXPECT_EQ(plan(punchsql::EmployeesWithRecords(kSqliteWords)).find("SCAN TimeRecord"), std::string::npos);
    for (const char* value : {"NULL", "'now'", "'NOW'", "X'6E6F77'", "''", "0", "-1e300", "'2026-02-30 08:00:00'", "'2026-03-02 24:00:00'",
                              "'0050-01-01 08:00:00'", "'9999-12-31 23:59:59'", "'1899-12-30 00:00:00'", "zeroblob(100000)"}) {
        Run(fmt::format("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (1, {0}, {0}), (1, '2026-03-02 08:00:00', {0}), "
                        "(1, {0}, '2026-03-02 08:00:00')",
                        value));
    }
    Run("UPDATE TimeRecord SET StartTime = 'now', EndTime = 'now'");
    EXPECT_EQ(Rows("PRAGMA integrity_check"), "ok|");
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM TimeRecord"), "39|");
}

} // namespace

} // namespace ptk
