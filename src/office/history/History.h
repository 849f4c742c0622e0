// The edit trail as people and other programs read it: who changed what, when, from what to what.
#pragma once

#include "office/history/EmployeeNames.h"
#include "office/history/HistoryText.h"
#include "reports/forms/ReportForms.h"
#include "store/trail/TrailReader.h"

#include <memory>
#include <string>

namespace ptk {

class CJetDB;

// The entries of the query, newest first, in one of the forms that docs/history-format.md describes; as text one line an entry, nothing
// without one. Lines end in CR LF. Raises what reading the trail raises. REQUIRES: not Pdf.
[[nodiscard]] std::string HistoryIn(ReportForm form, const std::shared_ptr<CJetDB>& database, const TrailQuery& query);

// One entry as JSON has it, an object without a line end.
[[nodiscard]] std::string HistoryJson(const TrailEntry& entry, const NameOfEmployee& nameOf);

// The line with which a file in this form begins, its end included; empty for text. REQUIRES: neither Pdf nor Json.
[[nodiscard]] std::string HistoryHeading(ReportForm form);

// One entry in this form, the end of the line included. REQUIRES: neither Pdf nor Json.
[[nodiscard]] std::string HistoryLine(ReportForm form, const TrailEntry& entry, const NameOfEmployee& nameOf);

} // namespace ptk
