#include "reports/Report.h"

#include "platform/files/PrivateFile.h"
#include "platform/system/Clock.h"
#include "reports/ReportFile.h"
#include "reports/ReportPrinter.h"
#include "reports/TextRenderer.h"

#include <utility>

namespace ptk {

Report::Report(ReportKind kind, ReportContext context)
    : m_entry(EntryOf(kind)), m_context(std::move(context)), m_document{std::string(m_entry.title)}
{
}

Report::~Report() = default;

std::string Report::ReportPath() const
{
    return m_context.programFolder + "\\reports\\" + m_document.fileName;
}

bool Report::Refuse(std::int32_t errorNumber)
{
    m_errorNumber = errorNumber;
    return false;
}

bool Report::Open(const std::string& titleRest, std::string fileName)
{
    m_document = {std::string(m_entry.title) + titleRest, std::move(fileName)};
    m_document.BeginGroup();
    m_document.Add(m_document.title);
    m_document.AddRule();
    m_fileWritten = false;
    auto file = std::make_unique<ReportFile>(m_context.clock);
    if (!file->Open(ReportPath())) {
        return Refuse(report::NotOpen);
    }
    if (!OpenViewer()) {
        return Refuse(report::NoViewer);
    }
    m_file = std::move(file);
    return true;
}

bool Report::OpenViewer()
{
    if (const auto previous = std::exchange(m_viewer, nullptr)) {
        previous->Unload();
    }
    const bool made = Succeeds([this] {
        m_viewer = m_context.viewers.CreateViewer(m_entry.kind);
        return m_viewer != nullptr;
    });
    if (made) {
        m_viewer->Controller(shared_from_this());
        m_viewer->Caption(m_document.title);
    }
    return made;
}

bool Report::Publish()
{
    m_errorNumber = RenderText(m_document, *m_file, *m_viewer);
    Finish(*std::exchange(m_file, nullptr));
    m_viewer->Show();
    return m_document.Code() == 0;
}

// The file of a report that was cut short, or of which lines were lost, does not replace a whole one.
void Report::Finish(ReportFile& file)
{
    if (!file.Close()) {
        m_errorNumber = report::NotClosed;
    } else if (!file.Lost() && m_document.whole) {
        m_fileWritten = file.Publish();
        m_errorNumber = m_fileWritten ? m_errorNumber : report::NotClosed;
    }
}

void Report::Break()
{
    const auto publish = [this] {
        m_document.CutShort(report::NotGenerated);
        Publish();
    };
    if (m_file == nullptr || !Succeeds(publish)) {
        m_errorNumber = report::NotGenerated;
    }
}

bool Report::PrintReport()
{
    m_refusal.clear();
    if (!m_fileWritten) {
        // If there is a file of that name, it is an earlier report's.
        return Succeeds([this] {
            TellNoFile(m_context.desktop);
            return false;
        });
    }
    return PrintPages(m_context.desktop, m_context.window, m_document, Now(), m_refusal);
}

bool Report::OpenPages()
{
    auto opened = ptk::OpenPages(m_context.desktop, m_context.window, m_document, Now(), m_refusal);
    const bool shown = opened != nullptr;
    m_opened = shown ? std::move(opened) : std::move(m_opened);
    return shown;
}

DateTime Report::Now() const
{
    return m_context.clock.Now();
}

bool Report::UnloadReportWindow()
{
    const auto self = shared_from_this(); // the viewer and the parent window may hold the last references
    return Succeeds([this] {
        m_opened.reset();
        if (const auto viewer = std::exchange(m_viewer, nullptr)) {
            viewer->Unload();
        }
        if (m_parentWindow != nullptr) {
            m_parentWindow->UnloadReport(m_entry.kind);
        }
    });
}

} // namespace ptk
