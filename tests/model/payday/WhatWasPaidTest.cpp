// What was paid, what a card is by now beside it, and which changes were made since: also where another tool left something else.
#include "model/check/PaidChanges.h"
#include "model/check/PaidDifference.h"
#include "model/payday/ClosingReader.h"
#include "model/payday/PaidText.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/engine/RecordSet.h"
#include "store/whole/DatabaseCreator.h"
#include "support/Execute.h"
#include "support/TemporaryFolder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace ptk {

namespace {

const PayPeriod kMarch{ToDateTime("3/1/2026"), ToDateTime("3/14/2026")};

Closing Paid(const char* regular, const char* overtime, const char* gross)
{
    Closing closing;
    closing.regular = regular;
    closing.overtime = overtime;
    closing.gross = gross;
    return closing;
}

TEST(PaidDifferenceTest, IsToldWithItsSignAndOnlyOfFigures)
{
    const CardFigures now{"8.00", "1.50", "102.50"};
    struct Case
    {
        Closing paid;
        const char* regular; // nullptr: none can be told
        const char* overtime;
        const char* gross;
        std::int64_t minutes;
    };
    for (const Case& c : {
             Case{Paid("8.00", "1.00", "95.00"), "+0.00", "+0.50", "+7.50", 30},
             Case{Paid("9.25", "1.50", "102.50"), "-1.25", "+0.00", "+0.00", -75},
             Case{Paid("8.00", "1.50", "-102.50"), "+0.00", "+0.00", "+205.00", 0},
             Case{Paid("8", "1.5", ".50"), "+0.00", "+0.00", "+102.00", 0},        // as another tool writes numbers
             Case{Paid("7.999", "1.50", "102.50"), nullptr, nullptr, nullptr, -1}, // which is 8.00
             Case{Paid("eight", "1.50", "102.50"), nullptr, nullptr, nullptr, 0},
             Case{Paid("8.00", "12:50", "102.50"), nullptr, nullptr, nullptr, 0},
             Case{Paid("8.00", "1.50", "1234.5a"), nullptr, nullptr, nullptr, 0},
             Case{Paid("8.00", "1.50", ""), nullptr, nullptr, nullptr, 0},
             Case{Paid("8.00", "99999999999999999999999999999999999999999999999.00", "102.50"), nullptr, nullptr, nullptr, 0},
         }) {
        SCOPED_TRACE(c.paid.regular + ' ' + c.paid.overtime + ' ' + c.paid.gross);
        const auto difference = DifferenceOf(c.paid, now);
        ASSERT_EQ(difference.has_value(), c.minutes != -1);
        if (difference) {
            const auto text = [](const std::optional<std::string>& figure) { return figure.value_or("none"); };
            const auto wanted = [](const char* figure) { return std::string(figure == nullptr ? "none" : figure); };
            EXPECT_EQ(text(difference->regular), wanted(c.regular));
            EXPECT_EQ(text(difference->overtime), wanted(c.overtime));
            EXPECT_EQ(text(difference->gross), wanted(c.gross));
            EXPECT_EQ(difference->Minutes(), c.minutes);
        }
    }
    EXPECT_EQ(DifferenceOf(Paid("8.00", "1.50", "102.50"), std::nullopt), PaidDifference{}) << "the card cannot be computed any more";
    EXPECT_EQ(DifferenceOf(Paid("8.00", "1.50", "102.50"), now), std::nullopt);
}

TEST(PaidTextTest, SaysWhenAndByWhomAsFarAsThatIsKnown)
{
    Closing closing = Paid("8.00", "1.00", "95.00");
    EXPECT_EQ(PaidText(closing), "Paid");
    closing.paidAt = ToDateTime("3/16/2026 9:30");
    EXPECT_EQ(PaidText(closing), "Paid on 03/16/2026 09:30 AM");
    closing.paidBy = "Ann Lee";
    EXPECT_EQ(PaidText(closing), "Paid on 03/16/2026 09:30 AM by Ann Lee");
    closing.paidAt.reset();
    EXPECT_EQ(PaidText(closing), "Paid by Ann Lee");
    EXPECT_EQ(PaidFigures(closing), "8.00 + 1.00 hours, 95.00");
}

class StoredPaydayTest : public testing::Test
{
protected:
    StoredPaydayTest()
    {
        CreateDatabase(m_path);
        m_database->DatabaseName(m_path);
    }

    void Run(const std::string& sql) const { ExecuteIn(m_path, sql); }

    void AddClosing(const char* employee, const char* from, const char* to) const
    {
        Run(fmt::format("INSERT INTO _Payday (EmployeeID, FromDay, ToDay, PaidAt, Regular, Overtime, Gross, Entry) VALUES ({}, {}, {}, "
                        "'at noon', '8.00', '1.00', '95.00', 0)",
                        employee, from, to));
    }

    TemporaryFolder m_folder;
    std::string m_path = m_folder.Path() + "/ptk.mdb";
    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_folder.Path());
};

