// Turns the program's own SQL into the SQL of the engines.
#pragma once

#include <string>
#include <string_view>

namespace ptk {

// Turns dates between # signs into stored texts; takes away the table's name before an assigned column in an UPDATE ("SET
// TimeRecord.StartTime = ...") and the list of columns before FROM in a DELETE. Texts, bracketed and quoted names, comments and all else
// stay unchanged. Raises Failure 13 for a # that is never closed and for what is no date between two of them.
[[nodiscard]] std::string TranslateStatement(std::string_view statement);

} // namespace ptk
