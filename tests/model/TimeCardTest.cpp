#include "model/CEmployee.h"
#include "model/CTimeCalculator.h"
#include "model/CTimeCard.h"
#include "model/CTimeCardList.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "store/CJetDB.h"
#include "store/engine/RecordSet.h"
#include "store/whole/DatabaseCreator.h"
#include "support/TemporaryFolder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace ptk;

namespace {

DateTime At(int day, int hour, int minute = 0)
{
    return DateTime({2003, 3, day}, {hour, minute, 0});
}

struct Span
{
    DateTime start, end;
};

std::shared_ptr<CEmployee> Employee(std::int32_t id, bool autoDeduct, std::int16_t lunch, std::int16_t pause)
{
    EmployeeRow row;
    row.EmployeeID = id;
    row.FirstName = "Ann";
    row.LastName = "Lee";
    row.SSN = "1";
    row.PayRate = 10;
    row.OvertimePayRate = 15;
    row.AutoDeduct = autoDeduct;
    row.AutoDeductLunchLength = lunch;
    row.AutoDeductBreakLength = pause;
    return std::make_shared<CEmployee>(row);
}

TEST(TimeCalculatorTest, SplitsEachDayAtEightHours)
{
    struct Case
    {
        const char* name;
        std::vector<Span> shifts;
        std::int16_t lunch, pause; // deducted unless both are 0
        float regular, overtime, breaks, pay;
    };
    for (const Case& c :
         {Case{"nine and a half", {{At(3, 8), At(3, 17, 30)}}, 0, 0, 8, 1.5F, 0, 102.5F},
          Case{"exactly eight", {{At(3, 8), At(3, 16)}}, 0, 0, 8, 0, 0, 80},
          Case{"two shifts on a day", {{At(3, 8), At(3, 13)}, {At(3, 14), At(3, 18)}}, 0, 0, 8, 1, 0, 95},
          Case{"the same on two days", {{At(3, 8), At(3, 13)}, {At(4, 14), At(4, 18)}}, 0, 0, 9, 0, 0, 90},
          Case{"breaks once a day", {{At(3, 8), At(3, 12)}, {At(3, 12), At(3, 16, 45)}}, 30, 15, 8, 0, 0.75F, 80},
          Case{"breaks each day", {{At(3, 8), At(3, 12)}, {At(4, 8), At(4, 12)}}, 30, 0, 7, 0, 1, 70},
          Case{"a third of an hour each day", {{At(3, 8), At(3, 16)}, {At(4, 8), At(4, 16)}}, 20, 0, 15.333333F, 0, 0.6666667F, 153.33333F},
          Case{"20 and 10 minutes", {{At(3, 8), At(3, 15, 50)}}, 20, 10, 7.3333335F, 0, 0.5F, 73.333336F},
          Case{"less than the break", {{At(3, 8), At(3, 8, 30)}}, 60, 0, -0.5F, 0, 1, 0},
          Case{"negative in sum pays no overtime either", {{At(3, 8), At(3, 8, 30)}, {At(4, 0), At(4, 18)}}, 600, 0, -1.5F, 0, 20, 0},
          Case{"past midnight belongs to its first day", {{At(3, 22), At(4, 7)}, {At(4, 8), At(4, 9)}}, 0, 0, 9, 1, 0, 105},
          Case{"backwards and open count nothing", {{At(3, 9), At(3, 8)}, {At(3, 9), {}}}, 0, 0, 0, 0, 0, 0},
          Case{"no shift", {}, 30, 15, 0, 0, 0, 0}}) {
        SCOPED_TRACE(c.name);
        CTimeRecordList list;
        for (const Span& shift : c.shifts) {
            const auto record = std::make_shared<CTimeRecord>();
            record->StartTime(shift.start);
            record->EndTime(shift.end);
            list.Insert(record, 999);
        }
        CTimeCalculator calculator;
        EXPECT_TRUE(calculator.CalculateTimes(*Employee(1, c.lunch + c.pause > 0, c.lunch, c.pause), list));
        EXPECT_EQ(calculator.RegularHours(), c.regular);
        EXPECT_EQ(calculator.OvertimeHours(), c.overtime);
        EXPECT_EQ(calculator.TotalBreakTime(), c.breaks);
        EXPECT_EQ(calculator.CalculatePay(10, 15), c.pay);
        EXPECT_EQ(calculator.TotalPay(), c.pay);
        EXPECT_EQ(calculator.RegularPay() + calculator.OvertimePay(), c.pay);
    }
}

TEST(TimeCalculatorTest, PaysRegularHoursAndOvertimeAtTheirOwnRates)
{
    CTimeRecordList list;
    const auto record = std::make_shared<CTimeRecord>();
    record->StartTime(At(3, 8));
    record->EndTime(At(3, 17, 30));
    list.Insert(record, 1);
    CTimeCalculator calculator;
    ASSERT_TRUE(calculator.CalculateTimes(*Employee(1, false, 0, 0), list));
    EXPECT_EQ(calculator.CalculatePay(12, 20), 126);
    EXPECT_EQ(calculator.RegularPay(), 96) << "8 hours";
    EXPECT_EQ(calculator.OvertimePay(), 30) << "1.5 hours";
}

TEST(TimeCalculatorTest, AddsUpInSinglesAndRefusesWhatIsTooMuch)
{
    CTimeRecordList list;
    const auto record = std::make_shared<CTimeRecord>();
    record->StartTime(At(3, 8));
    record->EndTime(At(3, 8, 1));
    for (int i = 0; i < 3; ++i) {
        list.Insert(record, 999);
    }
    CTimeCalculator calculator;
    const auto employee = Employee(1, false, 0, 0);
    EXPECT_TRUE(calculator.CalculateTimes(*employee, list));
    EXPECT_EQ(calculator.RegularHours(), 0.050000004F) << "0.016666668 three times, rounded after each: a tie that goes up";
    EXPECT_TRUE(calculator.CalculateTimes(*employee, list));
    EXPECT_EQ(calculator.RegularHours(), 0.10000001F) << "the figures accumulate";
    EXPECT_EQ(calculator.CalculatePay(std::numeric_limits<float>::max(), 0), std::numeric_limits<float>::max() * 0.10000001F);
    for (int i = 3; i < 32767; ++i) {
        list.Insert(record, 99999);
    }
    EXPECT_TRUE(CTimeCalculator().CalculateTimes(*employee, list));
    list.Insert(record, 99999);
    EXPECT_FALSE(CTimeCalculator().CalculateTimes(*employee, list));
}

TEST(TimeCalculatorTest, PaysNothingThatDoesNotFit)
{
    CTimeRecordList list;
    const auto record = std::make_shared<CTimeRecord>();
    record->StartTime(At(3, 8));
    record->EndTime(At(3, 10));
    list.Insert(record, 1);
    CTimeCalculator calculator;
    ASSERT_TRUE(calculator.CalculateTimes(*Employee(1, false, 0, 0), list));
    EXPECT_EQ(calculator.CalculatePay(std::numeric_limits<float>::max(), 0), 0);
    record->HoursWorked(std::numeric_limits<float>::max());
    list.Insert(record, 2);
    EXPECT_FALSE(calculator.CalculateTimes(*Employee(1, false, 0, 0), list)) << "the day's total does not fit";
    EXPECT_EQ(calculator.RegularHours(), 2);
}

class TimeCardTest : public testing::Test
{
protected:
    void SetUp() override
    {
        CreateDatabase(folder.Path() + "/system/ptk_11.mdb");
        factory->PTKDatabase(database);
        card.PTKDatabase(database);
    }

