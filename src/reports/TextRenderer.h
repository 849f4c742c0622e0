// The text form of a document: its lines, each to the report's file and then to its viewer.
#pragma once

#include <cstdint>

namespace ptk {

class ReportFile;
class ReportViewer;
struct ReportDocument;

// Answers the last number of what went wrong: the document's own codes, each in its place, 702 for a line that the file lost, 703 for one
// that the viewer lost; 0 when nothing did. A lost line stops no other.
[[nodiscard]] std::int32_t RenderText(const ReportDocument& document, ReportFile& file, ReportViewer& viewer);

} // namespace ptk
