// The reports of the main window: gives each a viewer window, and keeps the last one of each kind until its viewer closes.
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

// A new report of a kind takes the place of the former, which lives on with its open viewer. The destructor closes all open viewers.
class OpenReports final : public ReportOwner
{
public:
    // The host outlives it.
    OpenReports(PageHost& host, const std::string& programFolder);

    ~OpenReports() override;
    OpenReports(const OpenReports&) = delete;
    OpenReports& operator=(const OpenReports&) = delete;

    // Makes a report and keeps it. Raises Failure 91 before the window has its controller, as PrintTimeCard does.
    std::shared_ptr<Report> NewReport(const ReportEntry& entry);

    // Writes and shows the report of a generated card. errorNumber: that of the report, 0 when nothing went wrong.
    bool PrintTimeCard(const std::shared_ptr<CTimeCard>& card, std::int32_t& errorNumber);

    // Forgets the report of this kind. The answer is always false, and nobody looks at it.
    bool UnloadReport(ReportKind kind) override;

    // Forgets all reports, or all but the review; viewers stay open.
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
