// Finds employee numbers and social security numbers that more than one person has.
#pragma once

#include <string>

namespace ptk {

class CEmployeeList;
struct EmployeeTexts;

// Says who else has the typed employee number or social security number: "The SS number is Ann Lee's too". Empty if nobody else has them,
// or if none is typed. Blanks and hyphens in social security numbers do not count. This is never a reason to refuse: the lists find the
// first of two equals, as they always did.
[[nodiscard]] std::string SharedNumbersNotice(CEmployeeList& list, const EmployeeTexts& texts);

} // namespace ptk
