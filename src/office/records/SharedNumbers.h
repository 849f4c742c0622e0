// Numbers that are meant to be one person's and are another's too.
#pragma once

#include <string>

namespace ptk {

class CEmployeeList;
struct EmployeeTexts;

// Says whose the typed employee number and social security number are besides, "The SS number is Ann Lee's too"; empty when they are nobody
// else's, or none. Two social security numbers are the same whatever blanks and hyphens stand in them. Never a reason to refuse: the lists
// find the first of two equals, as they always did.
[[nodiscard]] std::string SharedNumbersNotice(CEmployeeList& list, const EmployeeTexts& texts);

} // namespace ptk
