// The tables of documents as JSON; docs/report-format.md and docs/report.schema.json describe it.
#pragma once

#include "platform/text/DateTime.h"

#include <span>
#include <string>

namespace ptk {

struct ReportDocument;

// One object, each row on a line of its own, lines ended by CR LF.
[[nodiscard]] std::string JsonOf(std::span<const ReportDocument> documents, DateTime made);

} // namespace ptk
