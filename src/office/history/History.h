// The edit trail in the forms that people and other programs read: who changed what, when, from what to what.
#pragma once

#include "office/history/EmployeeNames.h"
#include "office/history/HistoryText.h"
#include "reports/forms/ReportForms.h"
#include "store/trail/TrailReader.h"

#include <memory>
#include <string>

namespace ptk {

class CJetDB;

// The entries of the query, newest first, in one of the forms that docs/history-format.md describes. As text it has one line for each
// entry, and is empty without entries. Lines end in CR LF. Raises what reading the trail raises. REQUIRES: the form is not Pdf.
[[nodiscard]] std::string HistoryIn(ReportForm form, const std::shared_ptr<CJetDB>& database, const TrailQuery& query);

// One entry as a JSON object, without a line end.
[[nodiscard]] std::string HistoryJson(const TrailEntry& entry, const NameOfEmployee& nameOf);

// The first line of a file in this form, with its line end; empty for text. REQUIRES: neither Pdf nor Json.
[[nodiscard]] std::string HistoryHeading(ReportForm form);

// One entry in this form, with its line end. REQUIRES: neither Pdf nor Json.
[[nodiscard]] std::string HistoryLine(ReportForm form, const TrailEntry& entry, const NameOfEmployee& nameOf);

} // namespace ptk