    void Add(std::int32_t employee, DateTime start, DateTime end)
    {
        const auto record = std::make_shared<CTimeRecord>();
        record->EmployeeID(employee);
        record->StartTime(start);
        record->EndTime(end);
        factory->ResetError();
        ASSERT_TRUE(factory->Save(record));
        ASSERT_EQ(factory->ErrorNumber(), 0);
    }

    TemporaryFolder folder;
    std::shared_ptr<CJetDB> database = std::make_shared<CJetDB>(folder.Path());
    std::shared_ptr<CTimeRecordFactory> factory = std::make_shared<CTimeRecordFactory>();
    CTimeCard card{factory};
};

TEST_F(TimeCardTest, RendersTheWholeCard)
{
    Add(7, At(3, 8), At(3, 17, 30));
    Add(7, At(4, 8), At(4, 12));
    Add(7, At(4, 13), At(4, 16, 50));
    Add(8, At(4, 8), At(4, 12));
    const auto employee = Employee(7, true, 30, 15);
    ASSERT_TRUE(card.GenerateTimecard(employee, At(3, 0), At(5, 0)));
    // 9.5 - 0.75 = 8.75: 8 and 0.75; 4 + 3.8333333 - 0.75 = 7.0833335; pay 15.0833335 * 10 + 0.75 * 15.
    const std::string summary =
        "\tRegular: \t\t\t15.08\r\n\tRegular Pay Rate: \t\t10.00\r\n\tOvertime: \t\t\t0.75\r\n\tOvertime Pay Rate: \t\t15.00\r\n"
        "\tTotal Break Time: \t\t1.50\r\n\tGross Pay: \t\t\t162.08\r\n";
    EXPECT_EQ(card.ToStringReport(),
              "Name:  \t\t\t\tAnn Lee\r\nSocial Security Number: \t1\r\n\r\n\tStart Time\t\tEnd Time\t\tHours\r\n\r\n"
              "\t03/03/2003 08:00 AM\t03/03/2003 05:30 PM\t8.75\r\n\t03/04/2003 08:00 AM\t03/04/2003 12:00 PM\t3.25\r\n"
              "\t03/04/2003 01:00 PM\t03/04/2003 04:50 PM\t3.08\r\n\r\n" +
                  summary);
    EXPECT_EQ(card.ToStringReview(), summary);
    EXPECT_EQ(card.ToString(), "\r\n" + summary);
    employee->PayRate(99);
    EXPECT_EQ(card.RegularPay(), 99) << "a rate, read live";
    EXPECT_EQ(card.OvertimePay(), 15);
    EXPECT_NE(card.GetTimeRecordByKey(At(4, 8), At(4, 12)), nullptr);
    EXPECT_EQ(card.ErrorNumber(), 0);
    EXPECT_EQ(card.GetTimeRecordByKey(At(4, 8), At(4, 13)), nullptr);
    EXPECT_EQ(card.ErrorNumber(), 607);
}

TEST_F(TimeCardTest, TakesShiftsWhollyWithinThePeriodAndOpenOnes)
{
    Add(7, At(3, 0), At(3, 8));
    Add(7, At(4, 16), At(5, 0));
    Add(7, At(4, 22), At(5, 6));
    Add(7, At(2, 22), At(3, 6));
    Add(7, At(20, 8), {});
    ASSERT_TRUE(card.GenerateTimecard(Employee(7, false, 0, 0), At(3, 0), At(5, 0)));
    ASSERT_EQ(card.TimeRecordList()->Count(), 3);
    EXPECT_EQ(card.TimeRecordList()->Item(2)->EndTime(), At(5, 0)) << "midnight after the last day is included";
    EXPECT_TRUE(card.TimeRecordList()->Item(3)->EndTime().IsZero());
    EXPECT_EQ(card.TimeRecordList()->Item(3)->HoursWorked(), 0);
    EXPECT_EQ(card.TimeRecordList()->Item(1)->ObjectState(), state::Unchanged);
    EXPECT_EQ(card.RegularHoursWorked(), 16);
}

TEST_F(TimeCardTest, AnswersItsLinesAsTheyStood)
{
    EXPECT_TRUE(card.Lines().empty());
    Add(7, At(3, 9), At(3, 8));
    Add(7, At(4, 8), {});
    ASSERT_TRUE(card.GenerateTimecard(Employee(7, false, 0, 0), At(3, 0), At(5, 0)));
    const std::vector<CardLine> lines = card.Lines();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].record, card.TimeRecordList()->Item(1));
    lines[0].record->StartTime(At(3, 7));
    EXPECT_EQ(lines[0].StartText() + '|' + lines[0].EndText() + '|' + lines[0].HoursText(0.5F),
              "03/03/2003 09:00 AM|03/03/2003 08:00 AM|-1.50");
    lines[1].record->EnforceFormat(false);
    EXPECT_EQ(lines[1].StartText() + '|' + lines[1].EndText() + '|' + lines[1].HoursText(), "3/4/2003 8:00:00 AM|12:00:00 AM|0.00");
}

