// The table of the employee records: what the report, the import of employees and the account of one person have in common.
#pragma once

#include "reports/forms/ReportDocument.h"

#include <span>

namespace ptk {

class CEmployee;

[[nodiscard]] std::span<const ReportColumn> EmployeeRecordColumns();

// An employee's values, one for each of these columns; dates that are not known are null.
[[nodiscard]] ReportRow EmployeeRecord(const CEmployee& employee);

} // namespace ptk
