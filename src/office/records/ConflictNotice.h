// What a refused save tells of the record that somebody else changed or removed since it was read.
#pragma once

#include "office/history/HistoryText.h"
#include "platform/system/Desktop.h"
#include "store/RowConflict.h"

#include <string>

namespace ptk {

// "The record of Ann Lee was changed by somebody else since it was read.", a line for each difference ("Pay rate: 10 when read, 12 now";
// of a password only that it changed), and what can be done. `name` is an employee's or company's, or "03/05/2003 08:00 AM of Ann Lee" for
// a time record; options need none. Lines end with CR LF.
[[nodiscard]] std::string ConflictText(const RowConflict& conflict, const std::string& name, const NameOfEmployee& nameOf = {});

// Asks whether to load what is stored now; of a time record, whose card is always read again, it only tells. True for Yes.
bool AskToLoad(Desktop& desktop, const std::string& title, const RowConflict& conflict, const std::string& text);

// For a page's line, after what was refused: "somebody else has changed it".
[[nodiscard]] std::string ConflictRemark(const RowConflict& conflict);

} // namespace ptk