TEST_F(TimeCardTest, SaysWhyThereIsNone)
{
    const auto employee = Employee(7, false, 0, 0);
    Add(7, At(3, 8), At(3, 12));
    ASSERT_TRUE(card.GenerateTimecard(employee, At(3, 0), At(4, 0)));
    EXPECT_FALSE(card.GenerateTimecard(employee, At(10, 0), At(11, 0)));
    EXPECT_EQ(card.ErrorNumber(), 605);
    EXPECT_EQ(card.RegularHoursWorked(), 4) << "the figures stay";
    EXPECT_FALSE(database->DatabaseOpen()) << "an empty period does not keep others from the file";
    EXPECT_FALSE(card.GenerateTimecard(nullptr, At(3, 0), At(4, 0)));
    EXPECT_EQ(card.ErrorNumber(), 602);
    CTimeCard without(factory);
    EXPECT_FALSE(without.GenerateTimecard(employee, At(3, 0), At(4, 0)));
    EXPECT_EQ(without.ErrorNumber(), 405);
    EXPECT_EQ(without.ToString(),
              "\r\n\tRegular: \t\t\t0.00\r\n\tRegular Pay Rate: \t\t10.00\r\n\tOvertime: \t\t\t0.00\r\n\tOvertime Pay Rate: \t\t15.00\r\n"
              "\tTotal Break Time: \t\t0.00\r\n\tGross Pay: \t\t\t0.00\r\n");
    CJetDB holder(folder.Path());
    ASSERT_TRUE(holder.OpenDB());
    EXPECT_FALSE(card.GenerateTimecard(employee, At(3, 0), At(4, 0)));
    EXPECT_EQ(card.ErrorNumber(), 605) << "a file that cannot be opened yields an empty list";
    EXPECT_EQ(card.LastFailure().Description(), "the database is in use by another program");
}

