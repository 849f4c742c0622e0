// What all reports have in common: a text file in the reports folder, written line by line beside a viewer that shows the same lines.
#pragma once

#include "platform/ErrorNumbers.h"
#include "reports/ReportViewer.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace ptk {

class CFile;
class Clock;
class CTimeRecordFactory;
class Desktop;
class DesktopWindow;
class FileDraft;

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

// Called before each employee with the number of those done and of all; false stops the report there.
using ReportProgress = std::function<bool(std::int32_t done, std::int32_t total)>;

// Every report is written aside; its file takes the place of an earlier one of the same name at the end, for its owner only, or not at all:
// an earlier report stays when lines were lost (702), at 506, 701 and 711, and when the body raised a failure. What a card could not be
// generated for (605, 710) leaves a gap in a file that is whole.
//
// The members common to all reports; each adds its GenerateReport, which may be called again and then starts afresh. No member raises.
// REQUIRES: held by a std::shared_ptr from its making on, since it hands itself to its viewer.
class Report : public std::enable_shared_from_this<Report>
{
public:
    virtual ~Report();
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    void ParentWindow(ReportOwner* value) { m_parentWindow = value; } // not owned; nullptr: nobody is told of the closing
    std::string ReportName() const { return m_reportName; }
    std::int32_t ErrorNumber() const { return m_errorNumber; } // 0 = none; the last one when several things failed

    // Whose part is missing from a generated report, and why, in words for its readers; empty when that is all there is to say of the
    // number.
    virtual std::string Missing() const { return ""; }

    bool FileWritten() const { return m_fileWritten; } // whether the file holds what was generated last
    bool PrintReport();                                // hands that file to the print spooler; tells the user when there is none
    bool UnloadReportWindow();                         // closes the viewer and tells the parent window

    std::string ReportPath() const; // of the file, with backslashes
    void Progress(ReportProgress value) { m_progress = std::move(value); }

protected:
    // What sets one report apart for the common course.
    struct Shape
    {
        ReportKind kind;
        const char* name;              // the title, or what the title starts with
        bool (ReportOwner::*unload)(); // told when the viewer closes
    };

    Report(const Shape& shape, ReportContext context, std::string fileName = "");

    // One generation from the argument checks on: the error number starts at 0, and a failure that nothing below turned into a code is 710.
    bool Generate(const std::function<bool()>& steps);
    void Name(const std::string& titleRest, std::string fileName);

    // Opens the file and the viewer, writes the title, the rule and the body, puts the file in its place and shows the viewer. The answer
    // is the body's; lines that could not be written or shown leave their number only, deliberately. False without a body when the file
    // (503) or the viewer (701) is missing.
    bool Write(const std::function<bool()>& body);
    void WriteLine(const std::string& buffer); // may hold line ends of its own
    void WriteRule();

    bool Fail(std::int32_t errorNumber); // always false
    bool GoOn(std::int32_t done, std::int32_t total);
    const ReportContext& Context() const { return m_context; }

private:
    bool OpenFile();
    bool OpenViewer();
    bool WriteBody(const std::function<bool()>& body);
    bool ShowLine(const std::string& buffer);
    void DropFile();
    void FinishFile();
    void PublishFile();
    bool TellNoFile(); // always false

    Shape m_shape;
    ReportContext m_context;
    std::string m_reportName;
    std::string m_fileName;
    std::unique_ptr<FileDraft> m_draft; // while it is being written
    std::unique_ptr<CFile> m_file;
    bool m_whole = false;
    bool m_fileWritten = false;
    std::shared_ptr<ReportViewer> m_viewer; // until UnloadReportWindow
    std::int32_t m_errorNumber = 0;
    ReportOwner* m_parentWindow = nullptr;
    ReportProgress m_progress;
};

} // namespace ptk