TEST_F(StoredPaydayTest, ARowWithoutTwoWholeDaysOrAnEmployeeTakesPartInNothing)
{
    EXPECT_EQ(PeriodToClose(m_database), std::nullopt);
    AddClosing("40", "'2026-03-01 00:00:00'", "'2026-03-14 00:00:00'");
    AddClosing("40", "'2026-03-01 00:00:00'", "'2026-03-07 00:00:00'");
    for (const auto& [from, to] : {std::pair{"NULL", "'2026-03-14 00:00:00'"},
                                   {"'2026-03-01 00:00:00'", "NULL"},
                                   {"'2026-03-01 08:00:00'", "'2026-03-14 00:00:00'"},
                                   {"'2026-03-01 00:00:00'", "'2026-03-14 08:00:00'"},
                                   {"'2026-03-14 00:00:00'", "'2026-03-01 00:00:00'"},
                                   {"'in March'", "'2026-03-14 00:00:00'"}}) {
        AddClosing("40", from, to);
    }
    AddClosing("'nobody'", "'2026-03-01 00:00:00'", "'2026-03-14 00:00:00'");
    const Closings closings = ReadClosings(m_database, kMarch);
    ASSERT_EQ(closings.size(), 1U);
    const ClosingsOfEmployee& ofOne = closings.at(40);
    EXPECT_EQ(ofOne.ofPeriod.size(), 1U);
    EXPECT_EQ(ofOne.touching.size(), 1U);
    EXPECT_EQ(ofOne.Newest()->paidAt, std::nullopt);
    EXPECT_EQ(ofOne.Newest()->paidBy, "");
    EXPECT_EQ(ReadClosings(m_database, kMarch, 41).size(), 0U);
    EXPECT_EQ(ReadClosingsOf(m_database, 40).size(), 2U);
    const auto next = PeriodToClose(m_database);
    ASSERT_TRUE(next);
    EXPECT_EQ(next->from, ToDateTime("3/15/2026"));
    EXPECT_EQ(next->to, ToDateTime("3/28/2026"));
    AddClosing("40", "'9999-12-20 00:00:00'", "'9999-12-26 00:00:00'");
    EXPECT_EQ(PeriodToClose(m_database), std::nullopt) << "the next would leave the calendar";
    Run("DROP TABLE _Payday");
    EXPECT_TRUE(ReadClosings(m_database, kMarch).empty() && ReadClosingsOf(m_database, 40).empty() && !PeriodToClose(m_database));
}

TEST_F(StoredPaydayTest, AChangeCountsWhereItsRowTouchesTheCardAsTheCardsFetchReadsIt)
{
    struct Case
    {
        const char* start; // SQL
        const char* end;
        bool touches;
    };
    for (const Case& c : {
             Case{"'2026-03-04 08:00:00'", "'2026-03-04 16:00:00'", true},
             Case{"'2026-03-20 08:00:00'", "'2026-03-20 16:00:00'", false},
             Case{"'2026-02-20 08:00:00'", "'2026-02-20 16:00:00'", false},
             Case{"'2026-02-28 22:00:00'", "'2026-03-01 06:00:00'", true}, // across the first midnight
             Case{"NULL", "'2026-03-20 16:00:00'", false},
             Case{"NULL", "'2026-03-04 16:00:00'", true}, // told where it ends
             Case{"X'01'", "'2026-03-20 16:00:00'", false},
             Case{"X'01'", "0", true}, // bytes are behind every text, a number before
             Case{"'zzz'", "'2026-03-04 16:00:00'", true},
             Case{"'1999-01-01'", "'2026-03-20 16:00:00'", false},
             Case{"5", "'2026-03-20 16:00:00'", false},
             Case{"'2026-03-20 08:00:00'", "X'01'", false},
             Case{"'2026-03-20 08:00:00'", "NULL", false},
             Case{"'2026-03-20 08:00:00'", "'soon'", false},
             Case{"'2026-03-20 08:00:00'", "0", true},
         }) {
        Run("DELETE FROM TimeRecord");
        const std::int64_t before =
            m_database->OpenDB() ? m_database->ExecuteSelect("SELECT COALESCE(MAX(ChangeID), 0) AS x FROM _Change")->Int32At(0) : 0;
        m_database->CloseDB();
        Run(fmt::format("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, {}, {})", c.start, c.end));
        EXPECT_EQ(ReadPaidChanges(m_database, 40, kMarch, before).size(), c.touches ? 1U : 0U) << c.start << ' ' << c.end;
        Run("UPDATE TimeRecord SET EmployeeID = 41");
        EXPECT_EQ(ReadPaidChanges(m_database, 40, kMarch, before).size(), c.touches ? 2U : 0U) << c.start << ' ' << c.end;
        Run("DELETE FROM TimeRecord");
    }
}

TEST_F(StoredPaydayTest, OfAnEmployeeWhatHeIsPaidByCounts)
{
    Run("INSERT INTO Employee (EmployeeID, LastName, Active, AutoDeduct, PayRate) VALUES (40, 'Lee', '1', '0', 10)");
    Run("UPDATE Employee SET Phone = '5' WHERE EmployeeID = 40");
    EXPECT_TRUE(ReadPaidChanges(m_database, 40, kMarch, 0).empty());
    Run("UPDATE Employee SET PayRate = 12 WHERE EmployeeID = 40");
    Run("UPDATE Employee SET AutoDeductBreakLength = 15 WHERE EmployeeID = 40");
    EXPECT_EQ(ReadPaidChanges(m_database, 40, kMarch, 0).size(), 2U);
    Run("DELETE FROM Employee WHERE EmployeeID = 40");
    EXPECT_EQ(ReadPaidChanges(m_database, 40, kMarch, 0).size(), 2U);
}

} // namespace

} // namespace ptk
