// Documents as the pages of a PDF file.
#pragma once

#include "platform/system/SystemPaper.h"
#include "platform/text/DateTime.h"

#include <span>
#include <string>

namespace ptk {

struct ReportDocument;

// The bytes of a PDF file in which each document begins a new page and counts its own pages. The same documents, paper and moment give the
// same bytes with the same libraries and typefaces; a ReproducibleMoment, where there is one, is used instead of `now`. Raises 53 when the
// drawing module or one of its libraries is missing, 57 when drawing fails. REQUIRES: at least one document.
[[nodiscard]] std::string PdfOf(std::span<const ReportDocument> documents, PaperSize paper, DateTime now);

} // namespace ptk
