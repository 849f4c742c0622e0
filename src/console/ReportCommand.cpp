#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ConsoleDesktop.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "console/TerminalViewer.h"
#include "console/Transcript.h"
#include "model/CEmployeeList.h"
#include "office/ReportChoice.h"
#include "office/ReportRunner.h"
#include "platform/Clock.h"
#include "platform/ProgramFolder.h"
#include "reports/Report.h"

namespace ptk {

namespace {

// The Reports page without its window.
class ReportWriter final : private ReportClient
{
public:
    ReportWriter(const ReportArguments& arguments, Console& console);
    int Write();

private:
    ReportOrder Order();
    std::shared_ptr<Report> NewReport(const ReportEntry& entry) override;
    bool GoOn(std::int32_t /*done*/) override { return true; }
    void Say(const std::string& /*outcome*/) override {} // the files are named and the failures told one by one
    void Made(Report& report, bool complete, const std::string& outcome) override;

    const ReportArguments& m_arguments;
    Console& m_console;
    Session m_session;
    ConsoleDesktop m_desktop;
    Transcript m_transcript;
    TerminalViewers m_viewers;
    int m_status = status::Done;
};

ReportWriter::ReportWriter(const ReportArguments& arguments, Console& console)
    : m_arguments(arguments), m_console(console), m_session(console.programFolder), m_desktop(console.err), m_viewers(m_transcript)
{
    m_session.LoadEmployees();
    for (const std::string& name : arguments.employees) {
        if (m_session.Employees()->GetEmployeeByName(name) == nullptr) {
            throw ProgramFailure(report::NoEmployee, name);
        }
    }
}

ReportOrder ReportWriter::Order()
{
    const auto& all = m_session.Employees();
    ReportOrder order{m_arguments.report, m_session.Database(), all,
                      m_arguments.employees.empty() ? OfferedNames(*all) : m_arguments.employees};
    if (order.report.dates != ReportDates::None) {
        const PayPeriod days =
            ChosenDays(order.report.dates, m_console.clock.Today(), m_session.PeriodLength(), m_arguments.from, m_arguments.to);
        order.from = days.from;
        order.to = days.to;
    }
    return order;
}

std::shared_ptr<Report> ReportWriter::NewReport(const ReportEntry& entry)
{
    return entry.make({m_console.programFolder, m_desktop, m_console.clock, m_viewers, m_session.Factory()});
}

void ReportWriter::Made(Report& report, bool complete, const std::string& /*outcome*/)
{
    // A line lost on a full disk leaves the answer true, but a scheduled job must hear of it.
    if (!complete || report.ErrorNumber() != 0) {
        const bool unopened = report.ErrorNumber() == report::NotOpen;
        m_transcript.Complain(ProgramFailure(report.ErrorNumber(), report.ReportName(),
                                             unopened ? NativePath(report.ReportPath()).string() : report.Missing()));
        m_status = status::Failed;
    }
    report.UnloadReportWindow(); // report and viewer hold each other until then
}

int ReportWriter::Write()
{
    RunReports(Order(), *this);
    m_session.GiveUpDatabase();
    m_transcript.SayAll(m_console);
    return m_status;
}

} // namespace

int ReportCommand(const ReportArguments& arguments, Console& console)
{
    return ReportWriter(arguments, console).Write();
}

} // namespace ptk
