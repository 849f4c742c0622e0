// The forms in which reports leave the program.
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

// The ending of its files, with the point.
[[nodiscard]] std::string_view EndingOf(ReportForm form);

// Marks a file as UTF-8 for spreadsheets, which else take it for something older.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The bytes of one file of all these documents: text as the reports' own files have it, with an empty line between two; CSV with a byte
// order mark; pages on the system's paper. `made`: the day printed and the moment in the file. Raises what PdfOf raises.
[[nodiscard]] std::string FileOf(ReportForm form, std::span<const ReportDocument> documents, DateTime made);

// The name of the report's text file with the ending of the form.
[[nodiscard]] std::string FileNameFor(const ReportDocument& document, ReportForm form);

} // namespace ptk
