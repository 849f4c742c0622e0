// The main window's side of the reports: makes each with a viewer window of its own and keeps the last of each kind until its viewer
// closes.
#pragma once

#include "reports/Report.h"
#include "ui/dialogs/FReportViewers.h"

#include <cstdint>
#include <memory>
#include <string>

namespace ptk {

class CReportEmployee;
class CReportPhoneBook;
class CReportReview;
class CReportTimeCard;
class CReportYTDTotals;
class CTimeCard;
class PageHost;

// A new report of a kind replaces the one before here, which lives on with its open viewer. The destructor closes every viewer still open.
class OpenReports final : public ReportOwner
{
public:
    OpenReports(PageHost& host, const std::string& programFolder); // the host outlives it
    ~OpenReports() override;
    OpenReports(const OpenReports&) = delete;
    OpenReports& operator=(const OpenReports&) = delete;

    // Raise Failure 91 before the window has its controller.
    std::shared_ptr<CReportTimeCard> NewTimeCardReport();
    std::shared_ptr<CReportReview> NewReviewReport();
    std::shared_ptr<CReportYTDTotals> NewYTDTotalsReport();
    std::shared_ptr<CReportEmployee> NewEmployeeReport();
    std::shared_ptr<CReportPhoneBook> NewPhoneBookReport();

    // Writes and shows the form of a generated card. errorNumber: the report's, 0 when nothing went wrong.
    bool PrintTimeCard(const std::shared_ptr<CTimeCard>& card, std::int32_t& errorNumber);

    // Each drops its reference and answers false, which nobody looks at.
    bool UnloadTimeCardReport() override;
    bool UnloadReviewReport() override;
    bool UnloadYTDTotalsReport() override;
    bool UnloadEmployeeReport() override;
    bool UnloadPhoneBookReport() override;

    void Clear(bool exceptReview); // drops the references; viewers stay open
    QtViewerFactory& Viewers() { return m_viewers; }

private:
    template <typename AnyReport>
    std::shared_ptr<AnyReport> Make(std::shared_ptr<AnyReport>& kept);

    PageHost& m_host;
    std::string m_programFolder;
    QtViewerFactory m_viewers;
    std::shared_ptr<CReportTimeCard> m_timeCard;
    std::shared_ptr<CReportReview> m_review;
    std::shared_ptr<CReportYTDTotals> m_ytdTotals;
    std::shared_ptr<CReportEmployee> m_employee;
    std::shared_ptr<CReportPhoneBook> m_phoneBook;
};

} // namespace ptk
