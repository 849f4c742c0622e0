#include "reports/Report.h"

#include "platform/Desktop.h"
#include "platform/FileDraft.h"
#include "platform/Notice.h"
#include "platform/ProgramFolder.h"
#include "platform/Succeeds.h"
#include "shell/CDocLauncher.h"
#include "shell/CFile.h"

#include <utility>

namespace ptk {

namespace {

constexpr std::int16_t kWriteMode = 1;
constexpr Notice kNoFile{kNotOpenedTitle, "The path to the report is invalid or not able to be opened by Windows.", Icon::Exclamation};

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
        DropFile();
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
        DropFile();
        return Fail(report::NotOpen);
    }
    if (!OpenViewer()) {
        DropFile();
        return Fail(report::NoViewer);
    }
    const bool complete = WriteBody(body);
    FinishFile();
    m_viewer->Show();
    return complete;
}

bool Report::OpenFile()
{
    m_fileWritten = false;
    m_whole = true;
    m_file = std::make_unique<CFile>(m_context.clock);
    return Succeeds([&] {
        m_draft = std::make_unique<FileDraft>(NativePath(ReportPath()).string());
        return m_file->OpenFile(m_draft->Path(), kWriteMode);
    });
}

void Report::DropFile()
{
    m_file.reset();
    m_draft.reset();
}

// A report that is cut short, or that a full disk cut, does not take the place of a whole one.
void Report::FinishFile()
{
    if (!m_file->CloseFile()) {
        m_errorNumber = report::NotClosed;
    } else if (m_whole) {
        PublishFile();
    }
    m_draft.reset();
}

void Report::PublishFile()
{
    try {
        m_draft->Replace();
        m_fileWritten = true;
    } catch (...) {
        m_errorNumber = report::NotClosed;
    }
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

// Whatever happens in the body, what was written so far is shown.
bool Report::WriteBody(const std::function<bool()>& body)
{
    try {
        WriteLine(m_reportName);
        WriteRule();
        return body();
    } catch (...) {
        m_whole = false;
        return Fail(report::NotGenerated);
    }
}

void Report::WriteLine(const std::string& buffer)
{
    if (m_file->FileOpen() && !m_file->WriteLine(buffer)) {
        m_whole = false;
        m_errorNumber = report::LineNotWritten;
    }
    if (!ShowLine(buffer)) {
        m_errorNumber = report::LineNotShown;
    }
}

bool Report::ShowLine(const std::string& buffer)
{
    return Succeeds([&] { return m_viewer->WriteLine(buffer); });
}

void Report::WriteRule()
{
    WriteLine(kRule);
}

bool Report::GoOn(std::int32_t done, std::int32_t total)
{
    if (!m_progress || m_progress(done, total)) {
        return true;
    }
    WriteLine("Cancelled after " + std::to_string(done) + " of " + std::to_string(total) + " employees.");
    m_whole = false;
    return Fail(report::Cancelled);
}

bool Report::PrintReport()
{
    return Succeeds([&] {
        if (!m_fileWritten) {
            return TellNoFile(); // a file of that name is an earlier report's
        }
        CDocLauncher launcher(m_context.desktop);
        return launcher.PrintDocument(m_context.window, ReportPath()) ||
               (launcher.ErrorNumber() == docerror::DocumentNotFound && TellNoFile());
    });
}

bool Report::TellNoFile()
{
    Tell(m_context.desktop, kNoFile);
    return false;
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
