// The forms in which reports are saved or printed: text, CSV, JSON and PDF.
#pragma once

#include "platform/text/DateTime.h"

#include <span>
#include <string>
#include <string_view>

namespace ptk {

struct ReportDocument;

enum class ReportForm
{
    Text,
    Csv,
    Json,
    Pdf
};

// The ending of files of this form, with the point.
[[nodiscard]] std::string_view EndingOf(ReportForm form);

// Tells spreadsheets that a file is UTF-8; without it they assume an older encoding.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The bytes of one file that holds all these documents: text as in the reports' own files, with an empty line between two; CSV with a byte
// order mark; pages on the system's paper. `made` is the day printed on pages and the moment named in the file. Raises what PdfOf raises.
[[nodiscard]] std::string FileOf(ReportForm form, std::span<const ReportDocument> documents, DateTime made);

// The name of the report's text file with the ending of the form.
[[nodiscard]] std::string FileNameFor(const ReportDocument& document, ReportForm form);

} // namespace ptk
