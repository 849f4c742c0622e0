// The tables of documents as JSON; docs/report-format.md and docs/report.schema.json describe it.
#pragma once

#include "platform/text/DateTime.h"
#include "reports/forms/ReportDocument.h"

#include <span>
#include <string>

namespace ptk {

// The documents as one object, each row on a line of its own; lines end in CR LF. `made` is the moment that it names.
[[nodiscard]] std::string JsonOf(std::span<const ReportDocument> documents, DateTime made);

// One row as an object, its members named by the columns, without a line end.
[[nodiscard]] std::string JsonRowOf(const ReportRow& row, const ReportTable& table);

} // namespace ptk
