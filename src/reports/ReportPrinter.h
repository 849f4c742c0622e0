// The way of a report's pages to the print spooler and to the program that the desktop shows PDF files with.
#pragma once

#include "platform/text/DateTime.h"

#include <memory>
#include <string>

namespace ptk {

class Desktop;
class DesktopWindow;
class PrivateFile;
struct ReportDocument;

// Neither raises anything; `refusal` says why not, in words, where that is known. The files are for their owner only.

// False when the spooler does not take it.
[[nodiscard]] bool PrintPages(Desktop& desktop, const DesktopWindow* window, const ReportDocument& document, DateTime now,
                              std::string& refusal);

// The file that is shown, for the caller to keep as long as it may be looked at; nullptr when nothing shows it.
[[nodiscard]] std::unique_ptr<PrivateFile> OpenPages(Desktop& desktop, const DesktopWindow* window, const ReportDocument& document,
                                                     DateTime now, std::string& refusal);

// The box about a report whose file is not there.
void TellNoFile(Desktop& desktop);

} // namespace ptk
