// The console's report viewers: a shown report is printed, and the file that it was written to, if any, is named beside it.
#pragma once

#include "reports/ReportViewer.h"

#include <iosfwd>

namespace ptk {

class TerminalViewers final : public ReportViewerFactory
{
public:
    // Reports go to `out`, one empty line between them, the files' paths to `err`; both outlive the viewers.
    TerminalViewers(std::ostream& out, std::ostream& err) : m_out(out), m_err(err) {}

    std::shared_ptr<ReportViewer> CreateViewer(ReportKind kind) override;

    void Print(const std::string& text);
    void NameFile(const std::string& path);

private:
    std::ostream& m_out;
    std::ostream& m_err;
    bool m_printed = false;
};

} // namespace ptk
