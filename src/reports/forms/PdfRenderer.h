// Documents as the pages of a PDF file.
#pragma once

#include "platform/system/SystemPaper.h"
#include "platform/text/DateTime.h"

#include <span>
#include <string>

namespace ptk {

struct ReportDocument;

// The file's bytes: each document begins a page, and its pages are counted by themselves. The same documents, paper and moment give the
// same bytes with the same libraries and typefaces; a ReproducibleMoment stands for `now` where there is one. Raises 53 when the module
// that draws or one of its libraries is not there, 57 when drawing fails. REQUIRES: one document at least.
[[nodiscard]] std::string PdfOf(std::span<const ReportDocument> documents, PaperSize paper, DateTime now);

} // namespace ptk
