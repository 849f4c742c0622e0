#include "model/CDateRange.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordList.h"
#include "model/CTimeRecordListSorter.h"

#include <gtest/gtest.h>
#include <vector>

using namespace ptk;

namespace {

DateTime InMarch(int day, int hour, int minute = 0, int second = 0)
{
    return DateTime({2003, 3, day}, {hour, minute, second});
}

std::shared_ptr<CTimeRecord> Shift(DateTime start, DateTime end)
{
    auto record = std::make_shared<CTimeRecord>();
    record->StartTime(start);
    record->EndTime(end);
    return record;
}

TEST(TimeRecordTest, CountsMinutesAsSingleHours)
{
    struct Case
    {
        const char* name;
        DateTime start, end;
        float hours;
        const char* line;
    };
    for (const Case& c :
         {Case{"a working day", InMarch(5, 8), InMarch(5, 16, 30), 8.5F, "03/05/2003 08:00 AM\t03/05/2003 04:30 PM\t8.50"},
          Case{"7 hours 50", InMarch(5, 8), InMarch(5, 15, 50), 7.8333335F, "03/05/2003 08:00 AM\t03/05/2003 03:50 PM\t7.83"},
          Case{"over midnight", InMarch(5, 22), InMarch(6, 6), 8, "03/05/2003 10:00 PM\t03/06/2003 06:00 AM\t8.00"},
          Case{"one minute's edge", InMarch(5, 8, 0, 30), InMarch(5, 8, 1, 10), 0.016666668F,
               "03/05/2003 08:00 AM\t03/05/2003 08:01 AM\t0.02"},
          Case{"backwards reads as 0, shows as it is", InMarch(5, 9), InMarch(5, 8), 0, "03/05/2003 09:00 AM\t03/05/2003 08:00 AM\t-1.00"},
          Case{"still clocked in", InMarch(5, 9), {}, 0, "03/05/2003 09:00 AM\t12/30/1899 12:00 AM\t0.00"}}) {
        SCOPED_TRACE(c.name);
        const auto record = Shift(c.start, c.end);
        EXPECT_EQ(record->HoursWorked(), c.hours);
        EXPECT_EQ(record->ToString(0), c.line);
    }
    const auto record = Shift(InMarch(5, 8), InMarch(5, 16, 30));
    EXPECT_EQ(record->ToString(0.5F), "03/05/2003 08:00 AM\t03/05/2003 04:30 PM\t8.00");
    EXPECT_EQ(record->ToStringReport(), "03/05/2003 08:00 AM\t03/05/2003 04:30 PM");
    record->EnforceFormat(false);
    EXPECT_EQ(record->ToString(0), "3/5/2003 8:00:00 AM\t3/5/2003 4:30:00 PM\t8.50");
}

TEST(TimeRecordTest, RecalculatesOnceBothTimesAreKnown)
{
    CTimeRecord record;
    record.HoursWorked(3);
    record.StartTime(InMarch(5, 8));
    EXPECT_EQ(record.HoursWorked(), 3);
    record.EndTime(InMarch(5, 9));
    EXPECT_EQ(record.HoursWorked(), 1);
    EXPECT_EQ(record.ObjectState(), state::New);
    record.ObjectState(state::Unchanged);
    record.FormatString("m");
    EXPECT_EQ(record.ObjectState(), state::Unchanged);
    record.EmployeeID(4);
    EXPECT_EQ(record.ObjectState(), state::Changed);
    record.ObjectState(state::New);
    record.TimeRecordID(9);
    EXPECT_EQ(record.ObjectState(), state::Changed) << "a key marks even a new record as changed";
    EXPECT_EQ(record.ToSQL(), "UPDATE TimeRecord SET TimeRecord.EmployeeID = 4, TimeRecord.StartTime = #3/5/2003 8:00:00 AM#, "
                              "TimeRecord.EndTime = #3/5/2003 9:00:00 AM# WHERE ((TimeRecord.TimeRecordID = 9));");
    record.ObjectState(state::NothingToDo);
    EXPECT_EQ(record.ToSQL(), "");
}

TEST(TimeRecordListTest, ClampsInsertsAndRefusesRemovals)
{
    CTimeRecordList list;
    const auto first = Shift(InMarch(1, 8), InMarch(1, 9));
    const auto second = Shift(InMarch(2, 8), InMarch(2, 9));
    EXPECT_TRUE(list.Insert(second, 7));
    EXPECT_TRUE(list.Insert(first, -5));
    EXPECT_EQ(list.Item(1), first);
    for (const std::int32_t position : {0, 3, -1}) {
        EXPECT_FALSE(list.Remove(position));
        EXPECT_EQ(list.ErrorNumber(), 351);
        EXPECT_EQ(list.Item(position), nullptr);
        EXPECT_EQ(list.ErrorNumber(), 0);
    }
    first->ObjectState(state::Unchanged);
    EXPECT_TRUE(list.AddNew(first));
    EXPECT_EQ(first->ObjectState(), state::New);
    EXPECT_EQ(list.Count(), 3);
}

TEST(TimeRecordListTest, AMoveLosesTheRecordAndSaysSo)
{
    CTimeRecordList list;
    list.Insert(Shift(InMarch(1, 8), InMarch(1, 9)), 1);
    const auto second = Shift(InMarch(2, 8), InMarch(2, 9));
    list.Insert(second, 2);
    EXPECT_FALSE(list.Move(9, 1));
    EXPECT_EQ(list.Count(), 2);
    EXPECT_FALSE(list.Move(1, 2));
    EXPECT_EQ(list.Count(), 1);
    EXPECT_EQ(list.Item(1), second);
}

TEST(TimeRecordListSorterTest, KeepsAnOrderedListAndLosesWhatIsOutOfOrder)
{
    const auto list = std::make_shared<CTimeRecordList>();
    const auto early = Shift(InMarch(1, 8), InMarch(1, 9));
    const auto twin = Shift(InMarch(1, 8), InMarch(1, 9));
    const auto late = Shift(InMarch(2, 8), InMarch(2, 9));
    for (const auto& record : {early, twin, late}) {
        list->Insert(record, 99);
    }
    CTimeRecordListSorter sorter(list);
    EXPECT_TRUE(sorter.Sort(1));
    EXPECT_EQ(list->Count(), 3);
    EXPECT_EQ(sorter.GetTimeRecordByKey(InMarch(1, 8), InMarch(1, 9)), early) << "the lower position";
    EXPECT_EQ(sorter.GetIndexByKey(InMarch(9, 0), InMarch(2, 8), InMarch(2, 9)), 3) << "the shift date is not used";
    EXPECT_EQ(sorter.GetTimeRecordByKey(InMarch(1, 8), InMarch(1, 10)), nullptr);
    EXPECT_EQ(sorter.ErrorNumber(), 0);
    EXPECT_EQ(sorter.Find(twin), 2);
    list->Insert(Shift(InMarch(1, 7), InMarch(1, 8)), 99);
    EXPECT_TRUE(sorter.Sort(1));
    EXPECT_EQ(list->Count(), 3) << "the earliest record stood last and was lost on its way to the front";
    for (int i = list->Count(); i < 32767; ++i) {
        list->AddNew(late);
    }
    EXPECT_TRUE(sorter.Sort(1));
    list->AddNew(late);
    EXPECT_FALSE(sorter.Sort(1)) << "its positions are 16-bit numbers";
    EXPECT_EQ(sorter.ErrorNumber(), 314);
    list->Remove(1);
    EXPECT_TRUE(sorter.Sort(1));
    EXPECT_EQ(sorter.ErrorNumber(), 0);
    CTimeRecordListSorter none;
    EXPECT_FALSE(none.Sort(1));
    EXPECT_EQ(none.Find(early), -1);
    EXPECT_EQ(none.ErrorNumber(), 341);
}

TEST(TimeRecordListSorterTest, TellsOpenRecordsApartByTheirStart)
{
    const auto list = std::make_shared<CTimeRecordList>();
    const auto open = Shift(InMarch(7, 8), {});
    list->Insert(Shift(InMarch(6, 8), {}), 1);
    list->Insert(open, 2);
    EXPECT_EQ(CTimeRecordListSorter(list).GetTimeRecordByKey(InMarch(7, 8), {}), open);
}

TEST(DateRangeTest, AcceptsWithANumberWhatIsReversedOrOutOfLimits)
{
    struct Case
    {
        const char* name;
        Value start, end;
        bool valid;
        std::int32_t code;
        std::int32_t days;
    };
    CDateRange range; // one for all: no answer leaves anything behind for the next
    for (const Case& c :
         {Case{"a week", "3/3/2003", "3/9/2003", true, 0, 6}, Case{"one day", "3/3/2003", DateTime({2003, 3, 3}, {23, 0, 0}), true, 0, 0},
          Case{"the limits", "1/1/1900", "12/31/2100", true, 0, 73413}, Case{"too early", "12/31/1899", "1/1/1900", true, 803, 1},
          Case{"too late", "1/1/2100", "1/1/2101", true, 803, 365}, Case{"reversed", "3/9/2003", "3/3/2003", true, 802, -6},
          Case{"no date", "abc", "3/3/2003", false, 899, -1}, Case{"null", Value(), "3/3/2003", false, 899, -1},
          Case{"a day, after what was no date", "3/3/2003", "3/4/2003", true, 0, 1}}) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(range.ValidateRange(c.start, c.end), c.valid);
        EXPECT_EQ(range.ValidRange(), c.valid);
        EXPECT_EQ(range.ErrorNumber(), c.code);
        EXPECT_EQ(range.DayCount(), c.days);
    }
}

