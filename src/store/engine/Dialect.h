// The program's SQL, as its classes write it, in the words of the engine below.
#pragma once

#include <string>
#include <string_view>

namespace ptk {

// Dates between # signs become stored texts; in an UPDATE the table's name before an assigned column goes ("SET TimeRecord.StartTime =
// ..."), in a DELETE the list of columns before FROM. Texts, bracketed and quoted names and comments stay as they are, and so does
// everything that the engine can judge itself. Raises Failure 13 for a # that is never closed and for what is no date between two of them.
[[nodiscard]] std::string TranslateStatement(std::string_view statement);

} // namespace ptk
