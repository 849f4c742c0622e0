// The parameters of the stored queries. Their names are the database's contract and differ on purpose between insert, update and the
// columns of the listings.
#pragma once

#include "store/engine/Engine.h"
#include "store/rows/Rows.h"

#include <vector>

namespace ptk {

// The parameters of the stored query of that name, in the order in which they are assigned.
[[nodiscard]] std::vector<Parameter> AddNewEmployeeParameters(const EmployeeRow& employee);
[[nodiscard]] std::vector<Parameter> UpdateEmployeeParameters(const EmployeeRow& employee);
[[nodiscard]] std::vector<Parameter> AddNewCompanyParameters(const CompanyRow& company);
[[nodiscard]] std::vector<Parameter> UpdateCompanyParameters(const CompanyRow& company);

} // namespace ptk
