// Closing a payday, taking it back, and the account of it: on a file and, in the test program beside a server, on that.
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecordFactory.h"
#include "model/ModelErrors.h"
#include "model/payday/ClosingReader.h"
#include "office/card/AddedShift.h"
#include "office/payday/PaydayAccount.h"
#include "office/payday/PaydayClosing.h"
#include "office/records/UndoStack.h"
#include "platform/Failure.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/engine/Statement.h"
#include "store/whole/BulkWriter.h"
#include "support/EitherDatabase.h"
#include "support/Execute.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <random>
#include <set>

namespace ptk {

namespace {

const PayPeriod kMarch{ToDateTime("3/1/2026"), ToDateTime("3/14/2026")};

class PaydayTest : public testing::Test
{
protected:
    PaydayTest()
    {
        const auto engine = m_either.Open();
        BulkWriter writer(*engine);
        for (const char* last : {"Lee", "Kim", "Day"}) {
            EmployeeRow row;
            row.FirstName = "Jo";
            row.LastName = last;
            row.PayRate = 10;
            row.OvertimePayRate = 15;
            row.EmployeeActive = true;
            writer.AddEmployee(row);
        }
        writer.Commit();
        m_database->DatabaseName(m_either.Name());
        m_database->StoredBy({"Ann Lee", "ptk-admin"});
        Elsewhere("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '2026-03-02 08:00:00', '2026-03-02 16:30:00'), "
                  "(41, '2026-03-03 08:00:00', '1899-12-30 00:00:00')");
    }

    void Elsewhere(const std::string& sql) const { Execute(*m_either.Open(), sql); }

    // The first column, and of entries and closings all that does not depend on the time.
    std::string Rows(const std::string& sql) const
    {
        const auto engine = m_either.Open();
        std::string text;
        const auto rows = engine->Prepare(sql);
        rows->ForEachRow([&] { text += std::string(rows->TextAt(0)) + ';'; });
        return text;
    }
    std::string Paid() const
    {
        return Rows("SELECT PaydayID || ' ' || EmployeeID || ' ' || Regular || ' ' || Overtime || ' ' || Gross || ' ' || PaidBy || ' ' || "
                    "CAST(PaidAt AS TEXT) FROM _Payday ORDER BY PaydayID");
    }
    std::string Steps() const { return Rows("SELECT COUNT(DISTINCT Step) || ' ' || COUNT(*) FROM _Change WHERE TableName = '_Payday'"); }

    PaydayOrder Order(std::vector<std::int32_t> employees) const { return {kMarch, std::move(employees), ToDateTime("3/16/2026 9:30")}; }
    static std::string Text(const std::vector<PaydayLine>& lines)
    {
        std::string text;
        for (const PaydayLine& line : lines) {
            text += TextOf(line) + ';';
        }
        return text;
    }
    std::string Close(std::vector<std::int32_t> employees = {}) { return Text(ClosePayday(m_database, Order(std::move(employees)))); }
    std::string Reopen(std::vector<std::int32_t> employees = {}) { return Text(ReopenPayday(m_database, Order(std::move(employees)))); }
    PaydayAccount Account() { return ReadPaydayAccount(m_database, kMarch, ToDateTime("3/16/2026 9:30")); }

