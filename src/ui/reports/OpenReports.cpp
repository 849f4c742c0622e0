#include "ui/reports/OpenReports.h"

#include "platform/Required.h"
#include "platform/system/Desktop.h"
#include "reports/CReportTimeCard.h"
#include "startup/CController.h"
#include "ui/page/PageHost.h"

namespace ptk {

OpenReports::OpenReports(PageHost& host, const std::string& programFolder)
    : m_host(host), m_programFolder(programFolder), m_viewers([&host](const std::string& line) { host.Log(line); })
{
}

OpenReports::~OpenReports()
{
    m_viewers.CloseAll();
}

ReportContext OpenReports::Context()
{
    return {m_programFolder,          m_host.Desktop(), m_host.Clock(), m_viewers, Required(m_host.Controller())->TimeRecordFactory(),
            &m_host.AsDesktopWindow()};
}

std::shared_ptr<Report> OpenReports::NewReport(const ReportEntry& entry)
{
    auto report = entry.make(Context());
    Keep(entry.kind, report);
    return report;
}

void OpenReports::Keep(ReportKind kind, const std::shared_ptr<Report>& report)
{
    m_viewers.ClosePrinted();
    report->ParentWindow(this);
    m_reports[kind] = report;
}

bool OpenReports::PrintTimeCard(const std::shared_ptr<CTimeCard>& card, std::int32_t& errorNumber)
{
    const auto report = std::make_shared<CReportTimeCard>(Context());
    Keep(ReportKind::TimeCard, report);
    const bool written = report->WriteTimeCardReport(card);
    errorNumber = report->ErrorNumber();
    return written;
}

bool OpenReports::UnloadReport(ReportKind kind)
{
    m_reports.erase(kind);
    return false;
}

void OpenReports::Clear(bool exceptReview)
{
    std::erase_if(m_reports, [&](const auto& kept) { return !exceptReview || kept.first != ReportKind::Review; });
}

} // namespace ptk
