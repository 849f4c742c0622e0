// The console's report viewers: a shown report is printed, and the file that it was written to, if any, is named beside it.
#pragma once

#include "reports/ReportViewer.h"

#include <string>

namespace ptk {

class Transcript;

class TerminalViewers final : public ReportViewerFactory
{
public:
    // Reports go to the output, one empty line between them, the files' paths to the error output. The transcript outlives the viewers.
    explicit TerminalViewers(Transcript& transcript) : m_transcript(transcript) {}

    std::shared_ptr<ReportViewer> CreateViewer(ReportKind kind) override;

    void Print(const std::string& text);
    void NameFile(const std::string& path);

private:
    Transcript& m_transcript;
    bool m_printed = false;
};

} // namespace ptk
