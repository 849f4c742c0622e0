// How often the program waits for a server: over a slow line that is what people feel.
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/check/PunchReader.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "office/card/CheckedTimecard.h"
#include "office/history/EmployeeNames.h"
#include "office/history/HistoryReading.h"
#include "office/overview/OverviewReading.h"
#include "office/payday/PaydayClosing.h"
#include "office/records/UndoStack.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/engine/EngineNumber.h"
#include "store/engine/Statement.h"
#include "store/postgres/PostgresEngine.h"
#include "store/trail/TrailReader.h"
#include "support/Execute.h"
#include "support/NewServerDatabase.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

class RoundTripsTest : public testing::Test
{
protected:
    RoundTripsTest()
    {
        database->DatabaseName(server.Address());
        factory.PTKDatabase(database);
        server.Run("INSERT INTO Employee (LastName, Active, AutoDeduct, PayRate) SELECT 'Lee', true, false, 10 FROM generate_series(1, 3)");
        server.Run("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 40, '2003-03-05 08:00:00', '2003-03-05 17:00:00' "
                   "FROM generate_series(1, 9)");
    }

    // So far, over all connections. Asks nothing itself.
    std::int64_t All() const
    {
        std::int64_t count = 0;
        EXPECT_TRUE(database->ExecuteSteps([&](Engine& engine) { count = dynamic_cast<PostgresEngine&>(engine).RoundTrips(); }));
        return count;
    }

    std::int64_t Of(const std::function<bool()>& work) const
    {
        const std::int64_t before = All();
        EXPECT_TRUE(work()) << database->LastFailure().Description();
        return All() - before;
    }

    [[nodiscard]] bool Card() { return factory.BuildList(40, ToDateTime("3/1/2003"), ToDateTime("4/1/2003")); }
    [[nodiscard]] bool Saved(std::int16_t how)
    {
        const auto record = factory.TimeRecordList()->Item(1);
        record->ObjectState(how);
        record->EndTime(ToDateTime("3/5/2003 6:00 PM"));
        return factory.Save(record) && factory.ErrorNumber() == 0;
    }

    const NewServerDatabase server;
    const std::shared_ptr<CJetDB> database = std::make_shared<CJetDB>("/nowhere");
    CTimeRecordFactory factory;
    CEmployeeList people;
};

TEST_F(RoundTripsTest, CardsAndRecords)
{
    ASSERT_TRUE(Card());
    EXPECT_EQ(All(), 2) << "a new connection asks for the structure's number";
    EXPECT_EQ(Of([&] { return Card(); }), 1) << "the transaction begins with its first question, and its end is not waited for";
    EXPECT_EQ(Of([&] { return Saved(state::Changed); }), 2) << "the row is locked and compared; changed and committed";
    EXPECT_EQ(Of([&] { return Saved(state::Deleted); }), 2) << "the row is locked and compared; deleted, which is committed";
    EXPECT_EQ(Of([&] { return Saved(state::New); }), 2) << "there is no row to compare";
    EXPECT_EQ(Of([&] { return Card() && factory.SaveList(); }), 1) << "what is as it was read is not stored";
}

TEST_F(RoundTripsTest, ACardWithItsCheck)
{
    ASSERT_TRUE(people.Create() && people.LoadList(database));
    const auto records = std::make_shared<CTimeRecordFactory>();
    records->PTKDatabase(database);
    const auto generated = [&](std::int32_t employee) {
        CTimeCard card(records);
        card.PTKDatabase(database);
        const auto checked = GenerateChecked(card, database, people.GetEmployeeByID(employee),
                                             {ToDateTime("3/3/2003"), ToDateTime("3/16/2003")}, ToDateTime("3/17/2003"));
        EXPECT_EQ(checked.failure.Number(), 0) << checked.failure.Description();
        return checked.check && checked.generated == (employee == 40) && checked.punches.size() == (employee == 40 ? 9U : 0U);
    };
    EXPECT_EQ(Of([&] { return generated(40); }), 2) << "the card, the limits and what was closed; then the rows of its weeks";
    EXPECT_EQ(Of([&] { return generated(41); }), 3) << "and who worked before, of a card without a shift";
}

