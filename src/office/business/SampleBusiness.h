// A small business to try the program on: made-up companies and people (SampleStaff.cpp), half a year of their shifts (SampleShifts.cpp),
// and what goes wrong in them (SampleIrregularities.cpp).
#pragma once

#include "store/rows/Rows.h"

#include <cstdint>
#include <vector>

namespace ptk {

class BulkWriter;

// The shape of somebody's working days.
enum class WorkPattern
{
    Office,
    Workshop,
    SplitDay,
    Night,
    Bakery,
    Weekend,
    PartTime
};

struct SampleEmployee
{
    EmployeeRow row; // CompanyID counts the sample's companies from 1; EmployeeID is left to the database
    WorkPattern pattern = WorkPattern::Office;
    bool clockedIn = false; // has an open record today
};

// The companies and the employees of the sample. `today` is midnight of its last day; the same `today` gives the same business. Raise
// Failure 5 or 6 when its dates leave the calendar.
[[nodiscard]] std::vector<CompanyRow> SampleCompanies();
[[nodiscard]] std::vector<SampleEmployee> SampleEmployees(DateTime today);

// The employee's shifts in order of their start: finished ones up to yesterday, or up to the release, and the open record of today.
[[nodiscard]] std::vector<TimeRecordRow> SampleShifts(const SampleEmployee& employee, std::int32_t employeeID, DateTime today);

// Adds mistakes to the shifts of some employees: at least one of each kind that the check of a card finds and that shifts can show, nearly
// all in the week before today. REQUIRES: the shifts are those that SampleShifts answers.
void AddIrregularities(const SampleEmployee& employee, std::vector<TimeRecordRow>& shifts, DateTime today);

// Writes companies, employees, and shifts with their mistakes.
void AddSampleBusiness(BulkWriter& writer, DateTime today);

} // namespace ptk