TEST(DateRangeTest, TellsWhatLiesInside)
{
    CDateRange range;
    EXPECT_FALSE(range.CheckDateInclusion("3/3/2003"));
    EXPECT_EQ(range.ErrorNumber(), 804);
    ASSERT_TRUE(range.ValidateRange("3/3/2003", "3/9/2003"));
    struct Case
    {
        Value date;
        bool inside;
        std::int32_t code;
    };
    for (const Case& c : {Case{"3/3/2003", true, 0}, Case{"3/9/2003", true, 0}, Case{"3/9/2003 0:01", false, 0},
                          Case{"3/2/2003 23:59", false, 0}, Case{"soon", false, 801}, Case{5, false, 801}, Case{"1/1/2101", false, 803}}) {
        EXPECT_EQ(range.CheckDateInclusion(c.date), c.inside);
        EXPECT_EQ(range.ErrorNumber(), c.code);
    }
}

TEST(DateRangeTest, TravelsAsText)
{
    CDateRange range;
    range.SetRange(InMarch(5, 8), InMarch(11, 0));
    EXPECT_FALSE(range.ValidRange());
    EXPECT_EQ(range.ToString(), "03/05/2003+03/11/2003");
    CDateRange copy;
    EXPECT_TRUE(copy.SetRangeString(range.ToString()));
    EXPECT_EQ(copy.StartDate(), InMarch(5, 0));
    EXPECT_EQ(copy.EndDate(), InMarch(11, 0));
    EXPECT_TRUE(copy.ValidRange());
    for (const auto& [text, code] : std::vector<std::pair<const char*, int>>{{"3/5/2003", 0}, {"x+3/5/2003", 801}, {"3/5/2003+", 801}}) {
        EXPECT_TRUE(copy.SetRangeString(text)) << text;
        EXPECT_EQ(copy.ErrorNumber(), code) << text;
        EXPECT_FALSE(copy.ValidRange());
        EXPECT_TRUE(copy.StartDate().IsZero() && copy.EndDate().IsZero());
    }
    range.EnforceFormat(false);
    EXPECT_EQ(range.ToString(), "3/5/2003 8:00:00 AM+3/11/2003");
}

} // namespace
