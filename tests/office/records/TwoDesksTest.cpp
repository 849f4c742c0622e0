// Two programs on one database: what is stored, refused, undone and told, beside a model of it.
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "office/records/ChangeWatch.h"
#include "office/records/UndoStack.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/engine/RecordSet.h"
#include "support/EitherDatabase.h"
#include "support/Execute.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <thread>

namespace ptk {

namespace {

// "E40" and "R1" with what can be changed of them.
using Rows = std::map<std::string, std::string>;

constexpr auto kRows = "SELECT 'E' || EmployeeID, Phone FROM Employee WHERE EmployeeID > 39 UNION ALL SELECT 'R' || "
                       "TimeRecordID, CAST(EndTime AS TEXT) FROM TimeRecord";

struct Done
{
    std::string key;
    std::string before; // empty: not there
    int moment = 0;
};

// Has the database, reads its lists, and saves from them.
struct Desk
{
    explicit Desk(const std::string& path, const std::string& folder) : database(std::make_shared<CJetDB>(folder))
    {
        database->DatabaseName(path);
        database->StoredBy({"Ann Lee", "ptk-admin"}); // both: a name tells nobody apart
        factory.PTKDatabase(database);
    }

    void Read(const Rows& rows)
    {
        seen = rows;
        employees.Destroy();
        employees.Create();
        EXPECT_TRUE(employees.LoadList(database));
        factory.BuildList(40, ToDateTime("3/1/2003"), ToDateTime("4/1/2003"));
        records.clear();
        for (std::int32_t i = 1; i <= factory.TimeRecordList()->Count(); ++i) {
            const auto record = factory.TimeRecordList()->Item(i);
            records["R" + std::to_string(record->TimeRecordID())] = record;
        }
    }

    // Whether it was stored.
    bool Save(const std::string& key, const std::string& value)
    {
        if (key.front() == 'E') {
            employees.GetEmployeeByID(ToInt32(key.substr(1)))->Phone(value);
            return employees.SaveList();
        }
        const auto record = records[key];
        record->ObjectState(value.empty() ? state::Deleted : state::Changed);
        if (!value.empty()) {
            record->EndTime(ToDateTime(value));
        }
        factory.ResetError();
        EXPECT_TRUE(factory.Save(record));
        return factory.ErrorNumber() == 0;
    }

    std::shared_ptr<CJetDB> database;
    UndoStack undo{database};
    CEmployeeList employees;
    CTimeRecordFactory factory;
    std::map<std::string, std::shared_ptr<CTimeRecord>> records; // of its list
    Rows seen;                                                   // as they were read or saved last
    std::vector<Done> done;
};

class TwoDesksTest : public testing::Test
{
protected:
    TwoDesksTest()
    {
        for (int i = 0; i < 3; ++i) {
            Elsewhere("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, #3/5/2003 8:00 AM#, #3/5/2003 5:00 PM#)");
        }
        Elsewhere("INSERT INTO Employee (EmployeeID, LastName, Phone, Active, AutoDeduct, PayRate) VALUES (40, 'Lee', '1', '1', '0', 10)");
        Elsewhere("INSERT INTO Employee (EmployeeID, LastName, Phone, Active, AutoDeduct, PayRate) VALUES (41, 'Kim', '1', '1', '0', 10)");
    }

    Desk NewDesk() const { return Desk(m_kept.Name(), m_kept.Folder()); }
    void Elsewhere(const std::string& sql) const { Execute(*m_kept.Open(), sql); }

    Rows Stored() const
    {
        Rows stored;
        const auto engine = m_kept.Open();
        const auto rows = engine->Prepare(kRows);
        rows->ForEachRow([&] { stored[std::string(rows->TextAt(0))] = std::string(rows->TextAt(1)); });
        return stored;
    }

    int UpTo(int most) { return static_cast<int>(m_random() % static_cast<unsigned>(most)); }

    // A change is stored when the row is as this desk knows it, and refused otherwise.
    void Change(Desk& desk)
    {
        auto row = desk.seen.begin();
        std::advance(row, UpTo(static_cast<int>(desk.seen.size())));
        const std::string key = row->first;
        const bool goes = key.front() == 'R' && UpTo(6) == 0;
        const std::string value = goes ? "" : fmt::format("2003-03-05 {}:{:02}:00", 17 + UpTo(3), UpTo(60));
        const std::string before = m_rows.contains(key) ? m_rows[key] : "";
        if (value == row->second) {
            return;
        }
        const bool expected = before == row->second;
        EXPECT_EQ(desk.Save(key, value), expected) << key << ": " << before << ", read " << row->second;
        EXPECT_TRUE(desk.undo.Remember());
        ++(expected ? m_stored : m_refused);
        if (expected) {
            Put(m_rows, key, value);
            Put(desk.seen, key, value);
            desk.done.push_back({key, before, m_moment});
            m_changed[{key, &desk}] = m_moment;
        }
    }

    // Taken back unless somebody else changed the row after it.
    void Undo(Desk& desk, const Desk& other)
    {
        if (desk.done.empty()) {
            return;
        }
        const Done done = desk.done.back();
        const bool expected = m_changed[{done.key, &other}] < done.moment;
        EXPECT_EQ(desk.undo.Undo(), expected) << done.key << desk.undo.Refusal();
        EXPECT_EQ(desk.undo.Refusal().empty(), expected);
        if (expected) {
            Put(m_rows, done.key, done.before);
            m_changed[{done.key, &desk}] = m_moment;
            desk.done.pop_back();
            ++m_undone;
        }
        desk.Read(m_rows);
    }

