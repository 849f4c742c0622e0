// The main window's side of the reports: makes each with a viewer window of its own and keeps the last of each kind until its viewer
// closes.
#pragma once

#include "reports/Report.h"
#include "ui/reports/QtViewerFactory.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace ptk {

class CTimeCard;
class PageHost;

// A new report of a kind replaces the one before here, which lives on with its open viewer. The destructor closes every viewer still open.
class OpenReports final : public ReportOwner
{
public:
    // The host outlives it.
    OpenReports(PageHost& host, const std::string& programFolder);

    ~OpenReports() override;
    OpenReports(const OpenReports&) = delete;
    OpenReports& operator=(const OpenReports&) = delete;

    // Raise Failure 91 before the window has its controller.
    std::shared_ptr<Report> NewReport(const ReportEntry& entry);

    // Writes and shows the form of a generated card. errorNumber: the report's, 0 when nothing went wrong.
    bool PrintTimeCard(const std::shared_ptr<CTimeCard>& card, std::int32_t& errorNumber);

    // Drops its reference and answers false, which nobody looks at.
    bool UnloadReport(ReportKind kind) override;

    // Drops the references; viewers stay open.
    void Clear(bool exceptReview);

    QtViewerFactory& Viewers() { return m_viewers; }

private:
    ReportContext Context();
    void Keep(ReportKind kind, const std::shared_ptr<Report>& report);

    PageHost& m_host;
    std::string m_programFolder;
    QtViewerFactory m_viewers;
    std::map<ReportKind, std::shared_ptr<Report>> m_reports;
};

} // namespace ptk
