// What a caller of the database sees, the same whether a file or a server keeps it.
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "office/records/UndoStack.h"
#include "platform/text/Text.h"
#include "store/CheckLimits.h"
#include "store/CJetDB.h"
#include "store/CSystemOptions.h"
#include "store/CTimeRecSQLConverter.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"
#include "store/PunchSQL.h"
#include "store/trail/TrailReader.h"
#include "support/Execute.h"
#include "support/NewServerDatabase.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <optional>

namespace ptk {

namespace {

enum class Kept
{
    InFile,
    OnServer
};

class ContractTest : public testing::TestWithParam<Kept>
{
protected:
    ContractTest()
    {
        if (GetParam() == Kept::OnServer) {
            m_server.emplace();
        } else {
            CreateDatabase(Name());
        }
        database = Another();
    }

    std::string Name() const { return m_server ? m_server->Address() : folder.Path() + "/system/ptk_11.mdb"; }

    std::shared_ptr<CJetDB> Another() const
    {
        auto another = std::make_shared<CJetDB>(folder.Path());
        another->DatabaseName(Name());
        another->StoredBy({"Ann", "ptk-admin"});
        return another;
    }

    // All rows, cell by cell.
    std::string Rows(const std::string& sql)
    {
        EXPECT_TRUE(database->OpenDB()) << database->LastFailure().Description();
        const auto rows = database->ExecuteSelect(sql);
        if (rows == nullptr) {
            return fmt::format("failed {}", database->LastFailure().Number());
        }
        std::string text;
        for (; !rows->EndOfFile(); rows->MoveNext()) {
            for (std::size_t column = 0; column < m_columns; ++column) {
                text += rows->TextToShow(column) + '|';
            }
        }
        database->CloseDB();
        return text;
    }
    std::string Rows(std::size_t columns, const std::string& sql)
    {
        m_columns = columns;
        return Rows(sql);
    }

    bool Do(const std::string& sql) { return database->ExecuteAction(sql); }
    std::int32_t AddRecord(const char* start, const char* end)
    {
        EXPECT_TRUE(Do(fmt::format("INSERT INTO TimeRecord ( EmployeeID, StartTime, EndTime )  SELECT 40, #{}#, #{}#;", start, end)));
        return ToInt32(Rows(1, "SELECT MAX(TimeRecordID) FROM TimeRecord").substr(0, 1));
    }

    TemporaryFolder folder;
    std::optional<NewServerDatabase> m_server;
    std::shared_ptr<CJetDB> database;
    std::size_t m_columns = 1;
};

struct EmployeeEntries : EmployeeSink
{
    bool InsertLoaded(EmployeeRow row, std::int32_t /*position*/) override
    {
        rows.push_back(std::move(row));
        return true;
    }

