// What all reports have in common: a document is made, written to a text file in the reports folder and shown in a viewer.
#pragma once

#include "platform/Succeeds.h"
#include "reports/forms/ReportDocument.h"
#include "reports/ReportErrors.h"
#include "reports/ReportViewer.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
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

// What reports are made with. The references outlive them.
struct ReportContext
{
    std::string programFolder; // without a trailing separator
    ptk::Desktop& desktop;
    const ptk::Clock& clock;
    ReportViewerFactory& viewers;
    std::shared_ptr<CTimeRecordFactory> factory; // the one that all time cards share
    const DesktopWindow* window = nullptr;       // in whose name is printed; without one nothing is
};

// Whom and which days a report is asked for; a report looks at what it takes.
struct ReportRequest
{
    std::shared_ptr<CJetDB> database;
    std::shared_ptr<CEmployee> employee;
    std::shared_ptr<CEmployeeList> employees;
    Value from;
    Value to;
};

// Called before each employee with the number of those done and of all; false stops the report there.
using ReportProgress = std::function<bool(std::int32_t done, std::int32_t total)>;

// Every report is written aside; its file takes the place of an earlier one of the same name at the end, for its owner only, or not at all:
// an earlier report stays when lines were lost (702), at 506, 701 and 711, and when making the document raised a failure. What a card could
// not be generated for (605, 710) leaves a gap in a file that is whole.
//
// The members common to all reports; each adds its GenerateReport, which may be called again and then starts afresh. No member raises.
// REQUIRES: held by a std::shared_ptr from its making on, since it hands itself to its viewer.
class Report : public std::enable_shared_from_this<Report>
{
public:
    virtual ~Report();
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    // The class's GenerateReport, with what it takes of the request.
    virtual bool Generate(const ReportRequest& request) = 0;

    // Not owned; nullptr: nobody is told of the closing.
    void ParentWindow(ReportOwner* value) { m_parentWindow = value; }

    [[nodiscard]] std::string ReportName() const { return m_document.title; }

    // 0 = none; the last one when several things failed.
    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }

    // Whose part is missing from a generated report, and why, in words for its readers; empty when that is all there is to say of the
    // number.
    [[nodiscard]] std::string Missing() const { return m_document.Missing(); }

    // What was generated last; only a title before.
    [[nodiscard]] const ReportDocument& Document() const { return m_document; }

    // Whether the file holds what was generated last.
    [[nodiscard]] bool FileWritten() const { return m_fileWritten; }

    // Hands the document's pages to the print spooler. False when it does not take them; that there is no file of it, which is then not
    // whole either, the user is told in a box.
    bool PrintReport();

    // Has the desktop show the document's pages, in a file for its owner only that lives as long as the viewer. False when nothing shows
    // it.
    bool OpenPages();

    // Why the last of these two was refused, in words; empty where that is not known.
    [[nodiscard]] std::string Refusal() const { return m_refusal; }

    // By the clock of the reports.
    [[nodiscard]] DateTime Now() const;

    // Closes the viewer and tells the parent window.
    bool UnloadReportWindow();

    // Of the file, with backslashes.
    [[nodiscard]] std::string ReportPath() const;

    void Progress(ReportProgress value) { m_progress = std::move(value); }

protected:
    Report(ReportKind kind, ReportContext context);

    // The edge of a generation: its steps are an argument check with Refuse, then Open, the making of Body() and Publish. A failure
    // raised among them is 710; what was made until then is still written and shown.
    template <typename Steps>
    bool AtEdge(Steps steps);

    // Always false.
    bool Refuse(std::int32_t errorNumber);

    // Begins the document with its title and a rule, opens its file and its viewer. False when the file (503) or the viewer (701) is
    // missing.
    bool Open(const std::string& titleRest, std::string fileName);

    // Writes and shows the document, puts its file in place and shows the viewer. False when the document lacks something; lines that could
    // not be written or shown leave their number only, deliberately.
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
    std::unique_ptr<PrivateFile> m_opened; // shown by the desktop
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
