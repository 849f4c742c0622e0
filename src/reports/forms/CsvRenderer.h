// The tables of documents as CSV; docs/report-format.md describes it.
#pragma once

#include <span>
#include <string>

namespace ptk {

struct ReportDocument;

// RFC 4180, without a byte order mark: one heading line, then the rows of all documents. Empty without a document. REQUIRES: documents of
// one kind of report.
[[nodiscard]] std::string CsvOf(std::span<const ReportDocument> documents);

} // namespace ptk