    std::vector<EmployeeRow> rows;
};

EmployeeRow Anna()
{
    EmployeeRow row;
    row.SSN = "123-45-6789";
    row.EmployeeNumber = -2147483647;
    row.FirstName = "Анна";
    row.LastName = "O'Neil \"Ω\" \\ 李";
    row.Address1 = "line\r\nline\ttab";
    row.Password = "'; DROP TABLE Employee; --";
    row.PayRate = 12.3F;
    row.OvertimePayRate = 16777217.0F;
    row.DateOfBirth = DateTime({100, 1, 1}, {});
    row.HireDate = DateTime({9999, 12, 31}, {23, 59, 59});
    row.EmployeeActive = true;
    row.CompanyID = 2147483647;
    row.AutoDeductLunchLength = 32767;
    row.AutoDeductBreakLength = 10;
    return row;
}

TEST_P(ContractTest, AnEmployeeComesBackToTheLastBit)
{
    const EmployeeRow anna = Anna();
    ASSERT_TRUE(database->AddNewEmployee(anna)) << database->LastFailure().Description();
    EmployeeEntries found;
    ASSERT_TRUE(database->LoadEmployeeList(found));
    ASSERT_EQ(found.rows.size(), 2U);
    const EmployeeRow& row = found.rows.back();
    EXPECT_EQ(row.EmployeeID, 40);
    EXPECT_EQ(row.EmployeeNumber, -2147483647);
    EXPECT_EQ(row.FirstName + '|' + row.LastName + '|' + row.Address1 + '|' + row.Password,
              "Анна|O'Neil \"Ω\" \\ 李|line\r\nline\ttab|'; DROP TABLE Employee; --");
    EXPECT_EQ(row.PayRate, 12.3F);
    EXPECT_EQ(row.OvertimePayRate, 16777216.0F);
    EXPECT_EQ(row.DateOfBirth, anna.DateOfBirth);
    EXPECT_EQ(row.HireDate, anna.HireDate);
    EXPECT_TRUE(row.ReleaseDate.IsZero());
    EXPECT_TRUE(row.EmployeeActive);
    EXPECT_FALSE(row.AutoDeduct);
    EXPECT_EQ(row.AutoDeductLunchLength, 32767);
    EmployeeEntries named;
    EXPECT_TRUE(database->LoadEmployeesNamed(named, "Анна O'Neil \"Ω\" \\ 李")) << database->LastFailure().Description();
    EXPECT_EQ(named.rows.size(), 1U);
}

// By the 26 letters without their case, then by bytes; a null is an empty text.
TEST_P(ContractTest, NamesAreInOneOrder)
{
    for (const char* name : {"'zoe'", "'Ärmel'", "'adam'", "'ärmel'", "'ADAM'", "'_x'", "'Zoe'", "NULL", "'a b'", "'А'"}) {
        ASSERT_TRUE(Do(fmt::format("INSERT INTO Employee (LastName, Active, AutoDeduct) VALUES ({}, '1', '0')", name)));
    }
    EmployeeEntries found;
    ASSERT_TRUE(database->LoadEmployeeList(found)) << database->LastFailure().Description();
    std::string order;
    for (const EmployeeRow& row : found.rows) {
        order += row.LastName + ',';
    }
    EXPECT_EQ(order, ",_x,a b,adam,ADAM,administrator,zoe,Zoe,Ärmel,ärmel,А,");
}

TEST_P(ContractTest, TheProgramsStatementsDoWhatTheySay)
{
    CTimeRecSQLConverter converter;
    AddRecord("3/5/2003 8:00 AM", "3/5/2003 5:00 PM");
    AddRecord("3/4/2003 8:00:30 AM", "12:00:00 AM");
    AddRecord("1/1/100", "12/31/9999 11:59:59 PM");
    const std::string fetch = converter.BuildFetchSQL(40, DateTime({2003, 3, 1}, {}), DateTime({2003, 3, 6}, {}));
    EXPECT_EQ(Rows(4, fetch), "2|40|\"2003-03-04 08:00:30\"|\"1899-12-30 00:00:00\"|1|40|\"2003-03-05 08:00:00\"|\"2003-03-05 17:00:00\"|");
    EXPECT_TRUE(Do("UPDATE TimeRecord SET TimeRecord.EmployeeID = 41, TimeRecord.EndTime = #3/5/2003 6:00 PM# WHERE "
                   "((TimeRecord.TimeRecordID = 1));"));
    EXPECT_TRUE(Do("DELETE TimeRecord.TimeRecordID, TimeRecord.ShiftDate FROM TimeRecord WHERE ((TimeRecord.TimeRecordID = 2)); "));
    EXPECT_EQ(Rows(3, "SELECT [TimeRecord].TimeRecordID, \"EmployeeID\", EndTime FROM [TimeRecord] ORDER BY StartTime"),
              "3|40|\"9999-12-31 23:59:59\"|1|41|\"2003-03-05 18:00:00\"|");
}

TEST_P(ContractTest, OfEqualRecordsTheFirstComesFirst)
{
    for (int i = 0; i < 3; ++i) {
        AddRecord("3/5/2003 8:00 AM", "3/5/2003 5:00 PM");
    }
    ASSERT_TRUE(Do("UPDATE TimeRecord SET EmployeeID = 41 WHERE TimeRecordID < 3") && Do("UPDATE TimeRecord SET EmployeeID = 40"));
    CTimeRecordFactory factory;
    factory.PTKDatabase(database);
    ASSERT_TRUE(factory.BuildList(40, DateTime({2003, 3, 1}, {}), DateTime({2003, 3, 6}, {})));
    for (std::int32_t i = 1; i <= 3; ++i) {
        EXPECT_EQ(factory.TimeRecordList()->RecordAt(i).TimeRecordID(), i);
    }
}

TEST_P(ContractTest, FailuresHaveTheSameNumbers)
{
    struct Case
    {
        const char* sql;
        std::int32_t code;
        std::int32_t engine;
    };
    for (const Case& c : {
             Case{"", jetdb::NoSql, jetdb::NoSql},
             Case{" ; -- nothing\n", jetdb::StatementFailed, 1},
             Case{"DELETE FROM Nowhere", jetdb::StatementFailed, 1},
             Case{"INSERT INTO Company (CompanyID, Name) VALUES (7, 'a'), (7, 'b')", jetdb::StatementFailed, 19},
             Case{"SELECT 1", jetdb::StatementFailed, 1},
             Case{"DELETE FROM Company; DELETE FROM Employee", jetdb::StatementFailed, 1},
             Case{"UPDATE Company SET Name = #13/45/2003#", jetdb::StatementFailed, 13},
         }) {
        const auto fresh = Another();
        EXPECT_FALSE(fresh->ExecuteAction(c.sql)) << c.sql;
        EXPECT_EQ(fresh->ErrorNumber(), c.code) << c.sql;
        EXPECT_EQ(fresh->LastFailure().Number(), c.engine) << c.sql << ": " << fresh->LastFailure().Description();
    }
    EXPECT_EQ(Rows(1, "SELECT COUNT(*) FROM Company"), "0|") << "nothing of a failed statement is left";
    EXPECT_EQ(Rows(1, "DELETE FROM Employee"), "failed 1");
    EXPECT_EQ(Rows(1, "/* nothing */"), "failed 1");
    EXPECT_EQ(Rows(1, "SELECT Nothing FROM Employee"), "failed 1");
    EXPECT_EQ(Rows(1, "SELECT COUNT(*) FROM Employee"), "1|") << "the database goes on";
    EXPECT_EQ(Another()->ExecuteSelect("SELECT 1"), nullptr) << "closed";
}

TEST_P(ContractTest, ARowThatCannotBeReadIsNamed)
{
    ASSERT_TRUE(Do("INSERT INTO Employee (LastName, AutoDeduct) VALUES ('Lee', '0')"));
    EmployeeEntries found;
    EXPECT_FALSE(database->LoadEmployeeList(found));
    EXPECT_EQ(database->ErrorNumber(), jetdb::ListingFailed);
    EXPECT_EQ(database->LastFailure().Description(), "Employee 40: Active is NULL (Invalid use of Null)");
}

TEST_P(ContractTest, AChangeOfAnotherIsNotOverwritten)
{
    ASSERT_TRUE(database->AddNewEmployee(Anna()));
    EmployeeEntries read;
    ASSERT_TRUE(database->LoadEmployeeList(read));
    const EmployeeRow asRead = read.rows.back();
    EmployeeRow theirs = asRead;
    theirs.PayRate = 13.5F;
    ASSERT_TRUE(Another()->UpdateEmployee(theirs, asRead)) << "of their own";
    EmployeeRow ours = asRead;
    ours.Phone = "1";
    EXPECT_FALSE(database->UpdateEmployee(ours, asRead));
    ASSERT_TRUE(database->Conflict());
    EXPECT_EQ(database->Conflict()->Text(), "Employee 40 was changed since it was read: PayRate was 12.3 and is 13.5 now");
    EXPECT_TRUE(database->UpdateEmployee(theirs, theirs)) << database->LastFailure().Description();
}

TEST_P(ContractTest, OptionsAndLimitsAreKept)
{
    CSystemOptions options;
    options.PTKDatabase(database);
    ASSERT_TRUE(database->OpenDB() && options.Load());
    EXPECT_EQ(options.PeriodLength(), 14);
    EXPECT_EQ(FormatDateTime(options.AutoShiftEndTime(), "hh:mm AM/PM"), "05:00 PM");
    options.PeriodLength(7);
    EXPECT_TRUE(options.Update()) << database->LastFailure().Description();
    EXPECT_EQ(Rows(1, "SELECT period_length FROM _System"), "7|");
    options.PeriodLength(10);
    EXPECT_TRUE(options.Update()) << "one's own change is known";
    EXPECT_EQ(LoadCheckLimits(database), CheckLimits());
    EXPECT_TRUE(SaveCheckLimits(database, {12, 1, false}, CheckLimits())) << database->LastFailure().Description();
    EXPECT_EQ(LoadCheckLimits(database), (CheckLimits{12, 1, false}));
    EXPECT_FALSE(SaveCheckLimits(database, {10, 0, true}, CheckLimits()));
}

// Open, without an end, backward, longer than a day; not a day long, nor within one.
TEST_P(ContractTest, UnusualRecordsAreFound)
{
    AddRecord("3/5/2003 8:00 AM", "12:00:00 AM");
    AddRecord("3/5/2003 8:00 AM", "3/6/2003 8:00 AM");
    AddRecord("3/5/2003 8:00 AM", "3/6/2003 8:00:01 AM");
    AddRecord("3/5/2003 8:00 AM", "3/5/2003 7:59 AM");
    AddRecord("3/5/2003 8:00 AM", "3/5/2003 5:00 PM");
    ASSERT_TRUE(Do("INSERT INTO TimeRecord (EmployeeID, EndTime) VALUES (40, '2003-03-05 08:00:00')"));
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    const auto unusual = RequireSelect(*database, punchsql::Unusual(punchsql::kOne, database->Words()) + " ORDER BY TimeRecordID");
    unusual->Bind("employee", 40);
    std::string found;
    unusual->ForEachRow([&] { found += std::string(unusual->TextAt(0)) + (unusual->KindAt(1) == CellKind::Null ? "?" : "") + ' '; });
    EXPECT_EQ(found, "1 3 4 6? ");
}

std::string TextOf(const std::optional<TrailRow>& row)
{
    std::string text;
    for (const TrailValue& value : row.value_or(TrailRow())) {
        text += value.column + '=' + (value.kind == TrailValue::Kind::Null ? "null" : value.text) + ' ';
    }
    return row ? text : "-";
}

TEST_P(ContractTest, TheTrailTellsTheSameAndUndoTakesItBack)
{
    UndoStack undo(database);
    AddRecord("3/5/2003 8:00 AM", "3/5/2003 5:00 PM");
    ASSERT_TRUE(undo.Remember()) << undo.Refusal();
    ASSERT_TRUE(ExecuteAll(*database, {"UPDATE TimeRecord SET EndTime = #3/5/2003 6:00 PM#", "UPDATE TimeRecord SET EmployeeID = 41",
                                       "UPDATE TimeRecord SET EmployeeID = 41"}));
    ASSERT_TRUE(undo.Remember()) << undo.Refusal();
    ASSERT_TRUE(Do("UPDATE TimeRecord SET EmployeeID = 41"));
    EXPECT_EQ(database->LastStep(), 0) << "it changed nothing";
    ASSERT_TRUE(undo.Undo()) << undo.Refusal();
    EXPECT_EQ(Rows(3, "SELECT TimeRecordID, EmployeeID, EndTime FROM TimeRecord"), "1|40|\"2003-03-05 17:00:00\"|");
    ASSERT_TRUE(undo.Undo()) << undo.Refusal();
    EXPECT_EQ(Rows(1, "SELECT TimeRecordID FROM TimeRecord"), "");
    ASSERT_TRUE(undo.Redo()) << undo.Refusal();
    EXPECT_EQ(undo.RedoText(), "Redo 2 changes");
    ASSERT_TRUE(database->ExecuteSteps([](Engine& engine) { engine.RunScript("UPDATE TimeRecord SET EmployeeID = 41"); }));
    std::string trail;
    std::int64_t step = 0;
    for (const TrailEntry& entry : ReadTrail(database, {})) {
        trail += fmt::format("{} {} {} {} {} {} {}| {}| {}\n", entry.by, entry.program, entry.table, *entry.row, entry.action,
                             entry.step == step ? "same" : "new", entry.employee.value_or(0), TextOf(entry.before), TextOf(entry.after));
        step = *entry.step;
    }
    EXPECT_EQ(trail,
              "Ann ptk-admin TimeRecord 1 update new 41| EmployeeID=40 | EmployeeID=41 \n"
              "Ann ptk-admin TimeRecord 1 insert new 40| -| TimeRecordID=1 EmployeeID=40 ShiftDate=null StartTime=2003-03-05 08:00:00 "
              "EndTime=2003-03-05 17:00:00 \n"
              "Ann ptk-admin TimeRecord 1 delete new 40| TimeRecordID=1 EmployeeID=40 ShiftDate=null StartTime=2003-03-05 08:00:00 "
              "EndTime=2003-03-05 17:00:00 | -\n"
              "Ann ptk-admin TimeRecord 1 update new 40| EndTime=2003-03-05 18:00:00 | EndTime=2003-03-05 17:00:00 \n"
              "Ann ptk-admin TimeRecord 1 update same 40| EmployeeID=41 | EmployeeID=40 \n"
              "Ann ptk-admin TimeRecord 1 update new 41| EmployeeID=40 | EmployeeID=41 \n"
              "Ann ptk-admin TimeRecord 1 update same 40| EndTime=2003-03-05 17:00:00 | EndTime=2003-03-05 18:00:00 \n"
              "Ann ptk-admin TimeRecord 1 insert new 40| -| TimeRecordID=1 EmployeeID=40 ShiftDate=null StartTime=2003-03-05 08:00:00 "
              "EndTime=2003-03-05 17:00:00 \n");
}

TEST_P(ContractTest, EachQuestionToTheTrailFindsItsEntries)
{
    AddRecord("3/5/2003 8:00 AM", "3/5/2003 5:00 PM");
    AddRecord("3/9/2003 8:00 AM", "3/9/2003 5:00 PM");
    ASSERT_TRUE(Do("UPDATE TimeRecord SET StartTime = #3/12/2003 8:00 AM#, EndTime = #3/12/2003 5:00 PM# WHERE TimeRecordID = 2"));
    ASSERT_TRUE(Do("UPDATE TimeRecord SET EmployeeID = 41 WHERE TimeRecordID = 1"));
    ASSERT_TRUE(Do("INSERT INTO Company (Name) VALUES ('Mill')"));
    const auto found = [&](const std::function<void(TrailQuery&)>& ask) {
        TrailQuery query;
        ask(query);
        std::string ids;
        for (const TrailEntry& entry : ReadTrail(database, query)) {
            ids += std::to_string(entry.id);
        }
        return ids;
    };
    EXPECT_EQ(found([](TrailQuery&) {}), "54321");
    EXPECT_EQ(found([](TrailQuery& query) { query.employee = 40; }), "4321");
    EXPECT_EQ(found([](TrailQuery& query) { query.employee = 41; }), "4");
    EXPECT_EQ(found([](TrailQuery& query) {
                  query.employee = 40;
                  query.recordsIn = TrailDays{DateTime({2003, 3, 9}, {}), DateTime({2003, 3, 9}, {})};
              }),
              "32");
    EXPECT_EQ(found([](TrailQuery& query) { query.kind = TrailKind::Companies; }), "5");
    EXPECT_EQ(found([](TrailQuery& query) { query.kind = TrailKind::TimeRecords; }), "4321");
    EXPECT_EQ(found([](TrailQuery& query) { query.records = {2}; }), "32");
    EXPECT_EQ(found([](TrailQuery& query) { query.person = "Ann"; }), "54321");
    EXPECT_EQ(found([](TrailQuery& query) { query.person = ""; }), "");
    EXPECT_EQ(found([](TrailQuery& query) {
                  query.newerThan = 1;
                  query.olderThan = 5;
                  query.action = "update";
                  query.most = 1;
              }),
              "4");
    EXPECT_EQ(found([](TrailQuery& query) { query.to = DateTime({2003, 3, 9}, {}); }), "");
    EXPECT_EQ(ReadTrailPersons(database), std::vector<std::string>{"Ann"});
}

INSTANTIATE_TEST_SUITE_P(Kept, ContractTest, testing::Values(Kept::InFile, Kept::OnServer),
                         [](const auto& kept) { return kept.param == Kept::InFile ? "InFile" : "OnServer"; });

} // namespace

} // namespace ptk
