// The text form of a document: its lines, each to the report's file and then to its viewer.
#pragma once

#include <cstdint>

namespace ptk {

class ReportFile;
class ReportViewer;
struct ReportDocument;

// Writes the lines and answers the last number of what went wrong: 702 for a line that the file lost, 703 for one that the viewer lost, and
// the document's own codes, each after its line; 0 when nothing went wrong. The other lines are written even where one is lost.
[[nodiscard]] std::int32_t RenderText(const ReportDocument& document, ReportFile& file, ReportViewer& viewer);

} // namespace ptk
