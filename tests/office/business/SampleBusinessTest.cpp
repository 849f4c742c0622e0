#include "office/business/SampleBusiness.h"

#include "platform/text/Text.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace ptk {

namespace {

const DateTime kSampleDay(CalendarDate{2026, 3, 20});
const DateTime kHalfAYearAgo(CalendarDate{2025, 9, 19}); // 182 days before

bool IsOpen(const TimeRecordRow& shift)
{
    return shift.EndTime.IsZero();
}

TEST(SampleBusinessTest, HoldsEveryKindOfEmployee)
{
    const auto employees = SampleEmployees(kSampleDay);
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
    for (const SampleEmployee& employee : SampleEmployees(kSampleDay)) {
        SCOPED_TRACE(employee.row.LastName);
        const auto shifts = SampleShifts(employee, 77, kSampleDay);
        ASSERT_GT(shifts.size(), 50U);
        EXPECT_GE(shifts.front().StartTime, kHalfAYearAgo);
        EXPECT_EQ(std::count_if(shifts.begin(), shifts.end(), IsOpen), employee.clockedIn ? 1 : 0);
        for (std::size_t i = 0; i < shifts.size(); ++i) {
            EXPECT_EQ(shifts[i].EmployeeID, 77);
            EXPECT_TRUE(IsOpen(shifts[i]) || shifts[i].StartTime < shifts[i].EndTime);
            EXPECT_TRUE(i == 0 || shifts[i - 1].EndTime < shifts[i].StartTime); // nobody is at work twice at once
        }
        const DateTime last = employee.row.EmployeeActive ? kSampleDay : employee.row.ReleaseDate;
        EXPECT_LE(shifts.back().StartTime, last.AddDays(1));
        EXPECT_GT(shifts.back().StartTime, last.AddDays(-8));
    }
}

TEST(SampleBusinessTest, HoldsTheUsualIrregularities)
{
    int overtime = 0;
    int overMidnight = 0;
    int splitDays = 0;
    for (const SampleEmployee& employee : SampleEmployees(kSampleDay)) {
        DateTime previousDay;
        for (const TimeRecordRow& shift : SampleShifts(employee, 1, kSampleDay)) {
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

// The guide's figures and pictures are the sample's, everywhere and in every version.
TEST(SampleBusinessTest, IsTheSameBusinessEverywhere)
{
    std::string staff;
    for (const SampleEmployee& employee : SampleEmployees(kSampleDay)) {
        const EmployeeRow& row = employee.row;
        std::int64_t minutes = 0;
        auto shifts = SampleShifts(employee, 1, kSampleDay);
        AddIrregularities(employee, shifts, kSampleDay);
        for (const TimeRecordRow& shift : shifts) {
            minutes += IsOpen(shift) ? 0 : MinutesBetween(shift.StartTime, shift.EndTime);
        }
        staff +=
            fmt::format("{} of {}, born {}, hired {}: {:.2f} and {:.2f}, off {} + {}; {} shifts, {} minutes\n", row.EmployeeNumber,
                        row.CompanyID, FormatDateTime(row.DateOfBirth, "mm/dd/yyyy"), FormatDateTime(row.HireDate, "mm/dd/yyyy"),
                        row.PayRate, row.OvertimePayRate, row.AutoDeductLunchLength, row.AutoDeductBreakLength, shifts.size(), minutes);
    }
    EXPECT_EQ(staff, "101 of 1, born 05/17/1992, hired 03/01/2020: 18.50 and 27.75, off 0 + 0; 124 shifts, 65694 minutes\n"
                     "102 of 1, born 11/02/1975, hired 03/11/2012: 24.00 and 36.00, off 30 + 15; 126 shifts, 68499 minutes\n"
                     "103 of 1, born 02/28/1984, hired 03/20/2022: 17.25 and 0.00, off 0 + 0; 248 shifts, 63488 minutes\n"
                     "104 of 1, born 08/09/1987, hired 09/29/2023: 19.80 and 29.70, off 30 + 0; 124 shifts, 61073 minutes\n"
                     "105 of 1, born 06/30/1997, hired 06/03/2024: 21.40 and 32.10, off 60 + 0; 126 shifts, 67315 minutes\n"
                     "106 of 1, born 01/21/1965, hired 10/12/2009: 16.00 and 24.00, off 0 + 0; 83 shifts, 43915 minutes\n"
                     "107 of 1, born 09/14/2003, hired 05/14/2025: 12.30 and 18.45, off 0 + 0; 77 shifts, 18419 minutes\n"
                     "201 of 2, born 03/03/1990, hired 04/27/2021: 17.90 and 26.85, off 30 + 10; 127 shifts, 66006 minutes\n"
                     "202 of 2, born 12/24/1999, hired 06/26/2023: 15.75 and 23.63, off 0 + 0; 127 shifts, 65795 minutes\n"
                     "203 of 2, born 07/07/1979, hired 07/30/2018: 16.40 and 24.60, off 0 + 15; 256 shifts, 64624 minutes\n"
                     "204 of 2, born 10/12/1995, hired 01/24/2025: 15.00 and 22.50, off 30 + 0; 125 shifts, 67388 minutes\n"
                     "205 of 2, born 04/19/2006, hired 06/18/2025: 13.50 and 20.25, off 0 + 0; 152 shifts, 66941740 minutes\n");
}

TEST(SampleBusinessTest, IsTheSameForTheSameDayOnly)
{
    const SampleEmployee ann = SampleEmployees(kSampleDay).front();
    const auto starts = [&](DateTime today) {
        std::vector<DateTime> result;
        for (const TimeRecordRow& shift : SampleShifts(ann, 1, today)) {
            result.push_back(shift.StartTime);
        }
        return result;
    };
    EXPECT_EQ(starts(kSampleDay), starts(kSampleDay));
    EXPECT_NE(starts(kSampleDay), starts(kSampleDay.AddDays(1)));
}

} // namespace

} // namespace ptk
