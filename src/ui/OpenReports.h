// The main window's side of the reports: makes each with a viewer window of its own and keeps the last of each kind until its viewer closes.
#pragma once

#include "reports/Report.h"
#include "ui/ReportViewerWindow.h"

#include <cstdint>
#include <memory>
#include <string>

namespace ptk {

class CReportEmployee;
class CReportPhoneBook;
class CReportReview;
class CReportTimeCard;
class CReportYTDTotals;
class PageHost;

// Reports of a kind replace each other here; a replaced one lives on with its open viewer. The destructor closes every viewer still open.
class OpenReports final : public ReportOwner
{
public:
    OpenReports(PageHost& host, std::string programFolder);
    ~OpenReports() override;

    std::shared_ptr<CReportTimeCard> NewTimeCardReport();
    std::shared_ptr<CReportReview> NewReviewReport();
    std::shared_ptr<CReportYTDTotals> NewYTDTotalsReport();
    std::shared_ptr<CReportEmployee> NewEmployeeReport();
    std::shared_ptr<CReportPhoneBook> NewPhoneBookReport();

    // Writes and shows the report of a generated card. False with the report's error number, else errorNumber is left alone.
    bool PrintTimeCard(const std::shared_ptr<CTimeCard>& card, std::int32_t& errorNumber);

    // Each drops its reference and answers false, which nobody looks at.
    bool UnloadTimeCardReport() override;
    bool UnloadReviewReport() override;
    bool UnloadYTDTotalsReport() override;
    bool UnloadEmployeeReport() override;
    bool UnloadPhoneBookReport() override;

    void Clear(bool exceptReview); // the references only; open viewers stay

private:
    ReportContext Context();

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