TEST_F(TimeCardTest, MoreRecordsThanItsNumbersHoldPayNothing)
{
    const auto employee = Employee(7, false, 0, 0);
    Add(7, At(3, 8), At(3, 12));
    ASSERT_TRUE(card.GenerateTimecard(employee, At(3, 0), At(4, 0)));
    EXPECT_FALSE(database->DatabaseOpen()) << "read, and given to others";
    ASSERT_TRUE(database->ExecuteAction("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 7, #3/3/2003 13:00:00#, "
                                        "#3/3/2003 13:01:00# FROM (WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                                        "WHERE i < 32767) SELECT i FROM n)"));
    EXPECT_FALSE(card.GenerateTimecard(employee, At(3, 0), At(4, 0)));
    EXPECT_EQ(card.TimeRecordList()->Count(), 32768);
    EXPECT_EQ(card.LastFailure().Description(), "the period has 32768 time records, more than the 32767 that a time card can take");
    EXPECT_EQ(card.RegularHoursWorked(), 0);
    ASSERT_TRUE(database->ExecuteAction("DELETE FROM TimeRecord WHERE TimeRecordID = 2"));
    EXPECT_TRUE(card.GenerateTimecard(employee, At(3, 0), At(4, 0)));
    EXPECT_EQ(card.ErrorNumber(), 0);
    EXPECT_EQ(card.RegularHoursWorked(), 8);
}

TEST_F(TimeCardTest, SharesOneListBetweenAllCards)
{
    Add(7, At(3, 8), At(3, 12));
    Add(8, At(3, 8), At(3, 12));
    Add(8, At(4, 8), At(4, 12));
    CTimeCard other(factory);
    other.PTKDatabase(database);
    ASSERT_TRUE(card.GenerateTimecard(Employee(7, false, 0, 0), At(3, 0), At(5, 0)));
    ASSERT_TRUE(other.GenerateTimecard(Employee(8, false, 0, 0), At(3, 0), At(5, 0)));
    EXPECT_EQ(card.TimeRecordList()->Count(), 2);
    EXPECT_EQ(card.RegularHoursWorked(), 4) << "the figures are each card's own";
    EXPECT_EQ(CTimeCard(factory).TimeRecordList(), card.TimeRecordList());
}

TEST_F(TimeCardTest, ReportsWhatThereIs)
{
    const std::string heading = "\tStart Time\t\tEnd Time\t\tHours\r\n\r\n";
    EXPECT_EQ(card.ToStringReport().substr(0, heading.size() + 12), heading + "\r\n\tRegular: ");
    EXPECT_EQ(card.ErrorNumber(), 605);
    Add(7, At(3, 8), At(3, 16, 30));
    ASSERT_TRUE(card.GenerateTimecard(Employee(7, false, 30, 15), At(3, 0), At(4, 0)));
    const std::string report = card.ToStringReport();
    EXPECT_NE(report.find("04:30 PM\t7.75\r\n"), std::string::npos) << "the lines are reduced without automatic deduction too";
    EXPECT_NE(report.find("\tRegular: \t\t\t8.00\r\n"), std::string::npos);
    EXPECT_NE(report.find("\tOvertime: \t\t\t0.50\r\n"), std::string::npos);
    CTimeCard nobody(factory);
    EXPECT_EQ(nobody.ToStringReport(), heading) << "whose breaks to take off is unknown";
    EXPECT_EQ(nobody.ErrorNumber(), 710);
}

