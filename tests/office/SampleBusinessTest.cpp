#include "office/SampleBusiness.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ptk {

namespace {

const DateTime kToday(CalendarDate{2026, 3, 20});
const DateTime kHalfAYearAgo(CalendarDate{2025, 9, 19}); // 182 days before

bool IsOpen(const TimeRecordRow& shift)
{
    return shift.EndTime.IsZero();
}

TEST(SampleBusinessTest, HoldsEveryKindOfEmployee)
{
    const auto employees = SampleEmployees(kToday);
    const auto count = [&](auto predicate) { return std::count_if(employees.begin(), employees.end(), predicate); };
    EXPECT_EQ(SampleCompanies().size(), 2U);
    EXPECT_EQ(employees.size(), 12U);
    EXPECT_EQ(count([](const SampleEmployee& e) { return !e.row.EmployeeActive; }), 1);
    EXPECT_EQ(count([](const SampleEmployee& e) { return e.row.FirstName.empty(); }), 1);
    EXPECT_EQ(count([](const SampleEmployee& e) { return e.row.AutoDeduct; }), 6);
    EXPECT_EQ(count([](const SampleEmployee& e) { return e.clockedIn; }), 1);
}

TEST(SampleBusinessTest, ShiftsFillHalfAYearUpToTodayInOrder)
{
    for (const SampleEmployee& employee : SampleEmployees(kToday)) {
        SCOPED_TRACE(employee.row.LastName);
        const auto shifts = SampleShifts(employee, 77, kToday);
        ASSERT_GT(shifts.size(), 50U);
        EXPECT_GE(shifts.front().StartTime, kHalfAYearAgo);
        EXPECT_EQ(std::count_if(shifts.begin(), shifts.end(), IsOpen), employee.clockedIn ? 1 : 0);
        for (std::size_t i = 0; i < shifts.size(); ++i) {
            EXPECT_EQ(shifts[i].EmployeeID, 77);
            EXPECT_TRUE(IsOpen(shifts[i]) || shifts[i].StartTime < shifts[i].EndTime);
            EXPECT_TRUE(i == 0 || shifts[i - 1].EndTime < shifts[i].StartTime); // nobody is at work twice at once
        }
        const DateTime last = employee.row.EmployeeActive ? kToday : employee.row.ReleaseDate;
        EXPECT_LE(shifts.back().StartTime, last.AddDays(1));
        EXPECT_GT(shifts.back().StartTime, last.AddDays(-8));
    }
}

TEST(SampleBusinessTest, HoldsTheUsualIrregularities)
{
    int overtime = 0;
    int overMidnight = 0;
    int splitDays = 0;
    for (const SampleEmployee& employee : SampleEmployees(kToday)) {
        DateTime previousDay;
        for (const TimeRecordRow& shift : SampleShifts(employee, 1, kToday)) {
            overtime += MinutesBetween(shift.StartTime, shift.EndTime) > 540 ? 1 : 0;
            overMidnight += DaysBetween(shift.StartTime, shift.EndTime) == 1 ? 1 : 0;
            splitDays += DaysBetween(previousDay, shift.StartTime) == 0 ? 1 : 0;
            previousDay = shift.StartTime;
        }
    }
    EXPECT_GT(overtime, 20);
    EXPECT_GT(overMidnight, 50);
    EXPECT_GT(splitDays, 100);
}

TEST(SampleBusinessTest, IsTheSameForTheSameDayOnly)
{
    const SampleEmployee ann = SampleEmployees(kToday).front();
    const auto starts = [&](DateTime today) {
        std::vector<DateTime> result;
        for (const TimeRecordRow& shift : SampleShifts(ann, 1, today)) {
            result.push_back(shift.StartTime);
        }
        return result;
    };
    EXPECT_EQ(starts(kToday), starts(kToday));
    EXPECT_NE(starts(kToday), starts(kToday.AddDays(1)));
}

} // namespace

} // namespace ptk
