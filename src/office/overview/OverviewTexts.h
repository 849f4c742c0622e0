// The payday overview as text for people (OverviewText.cpp) and as data for other programs (OverviewData.cpp; docs/overview-format.md).
#pragma once

#include "reports/forms/ReportForms.h"

#include <string>

namespace ptk {

struct CardCheck;
struct Overview;
struct PayPeriod;
struct ReportDocument;

// The overview as a table: the sentences about a card stand under its employee, the sums at the end. Lines end in CR LF.
[[nodiscard]] std::string OverviewText(const Overview& overview);

// The overview for pages, without remedies: an employee and the sentences about the card stay on one page.
[[nodiscard]] ReportDocument OverviewDocument(const Overview& overview);

// CSV with one line for each employee and one for each finding.
[[nodiscard]] std::string OverviewCsv(const Overview& overview);

// JSON with one object, which ends with CR LF.
[[nodiscard]] std::string OverviewJson(const Overview& overview);

// The bytes of a file of it: CSV with a byte order mark, JSON, text, or pages. Raises what PdfOf raises.
[[nodiscard]] std::string OverviewFile(ReportForm form, const Overview& overview);

// "PTK overview 2003-03-01", with the period's first day and without a file extension.
[[nodiscard]] std::string OverviewFileName(const PayPeriod& period);

// One line for each finding, " problem: ..."; without the notices if they are not to be shown.
[[nodiscard]] std::string FindingLines(const CardCheck& check, bool showNotices);

} // namespace ptk
