// What windows and the printed card say about a period that was paid.
#pragma once

#include <string>

namespace ptk {

struct Closing;

// "Paid on 03/06/2003 02:15 PM by Ann Lee", leaving out what is not known.
[[nodiscard]] std::string PaidText(const Closing& closing);

// "80.00 + 8.00 hours, 920.00": regular and overtime hours and gross pay as they were paid.
[[nodiscard]] std::string PaidFigures(const Closing& closing);

} // namespace ptk
