#include "store/CTimeRecSQLConverter.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/sqlite/SqliteStatement.h"
#include "store/StoreFixture.h"
#include "support/Execute.h"
#include "support/Files.h"

#include <sys/resource.h>

#include <csignal>
#include <filesystem>

namespace ptk {

namespace {

using EngineTest = StoreTest;

constexpr const char* kInsert = "INSERT INTO Company (Name) VALUES ('Mill')";
constexpr std::int32_t kFlushesTheFolderToo = 3;

} // namespace

TEST_F(EngineTest, KeepsNothingOfAFailedStatementAndNothingOfItReachesTheDiskLater)
{
    Run("CREATE TRIGGER rule BEFORE INSERT ON Company WHEN NEW.Name = 'Bad' BEGIN SELECT RAISE(FAIL, 'no'); END");
    SqliteEngine engine(Path());
    EXPECT_EQ(FailureOf([&] { Execute(engine, "INSERT INTO Company (Name) VALUES ('Good'), ('Bad')"); }), SQLITE_CONSTRAINT);
    EXPECT_EQ(engine.Select("SELECT * FROM Company")->RecordCount(), 0);
    Execute(engine, kInsert);
    engine.Close();
    EXPECT_EQ(Rows("SELECT Name FROM Company"), "Mill|");
}

TEST_F(EngineTest, StoresSeveralStatementsTogetherOrNoneOfThem)
{
    Run("CREATE TRIGGER rule BEFORE INSERT ON Company WHEN NEW.Name = 'Bad' BEGIN SELECT RAISE(FAIL, 'no'); END");
    SqliteEngine engine(Path());
    const auto store = [&](const std::string& last) {
        const std::string statements[] = {kInsert, "UPDATE Company SET Company.City = 'Easton'", last};
        engine.Write([&] {
            for (const std::string& statement : statements) {
                engine.Run(statement);
            }
        });
    };
    EXPECT_EQ(FailureOf([&] { store("INSERT INTO Company (Name) VALUES ('Bad')"); }), SQLITE_CONSTRAINT);
    EXPECT_EQ(Rows("SELECT * FROM Company"), "");
    store("INSERT INTO Company (Name) VALUES ('Good')");
    EXPECT_EQ(Rows("SELECT Name, City FROM Company"), "Mill|Easton|Good|NULL|");
}

TEST_F(EngineTest, StopsWhatNeverComesToAnEnd)
{
    Run("CREATE VIEW Endless AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i FROM n");
    SqliteEngine engine(Path());
    const auto briefly = [&](const char* sql) {
        auto statement = engine.Prepare(sql);
        dynamic_cast<SqliteStatement&>(*statement).AllowSteps(2);
        return statement;
    };
    EXPECT_EQ(FailureOf([&] { briefly("SELECT MAX(i) FROM Endless")->ReadRows(); }), SQLITE_INTERRUPT);
    const auto rows = briefly("SELECT i FROM Endless");
    EXPECT_EQ(rows->ReadRows(50'000)->RecordCount(), 50'000);
    EXPECT_EQ(FailureOf([&] { rows->ReadRows(500'000); }), SQLITE_INTERRUPT) << "the steps of all portions count";
}

TEST_F(EngineTest, TakesOneStatementOfTheRightKind)
{
    SqliteEngine engine(Path());
    for (const char* statement :
         {"", " -- nothing", "SELECT 1; SELECT 2", "DELETE FROM Employee", "INSERT INTO Company (Name) VALUES ('x') RETURNING 1", "COMMIT",
          "SELECT :unknown", "SELECT ?", "SELECT 'open", "SELECT * FROM Nowhere"}) {
        EXPECT_NE(FailureOf([&] { engine.Select(statement); }), 0) << statement;
    }
    for (const char* statement :
         {"", "SELECT 1", "UPDATE _System SET period_length = 1; DELETE FROM Employee", "UPDATE _System SET period_length = :x", "COMMIT",
          "ROLLBACK", "BEGIN", "PRAGMA journal_mode=OFF", "UPDATE Nowhere SET a = 1"}) {
        EXPECT_NE(FailureOf([&] { Execute(engine, statement); }), 0) << statement;
    }
    EXPECT_EQ(engine.Select("SELECT 1; -- one\n /* and no more */ ")->RecordCount(), 1);
    engine.Close();
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM Employee") + Rows("SELECT period_length FROM _System"), "1|14|");
}

TEST_F(EngineTest, RefusesStoredQueriesThatDoNotFit)
{
    SqliteEngine engine(Path());
    const std::vector<Parameter> unknown = {{"paramName", "Mill"}, {"paramCountry", "US"}};
    const std::vector<Parameter> few = {{"paramName", "Mill"}};
    EXPECT_EQ(FailureOf([&] { engine.SelectStored("GetNobody"); }), SQLITE_NOTFOUND);
    EXPECT_EQ(FailureOf([&] { engine.Write([&] { engine.RunStored("AddNewCompany", few); }); }), SQLITE_RANGE);
    EXPECT_EQ(FailureOf([&] { engine.Write([&] { engine.RunStored("GetAllCompanies", {}); }); }), SQLITE_ERROR);
    try {
        engine.Write([&] { engine.RunStored("AddNewCompany", unknown); });
        ADD_FAILURE() << "accepted";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), SQLITE_RANGE);
        EXPECT_EQ(failure.Source(), "SQLite");
        EXPECT_EQ(failure.Description(), "there is no parameter paramCountry");
    }
}

TEST_F(EngineTest, StoresEveryKindOfValueInItsForm)
{
    SqliteEngine engine(Path());
    engine.BeginMany();
    engine.RunScript("CREATE TABLE Kinds (a, b, c, d SINGLE, e, f DATETIME, g DATETIME, h TEXT)");
    auto insert = engine.Prepare("INSERT INTO Kinds VALUES (:a, :b, :c, :d, :e, :f, :g, :h)");
    const std::vector<Parameter> values = {{"a", Value()},
                                           {"b", true},
                                           {"c", std::int16_t{-3}},
                                           {"d", 12.3F},
                                           {"e", 1e-7},
                                           {"f", DateTime()},
                                           {"g", DateTime(CalendarDate{2003, 3, 5}, TimeOfDay{8, 5, 9})},
                                           {"h", "O'Neil\n\xC3\xA9"}};
    for (const Parameter& value : values) {
        insert->Bind(value.name, value.value);
    }
    insert->Run();
    engine.Commit();
    insert.reset();
    engine.Close();
    EXPECT_EQ(Rows("SELECT * FROM Kinds"), "NULL|1|-3|12.3|1.0e-07|1899-12-30 00:00:00|2003-03-05 08:05:09|O'Neil\n\xC3\xA9|");
    EXPECT_EQ(Rows("SELECT d = 12.3 FROM Kinds"), "1|");
}

TEST_F(EngineTest, FetchesAPeriodFromTheIndexAlone)
{
    SqliteEngine engine(Path());
    const DateTime day(CalendarDate{2003, 3, 5});
    const auto plan = engine.Select("EXPLAIN QUERY PLAN " + CTimeRecSQLConverter().BuildFetchSQL(12, day, day.AddDays(14)));
    ASSERT_EQ(plan->RecordCount(), 1); // one row: nothing is sorted
    EXPECT_EQ(plan->Field("detail").ToText(), "SEARCH TimeRecord USING COVERING INDEX TimeRecordPeriod (EmployeeID=? AND StartTime>?)");
}

TEST_F(EngineTest, ListsEmployeesInTheOrderOfAnIndex)
{
    const std::string query = Rows("SELECT sql FROM _StoredQuery WHERE name = 'GetAllEmployees'");
    const std::string plan = Rows("EXPLAIN QUERY PLAN " + query.substr(0, query.rfind('|')));
    EXPECT_NE(plan.find("USING INDEX EmployeeOrder"), std::string::npos) << plan;
    EXPECT_EQ(plan.find("TEMP B-TREE"), std::string::npos) << plan;
}

TEST_F(EngineTest, HasEverythingOnDiskWhenAStatementAnswers)
{
    const int status = InAnotherProcess([&] {
        SqliteEngine engine(Path());
        Execute(engine, kInsert);
        EXPECT_EQ(engine.Select("PRAGMA synchronous")->Int32At(0), kFlushesTheFolderToo);
        if (!HasFailure()) {
            kill(getpid(), SIGKILL);
        }
    });
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGKILL);
    EXPECT_EQ(Rows("SELECT Name FROM Company; PRAGMA integrity_check"), "Mill|ok|");
    EXPECT_FALSE(std::filesystem::exists(Path() + "-journal"));
}

TEST_F(EngineTest, LosesNothingElseWhenKilledBeforeTheCommit)
{
    const int status = InAnotherProcess([&] {
        SqliteEngine engine(Path());
        Execute(engine, kInsert);
        engine.BeginMany();
        engine.RunScript("PRAGMA cache_size=1; DELETE FROM Company; INSERT INTO Company (Name) SELECT hex(randomblob(90000))");
        kill(getpid(), SIGKILL);
    });
    ASSERT_TRUE(WIFSIGNALED(status));
    SqliteEngine engine(Path());
    EXPECT_EQ(engine.Select("SELECT Name FROM Company")->Field("Name").ToText(), "Mill");
    EXPECT_EQ(engine.Select("PRAGMA integrity_check")->TextAt(0), "ok");
}

TEST_F(EngineTest, AFullDiskFailsTheStatementAndLeavesTheFileAsItWas)
{
    const std::string before = ReadBytes(Path());
    EXPECT_EQ(InAnotherProcess([&] {
                  signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit{before.size(), before.size()};
                  EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
                  SqliteEngine engine(Path());
                  EXPECT_NE(FailureOf([&] { Execute(engine, "INSERT INTO Company (Name) SELECT hex(randomblob(90000))"); }), 0);
                  Execute(engine, kInsert); // what still fits goes on
                  EXPECT_EQ(engine.Select("SELECT * FROM Company")->RecordCount(), 1);
              }),
              0);
    EXPECT_EQ(Rows("SELECT Name FROM Company; PRAGMA integrity_check"), "Mill|ok|");
    EXPECT_EQ(std::filesystem::file_size(Path()), before.size());
}

} // namespace ptk
