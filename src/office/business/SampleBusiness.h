// A small business to try the program on: made-up companies and people (SampleStaff.cpp), half a year of their shifts (SampleShifts.cpp),
// and what goes wrong in them (SampleIrregularities.cpp).
#pragma once

#include "store/rows/Rows.h"

#include <cstdint>
#include <vector>

namespace ptk {

class BulkWriter;

// How somebody's days look.
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

// `today` is midnight of the sample's last day. The same `today` gives the same business. Raise Failure 5 or 6 when its dates leave the
// calendar.
[[nodiscard]] std::vector<CompanyRow> SampleCompanies();
[[nodiscard]] std::vector<SampleEmployee> SampleEmployees(DateTime today);

// In order of their start: finished shifts up to yesterday, or to the release, and the open record of today.
[[nodiscard]] std::vector<TimeRecordRow> SampleShifts(const SampleEmployee& employee, std::int32_t employeeID, DateTime today);

// Puts into the shifts of some employees what goes wrong in every business: of each kind that the check of a card finds at least one, so
// far as shifts can show it, nearly all in the week before today. REQUIRES: the shifts are those that SampleShifts answers.
void AddIrregularities(const SampleEmployee& employee, std::vector<TimeRecordRow>& shifts, DateTime today);

// All of these.
void AddSampleBusiness(BulkWriter& writer, DateTime today);

} // namespace ptk
