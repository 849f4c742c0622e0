// What all reports have in common: each makes a document, writes it to a text file in the reports folder and shows it in a viewer.
#pragma once

#include "platform/Succeeds.h"
#include "reports/forms/ReportDocument.h"
#include "reports/ReportErrors.h"
#include "reports/ReportViewer.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace ptk {

class CEmployee;
class CEmployeeList;
class CJetDB;
class Clock;
class CTimeRecordFactory;
class Desktop;
class DesktopWindow;
class PrivateFile;
class ReportFile;

// What reports are made with. REQUIRES: what the references name outlives the reports.
struct ReportContext
{
    std::string programFolder; // without a trailing separator
    ptk::Desktop& desktop;
    const ptk::Clock& clock;
    ReportViewerFactory& viewers;
    std::shared_ptr<CTimeRecordFactory> factory; // the one that all time cards share
    const DesktopWindow* window = nullptr;       // the window that prints; without one nothing is printed
};

// The people and days that a report is asked for; each report uses the fields that it needs.
struct ReportRequest
{
    std::shared_ptr<CJetDB> database;
    std::shared_ptr<CEmployee> employee;
    std::shared_ptr<CEmployeeList> employees;
    Value from;
    Value to;
};

// Called before each employee with the number of employees done and of all; false stops the report there.
using ReportProgress = std::function<bool(std::int32_t done, std::int32_t total)>;

// Every report is written to a draft, which only its owner can read. At the end it replaces an earlier file of the same name, or it is
// given up and the earlier file stays: when lines were lost (702), at 503, 506, 701 and 711, and when the document was cut short or making
// it raised a failure (710). A card that could not be generated (605, 710) only leaves a gap in a file that is whole.
//
// Each report adds its GenerateReport, which may be called again and then starts afresh. No member raises. REQUIRES: a std::shared_ptr
// holds the report from its making on, since it hands itself to its viewer.
class Report : public std::enable_shared_from_this<Report>
{
public:
    virtual ~Report();
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    // Calls the GenerateReport of the report's class with the fields of the request that it needs.
    virtual bool Generate(const ReportRequest& request) = 0;

    // The window that is told when the viewer closes; not owned. nullptr: nobody is told.
    void ParentWindow(ReportOwner* value) { m_parentWindow = value; }

    [[nodiscard]] std::string ReportName() const { return m_document.title; }

    // 0 when nothing failed; the last number when several things failed.
    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }

    // Whose part is missing from a generated report, and why, in words for its readers; empty when nothing is missing or the number alone
    // says it.
    [[nodiscard]] std::string Missing() const { return m_document.Missing(); }

    // The document that was generated last; before that, one with only a title.
    [[nodiscard]] const ReportDocument& Document() const { return m_document; }

    // Whether the file holds what was generated last.
    [[nodiscard]] bool FileWritten() const { return m_fileWritten; }

    // Hands the document's pages to the print spooler; false when it does not take them. Where no file was written, the document is not
    // whole either: nothing is printed, and a box says so.
    bool PrintReport();

    // Has the desktop show the document's pages, in a file that only its owner can read and that is removed with the viewer. False when no
    // program shows it.
    bool OpenPages();

    // Why the last PrintReport or OpenPages was refused, in words; empty where that is not known.
    [[nodiscard]] std::string Refusal() const { return m_refusal; }

    // The moment by the clock of the context.
    [[nodiscard]] DateTime Now() const;

    // Closes the viewer, removes the shown pages and tells the parent window.
    bool UnloadReportWindow();

    // The path of the report's file, with backslashes.
    [[nodiscard]] std::string ReportPath() const;

    void Progress(ReportProgress value) { m_progress = std::move(value); }

protected:
    Report(ReportKind kind, ReportContext context);

    // Runs the steps of a GenerateReport: an argument check with Refuse, then Open, the making of Body() and Publish. A failure raised in
    // them is 710; what was made until then is still shown, but no file of it is kept.
    template <typename Steps>
    bool AtEdge(Steps steps);

    // Sets the number; always false.
    bool Refuse(std::int32_t errorNumber);

    // Begins the document with its title and a rule, opens its file and its viewer. False when the file (503) or the viewer (701) cannot be
    // opened.
    bool Open(const std::string& titleRest, std::string fileName);

    // Writes the document to file and viewer, puts the file in place and shows the viewer. False when something is missing from the
    // document; lines that could not be written or shown deliberately leave only their number.
    bool Publish();

    ReportDocument& Body() { return m_document; }
    [[nodiscard]] const ReportContext& Context() const { return m_context; }
    [[nodiscard]] const ReportEntry& Entry() const { return m_entry; }
    [[nodiscard]] bool GoOn(std::int32_t done, std::int32_t total) const { return !m_progress || m_progress(done, total); }

private:
    bool OpenViewer();
    void Finish(ReportFile& file);
    void Break();

    const ReportEntry& m_entry;
    ReportContext m_context;
    ReportDocument m_document;
    std::unique_ptr<ReportFile> m_file; // between Open and Publish
    bool m_fileWritten = false;
    std::shared_ptr<ReportViewer> m_viewer; // until UnloadReportWindow
    std::int32_t m_errorNumber = 0;
    std::unique_ptr<PrivateFile> m_opened; // the pages that the desktop shows
    std::string m_refusal;
    ReportOwner* m_parentWindow = nullptr;
    ReportProgress m_progress;
};

template <typename Steps>
bool Report::AtEdge(Steps steps)
{
    m_errorNumber = 0;
    m_document.gaps.clear();
    return Succeeds(steps, [this](const Failure&) { Break(); });
}

} // namespace ptk
