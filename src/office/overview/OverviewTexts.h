// The payday overview as text for people (OverviewText.cpp) and as data for other programs (OverviewData.cpp; docs/overview-format.md).
#pragma once

#include "reports/forms/ReportForms.h"

#include <string>

namespace ptk {

struct CardCheck;
struct Overview;
struct PayPeriod;
struct ReportDocument;

// A table: under each employee the sentences on their card, at its end the sums. Lines end in CR LF.
[[nodiscard]] std::string OverviewText(const Overview& overview);

// The overview as text, for pages: an employee is kept together with the sentences.
[[nodiscard]] ReportDocument OverviewDocument(const Overview& overview);

// One line an employee and one a finding.
[[nodiscard]] std::string OverviewCsv(const Overview& overview);

// One object.
[[nodiscard]] std::string OverviewJson(const Overview& overview);

// The bytes of a file of it: CSV with a byte order mark, JSON, text, or pages. Raises what PdfOf raises.
[[nodiscard]] std::string OverviewFile(ReportForm form, const Overview& overview);

// "PTK overview 2003-03-01", the period's first day, without an ending.
[[nodiscard]] std::string OverviewFileName(const PayPeriod& period);

// One line a finding, "    problem: ..."; without the notices where they are not to be shown.
[[nodiscard]] std::string FindingLines(const CardCheck& check, bool showNotices);

} // namespace ptk
