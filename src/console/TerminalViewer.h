// The console's report viewers: a shown report is printed or kept, and the file to which it was written, if any, is named.
#pragma once

#include "reports/forms/ReportDocument.h"
#include "reports/ReportViewer.h"

#include <string>
#include <vector>

namespace ptk {

class Transcript;

class TerminalViewers final : public ReportViewerFactory
{
public:
    // Prints reports to the output, with an empty line between them, and their files' paths to the error output. REQUIRES: the transcript
    // outlives the viewers.
    explicit TerminalViewers(Transcript& transcript) : m_transcript(transcript) {}

    // Keeps the reports instead of printing them.
    void KeepReports() { m_keeps = true; }

    // The kept reports, in the order in which they were shown.
    [[nodiscard]] const std::vector<ReportDocument>& Kept() const { return m_kept; }

    std::shared_ptr<ReportViewer> CreateViewer(ReportKind kind) override;

    void Show(const Report& report, const std::string& text);

private:
    Transcript& m_transcript;
    bool m_printed = false;
    bool m_keeps = false;
    std::vector<ReportDocument> m_kept;
};

} // namespace ptk
