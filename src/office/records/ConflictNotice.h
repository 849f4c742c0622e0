// The message about a refused save of a record that somebody else changed or removed since it was read.
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

// Asks whether to load what is stored now; true for Yes. For a time record it only tells, and is true: the card is always read again.
bool AskToLoad(Desktop& desktop, const std::string& title, const RowConflict& conflict, const std::string& text);

// "somebody else has changed it", or that it was removed: for a page's line, behind what was refused.
[[nodiscard]] std::string ConflictRemark(const RowConflict& conflict);

} // namespace ptk
