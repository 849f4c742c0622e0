// What a report knows of the windows above it: the viewer that shows its lines, and the parent window that keeps it while the viewer is
// open.
#pragma once

#include "reports/ReportCatalog.h"

#include <memory>
#include <string>

namespace ptk {

class Report;

// Shows one report. It shares the report through Controller, and the report shares it, so that both live until the viewer is closed:
// Unload must drop the report again.
class ReportViewer
{
public:
    virtual ~ReportViewer() = default;
    virtual void Controller(std::shared_ptr<Report> value) = 0;
    virtual void Caption(const std::string& value) = 0;

    // Appends buffer and CR LF. False, or a failure that it raises, means that the line is lost.
    virtual bool WriteLine(const std::string& buffer) = 0;

    // Shows the window, not modally.
    virtual void Show() = 0;

    virtual void Hide() = 0;

    // Closes the window and drops the report, without calling back into it.
    virtual void Unload() = 0;
};

class ReportViewerFactory
{
public:
    virtual ~ReportViewerFactory() = default;

    // nullptr, or a failure raised, when there is no viewer to be had.
    virtual std::shared_ptr<ReportViewer> CreateViewer(ReportKind kind) = 0;
};

// The parent window of reports.
class ReportOwner
{
public:
    virtual ~ReportOwner() = default;

    // Called once when a viewer of this kind closes; the answer is ignored.
    virtual bool UnloadReport(ReportKind kind) = 0;
};

} // namespace ptk