    EitherDatabase m_either;
    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_either.Folder());
};

TEST_F(PaydayTest, FindsWhoHasShiftsOnADay)
{
    Elsewhere("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (42, '2026-03-02 23:59:59', '2026-03-03 08:00:00'), "
              "(41, '2026-03-03 00:00:00', '2026-03-03 01:00:00')");
    EXPECT_EQ(WithRecordsOn(m_database, ToDateTime("3/2/2026")), (std::set<std::int64_t>{40, 42}));
    EXPECT_EQ(WithRecordsOn(m_database, ToDateTime("3/4/2026")), std::set<std::int64_t>());
}

TEST_F(PaydayTest, ClosesWhomNothingSpeaksAgainstAndTheOthersByName)
{
    EXPECT_EQ(Close(), "closed Jo Day: 0.00 + 0.00 hours, 0.00;not closed Jo Kim: 1 problems;closed Jo Lee: 8.00 + 0.50 hours, 87.50;");
    EXPECT_EQ(Paid(), "1 42 0.00 0.00 0.00 Ann Lee 2026-03-16 09:30:00;2 40 8.00 0.50 87.50 Ann Lee 2026-03-16 09:30:00;");
    EXPECT_EQ(Steps(), "1 2;");
    EXPECT_EQ(Close({41, 40, 41}), "closed Jo Kim: 0.00 + 0.00 hours, 0.00;paid already Jo Lee;");
    Elsewhere("UPDATE TimeRecord SET EndTime = '2026-03-02 17:00:00' WHERE TimeRecordID = 1");
    EXPECT_EQ(Close(), "paid already Jo Day;paid already Jo Kim;not closed Jo Lee: 1 problems;");
    EXPECT_EQ(Steps(), "2 3;") << "nothing was written";
    EXPECT_EQ(Close({40}), "closed Jo Lee: 8.00 + 1.00 hours, 95.00;");
    EXPECT_EQ(Reopen({40}), "reopened Jo Lee;");
    Elsewhere("DELETE FROM Employee WHERE EmployeeID = 40");
    EXPECT_EQ(Reopen(), "reopened Jo Day;reopened Jo Kim;reopened Employee 40;");
    EXPECT_EQ(Reopen(), "");
    EXPECT_EQ(Paid(), "");
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM TimeRecord"), "2;");
}

TEST_F(PaydayTest, StoresNothingWhereOneCannotBeClosed)
{
    const auto refusal = [&](std::vector<std::int32_t> employees) {
        try {
            Close(std::move(employees));
        } catch (const Failure& failure) {
            return std::to_string(failure.Number()) + ' ' + failure.Description();
        }
        return std::string();
    };
    EXPECT_EQ(refusal({40, 77}), "602 77");
    if (!m_either.IsOnServer()) {
        Elsewhere("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (42, '2026-03-03 08:00:00', '17:30')");
        EXPECT_EQ(refusal({40, 42}), "605 Jo Day");
        Elsewhere("DROP TABLE _Payday");
        EXPECT_NE(refusal({40}), "");
    } else {
        EXPECT_EQ(Paid(), "");
    }
}

TEST_F(PaydayTest, IsUndoneAndRedoneAsOneStep)
{
    const auto state = [&] { return Paid() + Rows("SELECT CAST(EndTime AS TEXT) FROM TimeRecord ORDER BY TimeRecordID"); };
    UndoStack undo(m_database);
    const std::string before = state();
    {
        const CJetDB::Reason why(m_database, "paid early");
        Close({40, 41, 42});
    }
    EXPECT_EQ(Rows("SELECT DISTINCT Reason FROM _Change WHERE TableName = '_Payday'"), "paid early;");
    const std::string closed = state();
    ASSERT_TRUE(undo.Remember()) << undo.Refusal();
    EXPECT_EQ(undo.UndoText(), "Undo Close Payday 03/01/2026 - 03/14/2026");
    Reopen({41});
    ASSERT_TRUE(undo.Remember()) << undo.Refusal();
    EXPECT_EQ(undo.UndoText(), "Undo Reopen Payday 03/01/2026 - 03/14/2026");
    ASSERT_TRUE(undo.Undo()) << undo.Refusal();
    EXPECT_EQ(state(), closed);
    ASSERT_TRUE(undo.Undo()) << undo.Refusal();
    EXPECT_EQ(state(), before);
    ASSERT_TRUE(undo.Redo()) << undo.Refusal();
    EXPECT_EQ(state(), closed);
    Elsewhere("DELETE FROM _Payday");
    EXPECT_EQ(Close({42}), "closed Jo Day: 0.00 + 0.00 hours, 0.00;");
    EXPECT_EQ(Paid().substr(0, 2), "4 ") << "no number twice";
}

TEST_F(PaydayTest, TellsWhatTouchesAPeriodAndWhatFollowsTheLast)
{
    EXPECT_FALSE(PeriodToClose(m_database));
    Elsewhere("INSERT INTO _Payday (EmployeeID, FromDay, ToDay) VALUES (40, '2026-01-01 00:00:00', '2026-01-31 00:00:00'), "
              "(40, '2026-02-10 00:00:00', '2026-03-01 00:00:00'), (40, '2026-03-01 00:00:00', '2026-03-14 00:00:00'), "
              "(40, '2026-03-01 00:00:00', '2026-03-14 00:00:00'), (41, '2026-03-10 00:00:00', '2026-03-12 00:00:00'), "
              "(40, '2026-02-28 00:00:00', '2026-02-01 00:00:00'), (40, NULL, '2026-02-20 00:00:00'), "
              "(40, '2026-02-01 08:00:00', '2026-02-21 00:00:00'), (NULL, '2026-03-01 00:00:00', '2026-03-14 00:00:00')");
    if (!m_either.IsOnServer()) {
        Elsewhere("INSERT INTO _Payday (EmployeeID, FromDay, ToDay) VALUES (40, 'now', 'soon'), (40, '2026-02-02 00:00:00', "
                  "'2026-02-30 00:00:00'), (40, 5, 9e9), (40, X'00', X'01'), (40, '2026-05-01 00:00:00', '2026-06-31 00:00:00')");
    }
    for (const std::optional<std::int64_t> one : {std::optional<std::int64_t>(), std::optional<std::int64_t>(40)}) {
        const Closings closings = ReadClosings(m_database, kMarch, one);
        EXPECT_EQ(closings.size(), one ? 1U : 2U);
        const ClosingsOfEmployee& lee = closings.at(40);
        ASSERT_EQ(lee.ofPeriod.size(), 2U);
        EXPECT_EQ(lee.Newest()->id, 4);
        ASSERT_EQ(lee.touching.size(), 1U);
        EXPECT_EQ(lee.touching[0].from, ToDateTime("2/10/2026"));
        EXPECT_EQ(lee.lastDayBefore, ToDateTime("1/31/2026"));
    }
    const auto next = PeriodToClose(m_database);
    ASSERT_TRUE(next);
    EXPECT_EQ(next->from, ToDateTime("3/15/2026"));
    EXPECT_EQ(next->to, ToDateTime("3/28/2026"));
}

// Another program changes ten people's records and rates at random, two hundred times: the account's difference is always what the time
// card says less what was paid, and no change of pay is without its entry.
TEST_F(PaydayTest, TheDifferenceIsWhatTheTimeCardSaysWhateverOthersDo)
{
    constexpr int kRounds = 80;
    constexpr std::int32_t kFirst = 40;
    constexpr std::int32_t kPeople = 10;
    {
        const auto engine = m_either.Open();
        BulkWriter writer(*engine);
        EmployeeRow row;
        row.LastName = "Many";
        row.PayRate = 11;
        row.EmployeeActive = true;
        for (std::int32_t i = 3; i < kPeople; ++i) {
            writer.AddEmployee(row);
        }
        writer.Commit();
    }
    std::mt19937 random(5);
    const auto any = [&](int below) { return std::uniform_int_distribution<int>(0, below - 1)(random); };
    const auto moment = [&](int day) { return fmt::format("2026-03-{:02} {:02}:{:02}:{:02}", day, any(24), any(60), any(60)); };
    const auto edit = [&](std::int32_t id) {
        const int day = 1 + any(28); // the period ends with the 14th
        switch (any(6)) {
        case 0:
            return fmt::format("UPDATE Employee SET {} = {}.25 WHERE EmployeeID = {}", any(2) == 0 ? "PayRate" : "Phone", any(20), id);
        case 1:
            return fmt::format("DELETE FROM TimeRecord WHERE EmployeeID = {} AND TimeRecordID % 5 = {}", id, any(5));
        case 2:
            return fmt::format("UPDATE TimeRecord SET EmployeeID = {} WHERE EmployeeID = {} AND TimeRecordID % 7 = {}",
                               kFirst + any(kPeople), id, any(7));
        case 3:
            return fmt::format("UPDATE TimeRecord SET EndTime = '{}' WHERE EmployeeID = {} AND TimeRecordID % 3 = 0", moment(day), id);
        default:
            return fmt::format("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES ({}, '{}', '{}')", id, moment(day),
                               any(4) == 0 ? "1899-12-30 00:00:00" : moment(std::min(28, day + any(2))));
        }
    };
    const auto hundredths = [](const std::string& text) { return std::llround(ToDouble(text) * 100); };
    const auto factory = std::make_shared<CTimeRecordFactory>();
    factory->PTKDatabase(m_database);
    std::vector<std::int32_t> everybody(kPeople);
    std::iota(everybody.begin(), everybody.end(), kFirst);
    Close(everybody);
    int differences = 0;
    for (int round = 0; round < kRounds && !HasFailure(); ++round) {
        const auto engine = m_either.Open();
        engine->BeginMany();
        for (const std::int32_t id : everybody) {
            engine->Prepare(edit(id))->Run();
        }
        engine->Commit();
        engine->Close();
        for (const AccountPerson& person : Account().persons) {
            SCOPED_TRACE(fmt::format("round {}, {}", round, person.person.id));
            CTimeCard card(factory);
            card.PTKDatabase(m_database);
            const bool hasRecords = card.GenerateTimecard(person.person.employee, kMarch.from, kMarch.to.AddDays(1));
            ASSERT_TRUE(hasRecords || card.ErrorNumber() == timecard::NoRecords); // whose hours are 0
            const Closing& paid = person.paid.back();
            const auto regular = hundredths(TwoDecimals(card.RegularHoursWorked())) - hundredths(paid.regular);
            const auto overtime = hundredths(TwoDecimals(card.OvertimeHoursWorked())) - hundredths(paid.overtime);
            const auto gross = hundredths(TwoDecimals(card.TotalPay())) - hundredths(paid.gross);
            const PaidDifference changed = person.changed.value_or(PaidDifference{"+0.00", "+0.00", "+0.00"});
            EXPECT_EQ(person.changed.has_value(), regular != 0 || overtime != 0 || gross != 0);
            EXPECT_EQ(hundredths(*changed.regular), regular);
            EXPECT_EQ(hundredths(*changed.overtime), overtime);
            EXPECT_EQ(hundredths(*changed.gross), gross);
            EXPECT_TRUE(!person.changed || !person.changes.empty());
            differences += person.changed ? 1 : 0;
        }
        if (round % 20 == 19) {
            Close(everybody); // settled: the newest closing counts from here
            if (round % 40 == 39) {
                while (!Reopen(everybody).empty()) {
                }
                Close(everybody);
            }
        }
    }
    EXPECT_GT(differences, 300);
}

} // namespace

} // namespace ptk
