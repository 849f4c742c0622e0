// Undo and redo: what was stored is taken back row for row, and nobody else's change is.
#include "office/records/UndoStack.h"
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "office/history/History.h"
#include "store/CJetDB.h"
#include "store/engine/RecordSet.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/DatabaseCreator.h"
#include "support/Execute.h"
#include "support/TemporaryFolder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <random>

namespace ptk {

namespace {

class UndoStackTest : public testing::Test
{
protected:
    UndoStackTest()
    {
        CreateDatabase(Path());
        m_database->DatabaseName(Path());
        m_database->StoredBy({"Ann Lee", "ptk-admin"});
    }

    std::string Path() const { return m_folder.Path() + "/system/ptk_11.mdb"; }

    // By another tool, or another window.
    void Elsewhere(const std::string& sql) const { ExecuteIn(Path(), sql); }

    std::string Rows(const std::string& sql) const
    {
        std::string text;
        SqliteEngine engine(Path());
        const auto rows = engine.Prepare(sql);
        rows->ForEachRow([&] { text += std::string(rows->TextAt(0)) + ";"; });
        return text;
    }

    // All that can be undone, to the last column and the kinds of the values.
    std::string State() const
    {
        return Rows("SELECT TimeRecordID || quote(EmployeeID) || quote(ShiftDate) || quote(StartTime) || quote(EndTime) FROM TimeRecord") +
               Rows(
                   "SELECT EmployeeID || quote(FirstName) || quote(LastName) || quote(PayRate) || quote(Password) || quote(DateOfBirth) || "
                   "quote(Active) FROM Employee") +
               Rows("SELECT CompanyID || quote(Name) || quote(URL) FROM Company");
    }

    void Run(const std::string& sql)
    {
        ASSERT_TRUE(m_database->ExecuteAction(sql)) << sql << m_database->LastFailure().Description();
        ASSERT_TRUE(m_undo.Remember()) << m_undo.Refusal();
    }

    std::shared_ptr<CEmployeeList> Employees() const
    {
        auto list = std::make_shared<CEmployeeList>();
        EXPECT_TRUE(list->LoadList(m_database));
        return list;
    }