TEST_F(TimeCardTest, ClosesTheFirstOpenRecordOnly)
{
    Add(7, At(3, 8), {});
    Add(7, At(4, 8), {});
    const auto employee = Employee(7, false, 0, 0);
    EXPECT_TRUE(card.CloseTimeRecord(employee, At(1, 0), At(3, 12)));
    ASSERT_TRUE(card.GenerateTimecard(employee, At(3, 0), At(5, 0)));
    EXPECT_EQ(card.TimeRecordList()->Item(1)->EndTime(), At(3, 12));
    EXPECT_TRUE(card.TimeRecordList()->Item(2)->EndTime().IsZero());
    EXPECT_TRUE(card.CloseTimeRecord(employee, At(1, 0), At(4, 12)));
    EXPECT_FALSE(card.CloseTimeRecord(employee, At(1, 0), At(4, 12)));
    EXPECT_EQ(card.ErrorNumber(), 301) << "nothing was fetched";
    Add(7, At(6, 8), At(6, 8));
    EXPECT_FALSE(card.CloseTimeRecord(employee, At(6, 8), At(6, 12)));
    EXPECT_EQ(card.ErrorNumber(), 0) << "a record was fetched, but none is open";
}

TEST_F(TimeCardTest, AFactoryWithoutAListOrDatabaseSaysSo)
{
    EXPECT_EQ(factory->TimeRecordList(), nullptr);
    EXPECT_FALSE(factory->DestroyList());
    EXPECT_EQ(factory->ErrorNumber(), 302);
    EXPECT_FALSE(factory->SaveList());
    EXPECT_EQ(factory->ErrorNumber(), 321);
    EXPECT_EQ(factory->LastFailure().Number(), 91);
    EXPECT_FALSE(factory->SortTimeRecordList());
    EXPECT_EQ(factory->ErrorNumber(), 314);
    EXPECT_EQ(factory->GetTimeRecordByKey(At(3, 8), At(3, 9)), nullptr);
    EXPECT_EQ(factory->ErrorNumber(), 341);
    CTimeRecordFactory without;
    EXPECT_FALSE(without.BuildList(7, At(3, 0), At(4, 0)));
    EXPECT_EQ(without.ErrorNumber(), 301);
}

TEST_F(TimeCardTest, StoresANewRecordAsOftenAsItIsSaved)
{
    const auto record = std::make_shared<CTimeRecord>();
    record->EmployeeID(7);
    record->StartTime(At(3, 8));
    record->EndTime(At(3, 9));
    EXPECT_TRUE(card.SaveTimeRecord(record));
    EXPECT_TRUE(card.SaveTimeRecord(record));
    EXPECT_EQ(record->ObjectState(), state::New);
    ASSERT_TRUE(factory->BuildList(7, At(3, 0), At(4, 0)));
    EXPECT_EQ(factory->TimeRecordList()->Count(), 2);
    EXPECT_TRUE(factory->DestroyList());
    EXPECT_EQ(factory->TimeRecordList(), nullptr);
}

TEST_F(TimeCardTest, SavesWhatChangedAndDeletesWhatIsMarked)
{
    for (int day = 3; day < 8; ++day) {
        Add(7, At(day, 8), At(day, 12));
    }
    const auto employee = Employee(7, false, 0, 0);
    ASSERT_TRUE(card.GenerateTimecard(employee, At(3, 0), At(9, 0)));
    const auto list = card.TimeRecordList();
    list->Item(2)->EndTime(At(4, 13));
    list->Item(3)->ObjectState(state::Deleted);
    ASSERT_TRUE(card.Save());
    EXPECT_EQ(factory->ErrorNumber(), 0);
    EXPECT_EQ(list->Item(2)->ObjectState(), state::Changed) << "saving leaves a record's state alone";
    ASSERT_TRUE(card.GenerateTimecard(employee, At(3, 0), At(9, 0)));
    EXPECT_EQ(card.TimeRecordList(), list) << "the one list is filled anew";
    EXPECT_EQ(list->Count(), 4);
    EXPECT_EQ(card.RegularHoursWorked(), 17);
    ASSERT_TRUE(database->ExecuteAction("DROP TABLE TimeRecord;"));
    list->Item(1)->EmployeeID(8);
    EXPECT_TRUE(card.Save()) << "a refused statement shows in the factory's number alone";
    EXPECT_EQ(factory->ErrorNumber(), 803);
    EXPECT_EQ(factory->CloneTimeRecordList(), nullptr);
}