// What is sent with the commit is refused as if it were sent alone: nothing is stored, and the next save is.
TEST_F(RoundTripsTest, WhatIsRefusedWithTheCommit)
{
    const auto entries = [&] { return ReadTrailNotes(database, 0, 100).size(); };
    const std::size_t before = entries();
    ASSERT_TRUE(Card());
    server.Run("ALTER TABLE TimeRecord ADD CONSTRAINT early CHECK (EndTime <> '2003-03-05 18:00:00')");
    EXPECT_FALSE(Saved(state::Changed));
    EXPECT_EQ(database->ErrorNumber(), jetdb::StatementFailed);
    EXPECT_EQ(entries(), before);
    server.Run("ALTER TABLE TimeRecord DROP CONSTRAINT early");
    EXPECT_TRUE(Card() && Saved(state::Changed)) << database->LastFailure().Description();
    EXPECT_EQ(entries(), before + 1);

    server.Run("UPDATE _StoredQuery SET sql = rtrim(sql, E'; \n') || ' RETURNING EmployeeID' WHERE name = 'UpdateEmployee'");
    ASSERT_TRUE(people.Create() && people.LoadList(database));
    people.GetEmployeeByID(41)->Phone("1");
    EXPECT_FALSE(people.SaveList()) << "what answers rows is no change";
    EXPECT_EQ(database->LastFailure().Number(), engine::Refused);
    EXPECT_EQ(entries(), before + 1);
}

TEST_F(RoundTripsTest, PeopleAndUndo)
{
    UndoStack undo(database);
    const auto load = [&] { return people.Destroy() && people.Create() && people.LoadList(database); };
    const auto save = [&] {
        people.GetEmployeeByID(41)->Phone(people.GetEmployeeByID(41)->Phone() + "1");
        return people.SaveList();
    };
    ASSERT_TRUE(load() && save() && undo.Remember()); // which asks for the texts of the stored queries
    EXPECT_EQ(Of(load), 1);
    EXPECT_EQ(Of(save), 2) << "the row is locked and compared; changed and committed";
    EXPECT_EQ(Of([&] { return save() && undo.Remember(); }), 2 + 2) << "the entry, whose row it is";
    EXPECT_EQ(Of([&] { return undo.Undo(); }), 3) << "the row is looked at, its entries are; it is changed and committed";
    EXPECT_EQ(Of([&] { return undo.Redo(); }), 3) << "in the same way";
    ASSERT_TRUE(Card() && Saved(state::Deleted) && undo.Remember());
    EXPECT_EQ(Of([&] { return undo.Undo(); }), 3) << "the entries are looked at, the row is looked for; it is added and committed";
    EXPECT_EQ(Of([&] { return undo.Redo(); }), 3) << "the row is looked at, its entries are; it is deleted and committed";
}

TEST_F(RoundTripsTest, History)
{
    server.Run("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 40, '2003-03-06 08:00:00', '2003-03-06 17:00:00' "
               "FROM generate_series(1, 300)");
    UndoStack undo(database);
    std::vector<std::string> fill(14, "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 41, #3/6/2003#, #3/6/2003#");
    EXPECT_EQ(Of([&] { return ExecuteAll(*database, fill) && undo.Remember(); }), 1 + 1 + 1)
        << "the first, the others and the commit, all their entries";
    EXPECT_EQ(undo.UndoText(), "Undo Auto Fill of 14 records");
    HistoryReading history(database, {}, std::make_shared<EmployeeNames>(database));
    const auto page = [&] {
        history.ReadOn();
        return history.Rows().size() == 250;
    };
    EXPECT_EQ(Of(page), 1);
    EXPECT_EQ(Of([&] { return ReadTrailNotes(database, 0, 100).size() == 100; }), 1) << "what a watch asks";
}

