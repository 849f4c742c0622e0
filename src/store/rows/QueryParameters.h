// The parameters of the stored queries that write.
#pragma once

#include "store/engine/Statement.h"
#include "store/rows/Rows.h"

#include <vector>

namespace ptk {

// The parameters of the stored query of that name.
[[nodiscard]] std::vector<Parameter> AddNewEmployeeParameters(const EmployeeRow& employee);
[[nodiscard]] std::vector<Parameter> UpdateEmployeeParameters(const EmployeeRow& employee);
[[nodiscard]] std::vector<Parameter> AddNewCompanyParameters(const CompanyRow& company);
[[nodiscard]] std::vector<Parameter> UpdateCompanyParameters(const CompanyRow& company);

} // namespace ptk
