#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ConsoleDesktop.h"
#include "console/ErrorText.h"
#include "console/Output.h"
#include "console/Session.h"
#include "console/TerminalViewer.h"
#include "console/Transcript.h"
#include "model/CEmployeeList.h"
#include "office/reports/ReportChoice.h"
#include "office/reports/ReportRunner.h"
#include "platform/files/ProgramFolder.h"
#include "platform/Succeeds.h"
#include "platform/system/Clock.h"
#include "reports/forms/ReportForms.h"
#include "reports/Report.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr auto kNothingToWrite = "nobody is offered reports: there is no page to write";

// Makes the chosen reports, as the Reports page does, without a window.
class ReportWriter final : private ReportClient
{
public:
    ReportWriter(const ReportArguments& arguments, Console& console);
    int Write();

private:
    ReportOrder Order();
    std::shared_ptr<Report> NewReport(const ReportEntry& entry) override;
    bool GoOn(std::int32_t /*done*/) override { return true; }
    void Say(const std::string& /*outcome*/) override {} // files and failures are told one by one
    void Made(Report& report, bool complete, const std::string& outcome) override;
    void Replaced(const std::string& sentence) override;
    void Deliver();
    void Print(std::string text);

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
    if (arguments.form != ReportForm::Text || arguments.output) {
        m_viewers.KeepReports();
    }
    m_session.LoadEmployees();
    m_session.RequireEmployees(arguments.employees);
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
    // A report is complete even when lines of its file were lost on a full disk, but a scheduled job must hear of it.
    if (!complete || report.ErrorNumber() != 0) {
        const bool unopened = report.ErrorNumber() == report::NotOpen;
        m_transcript.Complain(ProgramFailure(report.ErrorNumber(), report.ReportName(),
                                             unopened ? NativePath(report.ReportPath()).string() : report.Missing()));
        m_status = status::Failed;
    }
    report.UnloadReportWindow(); // report and viewer hold each other until then
}

// Two reports had the same file name: only one is in the reports folder, although both are printed.
void ReportWriter::Replaced(const std::string& sentence)
{
    m_transcript.Complain(Failure(0, "PTK", sentence));
    m_status = m_status == status::Done ? status::ProblemsFound : m_status;
}

int ReportWriter::Write()
{
    RunReports(Order(), *this);
    m_session.GiveUpDatabase();
    if (!Succeeds([this] { Deliver(); }, [this](const Failure& reason) { m_transcript.Complain(reason); })) {
        m_status = status::Failed;
    }
    m_transcript.SayAll(m_console);
    return m_status;
}

// Prints or stores the reports that were kept. As in the reports folder, an incomplete report does not replace an earlier one.
void ReportWriter::Deliver()
{
    const std::vector<ReportDocument>& reports = m_viewers.Kept();
    const bool keeps = m_arguments.form != ReportForm::Text || m_arguments.output;
    if (!keeps || (reports.empty() && m_status == status::Failed)) {
        return;
    }
    if (reports.empty() && m_arguments.form == ReportForm::Pdf) {
        throw Failure(0, "PTK", kNothingToWrite);
    }
    std::string bytes = FileOf(m_arguments.form, reports, m_console.clock.Now());
    if (!m_arguments.output) {
        Print(std::move(bytes));
    } else if (std::all_of(reports.begin(), reports.end(), [](const ReportDocument& report) { return report.whole; })) {
        WriteOutput(*m_arguments.output, bytes);
        m_transcript.NameFile(*m_arguments.output);
    }
}

void ReportWriter::Print(std::string text)
{
    if (m_console.terminal) {
        text = TerminalText(text.starts_with(kByteOrderMark) ? text.substr(kByteOrderMark.size()) : text);
    }
    m_transcript.Print(std::move(text));
}

} // namespace

int ReportCommand(const ReportArguments& arguments, Console& console)
{
    if (const char* const wrong = WrongOutput(arguments.form, arguments.output, console)) {
        return RefuseUsage(console.err, wrong);
    }
    return arguments.profile ? ReportByProfile(arguments, console) : ReportWriter(arguments, console).Write();
}

} // namespace ptk