TEST_F(RoundTripsTest, Overview)
{
    const auto read = [&] {
        const CJetDB::Hold hold(database);
        PunchReader reader(*database, {ToDateTime("3/3/2003"), ToDateTime("3/16/2003")}, 0);
        return reader.Read(40).size() == 9 && reader.Read(41).empty() && reader.Read(42).empty();
    };
    ASSERT_TRUE(read());
    EXPECT_EQ(Of(read), 3) << "each employee's usual and unusual records together";
    ASSERT_TRUE(people.Create() && people.LoadList(database));
    OverviewReading overview(database, OfferedEmployees(people), {ToDateTime("3/3/2003"), ToDateTime("3/16/2003")},
                             ToDateTime("3/17/2003"));
    const auto all = [&] {
        overview.ReadOn([] { return false; });
        return overview.IsDone() && overview.Result().rows.size() == 3;
    };
    EXPECT_EQ(Of(all), 2) << "the limits; what was closed, everybody's records, and who worked before together";
}

// Questions that are on their way together are waited for once, whoever hears the answers; what one fails with ends the transaction and no
// more.
TEST_F(RoundTripsTest, AnswersOnTheirWay)
{
    const auto told = [](Statement& rows) {
        std::string text;
        rows.ForEachRow([&] { text += rows.TextAt(0); });
        return text;
    };
    const auto ask = [&](const std::function<void(Statement&, Statement&)>& questions) {
        const CJetDB::Hold hold(database);
        RequireOpen(*database);
        const auto rows = RequireSelect(*database, "SELECT CAST(:number AS INTEGER)");
        const auto other = RequireSelect(*database, "SELECT 7");
        EXPECT_EQ(told(*other), "7");
        questions(*rows, *other);
        return true;
    };
    const auto answered = [&](Statement& rows, Statement& other) {
        rows.Bind("number", std::int32_t{2});
        rows.AskAhead();
        EXPECT_EQ(told(other), "7") << "asked behind it";
        EXPECT_EQ(told(rows), "2");
        rows.AskAhead();
        EXPECT_EQ(told(rows), "2");
        rows.AskAhead();
        rows.Bind("number", std::int32_t{3});
        EXPECT_EQ(told(rows), "3") << "another question than the one on its way";
    };
    ASSERT_TRUE(ask(answered));
    EXPECT_EQ(Of([&] { return ask(answered); }), 4);
    ask([&](Statement& rows, Statement& other) {
        rows.Bind("number", std::string("none"));
        rows.AskAhead();
        EXPECT_THROW(told(other), Failure);
    });
    ask([&](Statement& rows, Statement& /*other*/) {
        rows.Bind("number", std::string("none"));
        rows.AskAhead(); // and nobody waits for it
        RequireSelect(*database, "SELECT 8")->AskAhead();
    });
    ask([&](Statement& /*rows*/, Statement& /*other*/) { EXPECT_EQ(told(*RequireSelect(*database, "SELECT 8")), "8"); });
    EXPECT_TRUE(Card()) << database->LastFailure().Description();
}

// Six hundred people are asked for in three portions and stored in three.
TEST_F(RoundTripsTest, Payday)
{
    server.Run("INSERT INTO Employee (LastName, Active, AutoDeduct, PayRate) SELECT 'Kim', true, false, 10 FROM generate_series(1, 597)");
    UndoStack undo(database);
    const auto close = [&](const char* from, const char* to) {
        const auto closed = ClosePayday(database, {{ToDateTime(from), ToDateTime(to)}, {}, ToDateTime("3/17/2003"), {}});
        return closed.size() == 600 && undo.Remember();
    };
    EXPECT_EQ(Of([&] { return close("2/1/2003", "2/14/2003"); }), 12 + 1) << "all their entries";
    EXPECT_EQ(Of([&] { return close("3/3/2003", "3/16/2003"); }), 14 + 1) << "the days between are asked for in portions, too";
    EXPECT_EQ(Of([&] { return undo.Undo(); }), 3 * 2 + 1)
        << "each row is looked at, its entries are; it is removed with the next question; one had a problem";
}

} // namespace

} // namespace ptk
