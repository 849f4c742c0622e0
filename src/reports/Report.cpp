#include "reports/Report.h"

#include "platform/Desktop.h"
#include "shell/CDocLauncher.h"
#include "shell/CFile.h"

#include <utility>

namespace ptk {

namespace {

constexpr const char* kPrintText = "The path to the report is invalid or not able to be opened by Windows.";

const std::string kRule(72, '-');

} // namespace

Report::Report(const Shape& shape, ReportContext context, std::string fileName)
    : m_shape(shape), m_context(std::move(context)), m_reportName(shape.name), m_fileName(std::move(fileName))
{
}

Report::~Report() = default;

std::string Report::ReportPath() const
{
    return m_context.programFolder + "\\reports\\" + m_fileName;
}

bool Report::Generate(const std::function<bool()>& steps)
{
    m_errorNumber = 0;
    try {
        return steps();
    } catch (...) {
        return Fail(report::NotGenerated);
    }
}

bool Report::Fail(std::int32_t errorNumber)
{
    m_errorNumber = errorNumber;
    return false;
}

void Report::Name(const std::string& titleRest, std::string fileName)
{
    m_reportName = m_shape.name + titleRest;
    m_fileName = std::move(fileName);
}

bool Report::Write(const std::function<bool()>& body)
{
    if (!OpenFile()) {
        return Fail(report::FileNotOpened);
    }
    if (!OpenViewer()) {
        CloseFile();
        return Fail(report::NoViewer);
    }
    const bool complete = WriteBody(body);
    CloseFile();
    m_viewer->Show();
    return complete;
}

bool Report::OpenFile()
{
    m_file = std::make_unique<CFile>(m_context.clock);
    return m_file->OpenFile(ReportPath(), std::int16_t{1});
}

bool Report::OpenViewer()
{
    if (const auto previous = std::exchange(m_viewer, nullptr)) {
        previous->Unload();
    }
    try {
        m_viewer = m_context.viewers.CreateViewer(m_shape.kind);
    } catch (...) {
        return false;
    }
    if (m_viewer == nullptr) {
        return false;
    }
    m_viewer->Controller(shared_from_this());
    m_viewer->Caption(m_reportName);
    return true;
}

// Whatever happens in the body, the file is closed and what was written so far is shown.
bool Report::WriteBody(const std::function<bool()>& body)
{
    try {
        WriteLine(m_reportName);
        WriteRule();
        return body();
    } catch (...) {
        return Fail(report::NotGenerated);
    }
}

void Report::WriteLine(const std::string& buffer)
{
    if (m_file->FileOpen() && !m_file->WriteLine(buffer)) {
        m_errorNumber = report::LineNotWritten;
    }
    if (!ShowLine(buffer)) {
        m_errorNumber = report::LineNotShown;
    }
}

bool Report::ShowLine(const std::string& buffer)
{
    try {
        return m_viewer->WriteLine(buffer);
    } catch (...) {
        return false;
    }
}

void Report::WriteRule()
{
    WriteLine(kRule);
}

void Report::CloseFile()
{
    if (!m_file->CloseFile()) {
        m_errorNumber = report::FileNotClosed;
    }
}

bool Report::GoOn(std::int32_t done, std::int32_t total)
{
    if (!m_progress || m_progress(done, total)) {
        return true;
    }
    WriteLine("Cancelled after " + std::to_string(done) + " of " + std::to_string(total) + " employees.");
    return Fail(report::Cancelled);
}

bool Report::PrintReport()
{
    try {
        CDocLauncher launcher(m_context.desktop);
        if (launcher.PrintDocument(m_context.window, ReportPath())) {
            return true;
        }
        if (launcher.ErrorNumber() == docerror::DocumentNotFound) {
            m_context.desktop.Show(kPrintText, docerror::NotOpenedTitle, Icon::Exclamation);
        }
        return false;
    } catch (...) {
        return false;
    }
}

bool Report::UnloadReportWindow()
{
    const auto self = shared_from_this(); // the viewer and the parent window may hold the last references
    try {
        if (const auto viewer = std::exchange(m_viewer, nullptr)) {
            viewer->Unload();
        }
        if (m_parentWindow != nullptr) {
            (m_parentWindow->*m_shape.unload)();
        }
        return true;
    } catch (...) {
        return false;
    }
}

} // namespace ptk