    TemporaryFolder m_folder;
    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_folder.Path());
    UndoStack m_undo{m_database};
};

constexpr const char* kShift =
    "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (39, #3/5/2003 8:00 AM#, #3/5/2003 5:00 PM#)";

TEST_F(UndoStackTest, TellsWhatItWouldDoAndKeepsNumbers)
{
    EXPECT_FALSE(m_undo.Undo());
    EXPECT_EQ(m_undo.UndoText() + m_undo.Refusal(), "Undo");
    Run(kShift);
    EXPECT_EQ(m_undo.UndoText(), "Undo New 03/05/2003 08:00 AM");
    Run("UPDATE TimeRecord SET EndTime = #3/5/2003 6:00 PM#");
    EXPECT_EQ(m_undo.UndoText(), "Undo Change 03/05/2003 08:00 AM");
    Run("UPDATE TimeRecord SET EndTime = EndTime");
    EXPECT_EQ(m_undo.UndoText(), "Undo Change 03/05/2003 08:00 AM") << "nothing was changed";
    Run("DELETE FROM TimeRecord");
    EXPECT_EQ(m_undo.UndoText(), "Undo Delete 03/05/2003 08:00 AM");
    const std::vector<std::string> fill(3, kShift);
    ASSERT_TRUE(ExecuteAll(*m_database, fill));
    ASSERT_TRUE(m_undo.Remember());
    EXPECT_EQ(m_undo.UndoText(), "Undo Auto Fill of 3 records");
    const auto numbers = [&] { return Rows("SELECT TimeRecordID FROM TimeRecord"); };
    EXPECT_EQ(numbers(), "2;3;4;");
    ASSERT_TRUE(m_undo.Undo() && m_undo.Undo()) << m_undo.Refusal();
    EXPECT_EQ(numbers(), "1;");
    EXPECT_EQ(m_undo.RedoText(), "Redo Delete 03/05/2003 08:00 AM");
    const MovedStep& moved = m_undo.Moved();
    EXPECT_EQ(moved.text + ", " + moved.table, "Delete 03/05/2003 08:00 AM, TimeRecord");
    EXPECT_EQ(moved.row, 1);
    EXPECT_EQ(moved.employee, 39);
    ASSERT_TRUE(m_undo.Redo() && m_undo.Redo()) << m_undo.Refusal();
    EXPECT_EQ(numbers(), "2;3;4;");
    EXPECT_EQ(m_undo.NextRedo(), nullptr);
    ASSERT_TRUE(m_undo.Undo());
    Run("UPDATE _System SET period_length = 3");
    EXPECT_NE(m_undo.NextRedo(), nullptr) << "the options are no step of it";
    Run(kShift);
    EXPECT_EQ(m_undo.NextRedo(), nullptr);
    EXPECT_EQ(Rows("SELECT ChangedBy || Program FROM _Change WHERE ChangeID = (SELECT MAX(ChangeID) FROM _Change)"), "Ann Leeptk-admin;");
}

TEST_F(UndoStackTest, BringsPasswordsBackThatTheTrailDoesNotTell)
{
    EmployeeRow row;
    row.LastName = "Kim";
    row.Password = "first";
    row.PayRate = 12.3F;
    ASSERT_TRUE(m_database->AddNewEmployee(row) && m_undo.Remember());
    const auto list = Employees();
    const auto kim = list->GetEmployeeByName("Kim");
    kim->Password("second");
    kim->PayRate(0.1F);
    ASSERT_TRUE(list->SaveList() && m_undo.Remember());
    const auto state = [&] { return Rows("SELECT Password || ' ' || PayRate FROM Employee WHERE LastName = 'Kim'"); };
    EXPECT_EQ(m_undo.UndoText(), "Undo Change Kim");
    ASSERT_TRUE(m_undo.Undo()) << m_undo.Refusal();
    EXPECT_EQ(state(), "first 12.3;");
    ASSERT_TRUE(m_undo.Undo()) << m_undo.Refusal();
    EXPECT_EQ(state(), "");
    ASSERT_TRUE(m_undo.Redo() && m_undo.Redo()) << m_undo.Refusal();
    EXPECT_EQ(state(), "second 0.1;");
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM _Change WHERE Before || After LIKE '%first%' OR Before || After LIKE '%second%'"), "0;");
    row.Password = "";
    ASSERT_TRUE(m_database->AddNewEmployee(row) && m_undo.Remember() && m_undo.Undo()) << "no password is one, too" << m_undo.Refusal();
    ASSERT_TRUE(m_database->AddNewEmployee(row) && m_undo.Remember());
    Elsewhere("INSERT INTO TimeRecord (EmployeeID) SELECT MAX(EmployeeID) FROM Employee");
    EXPECT_FALSE(m_undo.Undo()) << "Kim has a time record now";
    EXPECT_EQ(m_undo.Refusal(), "\"New Kim\" was not undone: somebody else changed or uses what it is about.");
}

TEST_F(UndoStackTest, OverwritesNobodyElsesChange)
{
    struct Case
    {
        const char* own;
        const char* elsewhere;
    };
    for (const Case& c : {
             Case{"UPDATE TimeRecord SET EndTime = #3/5/2003 6:00 PM#", "UPDATE TimeRecord SET EndTime = #3/5/2003 7:00 PM#"},
             Case{"UPDATE TimeRecord SET EndTime = #3/5/2003 6:00 PM#", "UPDATE TimeRecord SET EmployeeID = 40"},
             Case{"UPDATE TimeRecord SET EndTime = #3/5/2003 6:00 PM#", "DELETE FROM TimeRecord"},
             Case{"DELETE FROM TimeRecord", "INSERT INTO TimeRecord (TimeRecordID, EmployeeID) VALUES (1, 39)"},
             Case{"UPDATE TimeRecord SET EmployeeID = 41",
                  "UPDATE TimeRecord SET EndTime = StartTime; UPDATE TimeRecord SET EmployeeID = 41"},
         }) {
        Elsewhere("DELETE FROM TimeRecord");
        Elsewhere(
            "INSERT INTO TimeRecord (TimeRecordID, EmployeeID, StartTime, EndTime) VALUES (1, 39, #3/5/2003 8:00 AM#, #3/5/2003 5:00 PM#)");
        Run(c.own);
        std::string sql = c.elsewhere;
        for (auto at = sql.find("; "); at != std::string::npos; at = sql.find("; ")) {
            Elsewhere(sql.substr(0, at));
            sql.erase(0, at + 2);
        }
        Elsewhere(sql);
        const std::string before = State();
        const std::string text = m_undo.UndoText();
        EXPECT_FALSE(m_undo.Undo()) << c.elsewhere;
        EXPECT_NE(m_undo.Refusal(), "") << c.elsewhere;
        EXPECT_EQ(State(), before) << c.elsewhere;
        EXPECT_EQ(m_undo.UndoText(), text) << c.elsewhere;
    }
}

// Whatever was done, undoing all of it ends where it began, and redoing all of it where it was.
TEST_F(UndoStackTest, ChainsOfAnyLengthEndAtTheFirstState)
{
    std::mt19937 random(20030305); // the same chains in every run
    const auto upTo = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most)); };
    const char* const edits[] = {
        "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (39, '2003-03-0{} 08:00:00', NULL)",
        "UPDATE TimeRecord SET EndTime = '2003-03-05 1{}:00:00' WHERE TimeRecordID % 3 = 0",
        "UPDATE TimeRecord SET ShiftDate = X'0{}', EmployeeID = 'it''s' || char(10) WHERE TimeRecordID % 4 = 1",
        "DELETE FROM TimeRecord WHERE TimeRecordID % 5 = {}",
        "UPDATE TimeRecord SET TimeRecordID = TimeRecordID + 1000{} WHERE TimeRecordID = (SELECT MAX(TimeRecordID) FROM TimeRecord)",
        "UPDATE Employee SET PayRate = 1{}.1, FirstName = NULL",
        "UPDATE Employee SET PayRate = 0.1 + 0.{}, DateOfBirth = 2.5e300",
        "INSERT INTO Company (Name) VALUES ('{}')",
        "UPDATE Company SET URL = 'http://{}'",
        "DELETE FROM Company WHERE CompanyID % 3 = {}",
    };
    for (int chain = 0; chain < 5; ++chain) {
        const std::string first = State();
        const int length = 1 + upTo(25);
        for (int i = 0; i < length; ++i) {
            Run(fmt::format(fmt::runtime(edits[upTo(10)]), upTo(5)));
        }
        const std::string last = State();
        while (m_undo.NextUndo() != nullptr) {
            ASSERT_TRUE(m_undo.Undo()) << m_undo.Refusal();
        }
        EXPECT_EQ(State(), first);
        while (m_undo.NextRedo() != nullptr) {
            ASSERT_TRUE(m_undo.Redo()) << m_undo.Refusal();
        }
        EXPECT_EQ(State(), last);
        while (m_undo.NextUndo() != nullptr) {
            ASSERT_TRUE(m_undo.Undo()) << m_undo.Refusal();
        }
        EXPECT_EQ(State(), first);
    }
}

