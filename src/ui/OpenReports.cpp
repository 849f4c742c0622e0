#include "ui/OpenReports.h"

#include "platform/Desktop.h"
#include "platform/Required.h"
#include "reports/CReportEmployee.h"
#include "reports/CReportPhoneBook.h"
#include "reports/CReportReview.h"
#include "reports/CReportTimeCard.h"
#include "reports/CReportYTDTotals.h"
#include "startup/CController.h"
#include "ui/pages/PageHost.h"

namespace ptk {

OpenReports::OpenReports(PageHost& host, const std::string& programFolder)
    : m_host(host), m_programFolder(programFolder), m_viewers([&host](const std::string& line) { host.Log(line); })
{
}

OpenReports::~OpenReports()
{
    m_viewers.CloseAll();
}

template <typename AnyReport>
std::shared_ptr<AnyReport> OpenReports::Make(std::shared_ptr<AnyReport>& kept)
{
    const auto controller = Required(m_host.Controller());
    m_viewers.ClosePrinted();
    auto report = std::make_shared<AnyReport>(ReportContext{m_programFolder, m_host.Desktop(), m_host.Clock(), m_viewers,
                                                            controller->TimeRecordFactory(), &m_host.AsDesktopWindow()});
    report->ParentWindow(this);
    kept = report;
    return report;
}

std::shared_ptr<CReportTimeCard> OpenReports::NewTimeCardReport()
{
    return Make(m_timeCard);
}

std::shared_ptr<CReportReview> OpenReports::NewReviewReport()
{
    return Make(m_review);
}

std::shared_ptr<CReportYTDTotals> OpenReports::NewYTDTotalsReport()
{
    return Make(m_ytdTotals);
}

std::shared_ptr<CReportEmployee> OpenReports::NewEmployeeReport()
{
    return Make(m_employee);
}

std::shared_ptr<CReportPhoneBook> OpenReports::NewPhoneBookReport()
{
    return Make(m_phoneBook);
}

bool OpenReports::PrintTimeCard(const std::shared_ptr<CTimeCard>& card, std::int32_t& errorNumber)
{
    const auto report = NewTimeCardReport();
    const bool written = report->WriteTimeCardReport(card);
    errorNumber = report->ErrorNumber();
    return written;
}

bool OpenReports::UnloadTimeCardReport()
{
    m_timeCard = nullptr;
    return false;
}

bool OpenReports::UnloadReviewReport()
{
    m_review = nullptr;
    return false;
}

bool OpenReports::UnloadYTDTotalsReport()
{
    m_ytdTotals = nullptr;
    return false;
}

bool OpenReports::UnloadEmployeeReport()
{
    m_employee = nullptr;
    return false;
}

bool OpenReports::UnloadPhoneBookReport()
{
    m_phoneBook = nullptr;
    return false;
}

void OpenReports::Clear(bool exceptReview)
{
    m_timeCard = nullptr;
    m_ytdTotals = nullptr;
    m_employee = nullptr;
    m_phoneBook = nullptr;
    if (!exceptReview) {
        m_review = nullptr;
    }
}

} // namespace ptk