    static void Put(Rows& rows, const std::string& key, const std::string& value)
    {
        value.empty() ? static_cast<void>(rows.erase(key)) : static_cast<void>(rows[key] = value);
    }

    EitherDatabase m_kept;
    std::mt19937 m_random{20030305}; // the same in every run
    Rows m_rows;                     // what was accepted so far
    std::map<std::pair<std::string, const Desk*>, int> m_changed;
    int m_moment = 0;
    int m_stored = 0;
    int m_refused = 0;
    int m_undone = 0;
};

TEST_F(TwoDesksTest, NoAcceptedChangeIsLostWithoutARefusal)
{
    Desk desks[] = {NewDesk(), NewDesk()};
    m_rows = Stored();
    desks[0].Read(m_rows);
    desks[1].Read(m_rows);
    for (m_moment = 1; m_moment <= 250 && !HasFailure(); ++m_moment) {
        const int side = UpTo(2);
        switch (UpTo(6)) {
        case 0:
            desks[side].Read(m_rows);
            break;
        case 1:
            Undo(desks[side], desks[1 - side]);
            break;
        default:
            Change(desks[side]);
        }
        ASSERT_EQ(Stored(), m_rows) << m_moment;
    }
    EXPECT_GT(m_stored, 40);
    EXPECT_GT(m_refused, 40);
    EXPECT_GT(m_undone, 5);
}

TEST_F(TwoDesksTest, OnlyOthersChangesAreToldAndOnlyOnce)
{
    Desk own = NewDesk();
    ChangeWatch watch(own.database, own.undo);
    const auto told = [&](std::int64_t row) {
        std::string text;
        for (const auto& [shown, letter] :
             {std::pair{Watched::Employee, 'E'}, {Watched::Company, 'C'}, {Watched::CardEmployee, 'e'}, {Watched::CardRecords, 'r'}}) {
            text += watch.IsChanged(shown, row) ? std::string(1, letter) : "";
        }
        return text;
    };
    own.Read(Stored());
    ASSERT_TRUE(own.Save("E40", "5") && own.undo.Remember() && own.Save("R1", "3/5/2003 18:00") && own.undo.Remember() && own.undo.Undo());
    watch.Look();
    EXPECT_EQ(told(40), "") << "one's own, and what was there before";
    struct Case
    {
        const char* sql;
        std::int64_t row;
        const char* told;
    };
    for (const Case& c : {
             Case{"UPDATE Employee SET PayRate = 12 WHERE EmployeeID = 40", 40, "Ee"},
             Case{"UPDATE TimeRecord SET EmployeeID = 41 WHERE TimeRecordID = 2", 40, "r"},
             Case{"UPDATE TimeRecord SET EmployeeID = 40 WHERE TimeRecordID = 2", 41, "r"},
             Case{"DELETE FROM TimeRecord WHERE TimeRecordID = 3", 40, "r"},
             Case{"INSERT INTO Company (CompanyID, Name) VALUES (40, 'Acorn')", 40, "C"},
             Case{"UPDATE _System SET period_length = 7", 40, ""},
         }) {
        Elsewhere(c.sql);
        if (!m_kept.IsOnServer()) { // which nobody holds
            const SqliteEngine holder(m_kept.Name());
            const auto asked = std::chrono::steady_clock::now();
            watch.Look();
            EXPECT_LT(std::chrono::steady_clock::now() - asked, std::chrono::milliseconds(500)) << "waits for nobody";
            EXPECT_EQ(told(c.row), "") << c.sql;
        }
        watch.Look();
        for (int i = 0; i < 100 && m_kept.IsOnServer() && told(c.row) != c.told; ++i) { // a server tells a moment later
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            watch.Look();
        }
        EXPECT_EQ(told(c.row), c.told) << c.sql;
        for (const Watched shown : {Watched::Employee, Watched::Company}) {
            watch.AboutToRead(shown);
        }
        for (const std::int64_t row : {40, 41}) {
            watch.AboutToRead(Watched::CardEmployee, row);
            watch.AboutToRead(Watched::CardRecords, row);
        }
        EXPECT_EQ(told(40) + told(41), "") << c.sql;
    }
}

// Somebody's import: what it changed is not looked through.
TEST_F(TwoDesksTest, WhereThousandsOfRowsChangedEverythingMayHave)
{
    Desk own = NewDesk();
    ChangeWatch watch(own.database, own.undo);
    Elsewhere("INSERT INTO TimeRecord (EmployeeID) WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2500) "
              "SELECT 77 FROM n");
    for (int i = 0; i < 100 && !watch.IsAnyChanged(Watched::Company); ++i) { // a server tells a moment later
        watch.Look();
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    EXPECT_TRUE(watch.IsChanged(Watched::CardRecords, 77) && watch.IsChanged(Watched::CardRecords, 41) &&
                watch.IsChanged(Watched::Company, 1));
    watch.AboutToRead(Watched::CardRecords, 41);
    EXPECT_FALSE(watch.IsChanged(Watched::CardRecords, 41));
    EXPECT_TRUE(watch.IsChanged(Watched::CardRecords, 42));
    watch.AboutToRead(Watched::Company);
    EXPECT_FALSE(watch.IsChanged(Watched::Company, 1) || watch.IsAnyChanged(Watched::Company));
    Elsewhere("UPDATE TimeRecord SET EmployeeID = 41 WHERE TimeRecordID = 2");
    for (int i = 0; i < 100 && !watch.IsChanged(Watched::CardRecords, 41); ++i) {
        watch.Look();
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    EXPECT_TRUE(watch.IsChanged(Watched::CardRecords, 41)) << "what comes behind is looked at again";
    EXPECT_FALSE(watch.IsChanged(Watched::Company, 1));
}

} // namespace

} // namespace ptk
