#include "console/TerminalViewer.h"

#include "console/Console.h"
#include "console/Transcript.h"
#include "platform/files/ProgramFolder.h"
#include "reports/Report.h"

namespace ptk {

class TerminalViewer final : public ReportViewer
{
public:
    explicit TerminalViewer(TerminalViewers& viewers) : m_viewers(viewers) {}

    void Controller(std::shared_ptr<Report> value) override { m_report = std::move(value); }
    void Caption(const std::string&) override {} // the text starts with the same words
    bool WriteLine(const std::string& buffer) override
    {
        m_text += buffer + "\r\n";
        return true;
    }
    void Show() override { m_viewers.Show(*m_report, m_text); }
    void Hide() override {}
    void Unload() override { m_report.reset(); }

private:
    TerminalViewers& m_viewers;
    std::shared_ptr<Report> m_report;
    std::string m_text;
};

std::shared_ptr<ReportViewer> TerminalViewers::CreateViewer(ReportKind)
{
    return std::make_shared<TerminalViewer>(*this);
}

void TerminalViewers::Show(const Report& report, const std::string& text)
{
    if (m_keeps) {
        m_kept.push_back(report.Document());
    } else {
        m_transcript.Print((m_printed ? "\n" : "") + TerminalText(text));
        m_printed = true;
    }
    if (report.FileWritten()) {
        m_transcript.NameFile(NativePath(report.ReportPath()).string());
    }
}

} // namespace ptk
