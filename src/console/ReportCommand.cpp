#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ConsoleDesktop.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "console/TerminalViewer.h"
#include "console/Transcript.h"
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "platform/Clock.h"
#include "platform/ProgramFolder.h"
#include "reports/CReportEmployee.h"
#include "reports/CReportPhoneBook.h"
#include "reports/CReportReview.h"
#include "reports/CReportTimeCard.h"
#include "reports/CReportYTDTotals.h"
#include "reports/ReportCatalog.h"

#include <functional>

namespace ptk {

namespace {

// The Reports page without its window.
class ReportWriter
{
public:
    ReportWriter(const ReportArguments& arguments, Console& console);
    int Write();

private:
    void WriteTimeCards();
    void WriteReview();
    void WriteYearToDate();
    void WriteEmployees();
    void WritePhoneBook();

    ReportContext Context();
    std::vector<std::string> Names() const;
    std::shared_ptr<CEmployeeList> Selected() const { return EmployeesByName(*m_session.Employees(), Names()); }
    ReportPeriod Period(ReportDates dates);
    ReportPeriod Offered(ReportDates dates, std::int16_t periodLength) const;

    template <typename AnyReport, typename... Subject>
    void WriteOne(const Subject&... subject);
    template <typename AnyReport>
    void WriteForEach(ReportDates dates);

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

ReportContext ReportWriter::Context()
{
    return {m_console.programFolder, m_desktop, m_console.clock, m_viewers, m_session.Factory()};
}

std::vector<std::string> ReportWriter::Names() const
{
    if (!m_arguments.employees.empty()) {
        return m_arguments.employees;
    }
    std::vector<std::string> names;
    CEmployeeList& all = *m_session.Employees();
    for (std::int32_t i = 1; i <= all.Count(); ++i) {
        const auto employee = all.Item(i);
        if (employee->OfferedOnTimeCards()) {
            names.push_back(employee->DisplayName());
        }
    }
    return names;
}

ReportPeriod ReportWriter::Offered(ReportDates dates, std::int16_t periodLength) const
{
    const DateTime today = m_console.clock.Today();
    return dates == ReportDates::YearToDate ? YearToDate(today) : DefaultPayPeriod(today, periodLength);
}

// As the page does it: a first day that was chosen takes the last day with it, unless that was chosen too. The year to date ends today.
ReportPeriod ReportWriter::Period(ReportDates dates)
{
    const std::int16_t periodLength = m_session.PeriodLength();
    ReportPeriod period = Offered(dates, periodLength);
    if (m_arguments.from) {
        period = {*m_arguments.from, dates == ReportDates::YearToDate ? period.to : PeriodEnd(*m_arguments.from, periodLength)};
    }
    if (m_arguments.to) {
        period.to = *m_arguments.to;
    }
    return period;
}

template <typename AnyReport, typename... Subject>
void ReportWriter::WriteOne(const Subject&... subject)
{
    const auto report = std::make_shared<AnyReport>(Context());
    const bool complete = report->GenerateReport(subject...);
    // A line lost on a full disk leaves the answer true, but a scheduled job must hear of it.
    if (!complete || report->ErrorNumber() != 0) {
        const bool unopened = report->ErrorNumber() == report::NotOpen;
        m_transcript.Complain(ProgramFailure(report->ErrorNumber(), report->ReportName(),
                                             unopened ? NativePath(report->ReportPath()).string() : report->Missing()));
        m_status = status::Failed;
    }
    report->UnloadReportWindow(); // report and viewer hold each other until then
}

template <typename AnyReport>
void ReportWriter::WriteForEach(ReportDates dates)
{
    const ReportPeriod period = Period(dates);
    const auto selected = Selected();
    for (std::int32_t i = 1; i <= selected->Count(); ++i) {
        WriteOne<AnyReport>(m_session.Database(), selected->Item(i), Value(period.from), Value(period.to));
    }
}

void ReportWriter::WriteTimeCards()
{
    WriteForEach<CReportTimeCard>(ReportDates::PayPeriod);
}

void ReportWriter::WriteYearToDate()
{
    WriteForEach<CReportYTDTotals>(ReportDates::YearToDate);
}

void ReportWriter::WriteReview()
{
    const ReportPeriod period = Period(ReportDates::PayPeriod);
    WriteOne<CReportReview>(m_session.Database(), Selected(), Value(period.from), Value(period.to));
}

void ReportWriter::WriteEmployees()
{
    WriteOne<CReportEmployee>(Selected());
}

void ReportWriter::WritePhoneBook()
{
    WriteOne<CReportPhoneBook>(PhoneBookEmployees(*m_session.Employees(), Names()));
}

int ReportWriter::Write()
{
    struct Choice
    {
        const char* name;
        void (ReportWriter::*write)();
    };
    static constexpr Choice kChoices[] = {
        {"timecard", &ReportWriter::WriteTimeCards},  {"review", &ReportWriter::WriteReview},       {"ytd", &ReportWriter::WriteYearToDate},
        {"employees", &ReportWriter::WriteEmployees}, {"phonebook", &ReportWriter::WritePhoneBook},
    };
    for (const Choice& choice : kChoices) {
        if (m_arguments.report == choice.name) {
            (this->*choice.write)();
        }
    }
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
