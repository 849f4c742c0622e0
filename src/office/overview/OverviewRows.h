// How one row of an overview is made.
#pragma once

#include "office/card/CardChecker.h"
#include "office/overview/Overview.h"

#include <memory>

namespace ptk {

[[nodiscard]] CheckTerms TermsOf(const Overview& overview);

// Checks the employee's card and makes the row. Raises what reading the database raises. REQUIRES: the employee is not nullptr.
[[nodiscard]] OverviewRow RowOf(const Overview& overview, CardChecker& checker, const std::shared_ptr<CEmployee>& employee);

} // namespace ptk