TEST_F(TimeCardTest, AFillIsStoredWholeOrNotAtAll)
{
    Add(7, At(1, 8), At(1, 12));
    ASSERT_TRUE(card.GenerateTimecard(Employee(7, false, 0, 0), At(1, 0), At(9, 0)));
    for (int day = 3; day < 6; ++day) {
        const auto record = std::make_shared<CTimeRecord>();
        record->EmployeeID(7);
        record->StartTime(At(day, 8));
        record->EndTime(At(day, 12));
        ASSERT_TRUE(card.TimeRecordList()->AddNew(record));
    }
    card.TimeRecordList()->Item(1)->ObjectState(state::Deleted);
    const auto stored = [&] {
        database->OpenDB();
        const auto rows = database->ExecuteSelect("SELECT * FROM TimeRecord;");
        database->CloseDB();
        return rows->RecordCount();
    };
    ASSERT_TRUE(database->ExecuteAction("CREATE TRIGGER rule BEFORE INSERT ON TimeRecord WHEN NEW.StartTime > '2003-03-05' BEGIN SELECT "
                                        "RAISE(ABORT, 'locked month'); END"));
    EXPECT_TRUE(card.Save());
    EXPECT_EQ(factory->ErrorNumber(), 803);
    EXPECT_EQ(card.LastFailure().Description(), "locked month");
    EXPECT_EQ(stored(), 1);
    ASSERT_TRUE(database->ExecuteAction("DROP TRIGGER rule"));
    EXPECT_TRUE(card.Save());
    EXPECT_EQ(factory->ErrorNumber(), 0);
    EXPECT_EQ(card.LastFailure().Number(), 0);
    EXPECT_EQ(stored(), 3);
}

TEST_F(TimeCardTest, TellsWhyThereIsNoneFromAnEmptyPeriod)
{
    Add(7, At(3, 8), At(3, 12));
    const auto employee = Employee(7, false, 0, 0);
    EXPECT_FALSE(card.GenerateTimecard(employee, At(10, 0), At(11, 0)));
    EXPECT_EQ(card.LastFailure().Number(), 0) << "an empty period is no failure";
    ASSERT_TRUE(database->ExecuteAction("UPDATE TimeRecord SET StartTime = '2003-03-03 8 am' WHERE TimeRecordID = 1"));
    EXPECT_FALSE(card.GenerateTimecard(employee, At(3, 0), At(4, 0)));
    EXPECT_EQ(card.ErrorNumber(), 605);
    EXPECT_EQ(card.LastFailure().Description(), "TimeRecord 1: StartTime is \"2003-03-03 8 am\" (Type mismatch)");
    for (const char* moment : {"2003-3-3 08:00:00", "2003-03-03 08:00"}) { // dates of another tool, which would be sorted as texts
        ASSERT_TRUE(database->ExecuteAction(fmt::format("UPDATE TimeRecord SET StartTime = '{}' WHERE TimeRecordID = 1", moment)));
        EXPECT_FALSE(card.GenerateTimecard(employee, At(3, 0), At(4, 0)));
        EXPECT_EQ(card.ErrorNumber(), 605);
        EXPECT_EQ(card.LastFailure().Description(),
                  fmt::format("TimeRecord 1: StartTime is \"{}\" (not stored as YYYY-MM-DD HH:MM:SS)", moment));
    }
    ASSERT_TRUE(database->ExecuteAction("DROP TABLE TimeRecord"));
    EXPECT_FALSE(card.GenerateTimecard(employee, At(3, 0), At(4, 0)));
    EXPECT_EQ(card.LastFailure().Description(), "no such table: TimeRecord");
    EXPECT_FALSE(card.GenerateTimecard(nullptr, At(3, 0), At(4, 0)));
    EXPECT_EQ(card.LastFailure().Number(), 0);
}

TEST_F(TimeCardTest, AListOfCardsKeepsThemAndStoresNone)
{
    CTimeCardList cards;
    const auto one = std::make_shared<CTimeCard>(factory);
    cards.Insert(one, 1);
    EXPECT_EQ(cards.Clone()->Item(1), one);
    EXPECT_FALSE(cards.SaveList());
    EXPECT_FALSE(cards.LoadList(nullptr));
    EXPECT_TRUE(cards.LoadList(database));
    EXPECT_EQ(cards.Count(), 1) << "nothing is loaded";
    cards.Remove(5);
    EXPECT_EQ(cards.ErrorNumber(), 351);
}

} // namespace
