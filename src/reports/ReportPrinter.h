// Hands a report's pages to the print spooler, and to the program with which the desktop shows PDF files.
#pragma once

#include "platform/text/DateTime.h"

#include <memory>
#include <string>

namespace ptk {

class Desktop;
class DesktopWindow;
class PrivateFile;
struct ReportDocument;

// PrintPages and OpenPages raise nothing; `refusal` says in words why they failed, where that is known. Only its owner can read a file of
// pages.

// Prints the document's pages; false when the spooler does not take them.
[[nodiscard]] bool PrintPages(Desktop& desktop, const DesktopWindow* window, const ReportDocument& document, DateTime now,
                              std::string& refusal);

// Shows the document's pages. Answers their file, which the caller keeps as long as it may be looked at; nullptr when nothing shows it.
[[nodiscard]] std::unique_ptr<PrivateFile> OpenPages(Desktop& desktop, const DesktopWindow* window, const ReportDocument& document,
                                                     DateTime now, std::string& refusal);

// Shows the box about a report that has no file.
void TellNoFile(Desktop& desktop);

} // namespace ptk