TEST_F(UndoStackTest, TheHistorySaysItInPlainWords)
{
    EmployeeRow row;
    row.FirstName = "Ann";
    row.LastName = "Lee";
    row.PayRate = 12.3F;
    ASSERT_TRUE(m_database->AddNewEmployee(row)); // 40
    struct Case
    {
        const char* sql;
        const char* text;
    };
    for (const Case& c : {
             Case{"INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, #3/5/2003 8:00 AM#, #12:00:00 AM#)",
                  "Ann Lee: 03/05/2003 08:00 AM - none added"},
             Case{"UPDATE TimeRecord SET EndTime = #3/5/2003 5:00 PM#", "Ann Lee: end none became 03/05/2003 05:00 PM"},
             Case{"UPDATE TimeRecord SET EndTime = #3/5/2003 6:00 PM#, EmployeeID = 39",
                  "administrator: employee Ann Lee became administrator; end 03/05/2003 05:00 PM became 03/05/2003 06:00 PM"},
             Case{"DELETE FROM TimeRecord", "administrator: 03/05/2003 08:00 AM - 03/05/2003 06:00 PM deleted"},
             Case{
                 "UPDATE Employee SET PayRate = 15.25, Password = 'x', City = 'Oslo', Active = 1, HireDate = #3/5/2003# WHERE EmployeeID = "
                 "40",
                 "Ann Lee: city empty became \"Oslo\"; hire date none became 03/05/2003; pay rate 12.3 became 15.25; active no became yes; "
                 "password changed"},
             Case{"INSERT INTO Company (Name) VALUES ('Ltd')", "Company 1: \"Ltd\" added"},
             Case{"UPDATE _System SET auto_shift_end_time = #6:30 PM#", "Options: end of the automatic shift 05:00 PM became 06:30 PM"},
             Case{"UPDATE _CheckLimits SET long_shift_hours = 12", "Options of the check: longest usual shift 16 became 12"},
             Case{"DELETE FROM Employee WHERE EmployeeID = 40", "Ann Lee: deleted"},
         }) {
        Elsewhere(c.sql);
        const auto entries = ReadTrail(m_database, {});
        const EmployeeNames names(m_database);
        EXPECT_EQ(EntrySentence(entries.front(), [&](std::int64_t id) { return id == 40 ? "Ann Lee" : names.Of(id); }), c.text);
    }
    EXPECT_EQ(FindInHistory(m_database, "Ann Lee"), 40) << "gone, but the trail names her";
    EXPECT_EQ(FindInHistory(m_database, "Bo Lee"), std::nullopt);
    TrailQuery query;
    query.employee = 40;
    EXPECT_EQ(ReadTrail(m_database, query).size(), 6U) << "her rows, and the records that were hers before or after";
}

} // namespace

} // namespace ptk
