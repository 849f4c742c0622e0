#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "console/Transcript.h"
#include "model/CEmployeeList.h"
#include "office/profile/Profiles.h"
#include "office/profile/ProfileTable.h"
#include "office/reports/ReportChoice.h"
#include "platform/files/FileDraft.h"
#include "platform/Succeeds.h"
#include "platform/system/Clock.h"
#include "reports/ReportCards.h"
#include "reports/ReportErrors.h"

#include <algorithm>

namespace ptk {

namespace {

// Writes the accountant's table: the people and figures of an accountant's review, with the same complaints.
class TableWriter
{
public:
    TableWriter(const ReportArguments& arguments, Console& console)
        : m_arguments(arguments), m_console(console), m_session(console.programFolder),
          m_profile(RequireProfile(m_session.Database(), arguments.profile.value()))
    {
    }

    int Write()
    {
        const PayTable table = Read();
        m_session.GiveUpDatabase();
        if (!Succeeds([&] { Deliver(table); }, [this](const Failure& reason) { m_transcript.Complain(reason); })) {
            m_status = status::Failed;
        }
        m_transcript.SayAll(m_console);
        return m_status;
    }

private:
    PayTable Read()
    {
        m_session.LoadEmployees();
        CEmployeeList& all = *m_session.Employees();
        m_session.RequireEmployees(m_arguments.employees);
        const PayPeriod days =
            ChosenDays(m_arguments.report.dates, m_console.clock.Today(), m_session.PeriodLength(), m_arguments.from, m_arguments.to);
        std::vector<std::string> doubled;
        PayTableOrder order{m_session.Database(), {}, days, m_console.clock.Now(), NeedsOverview(m_profile)};
        order.people = PeopleOfReview(all, m_arguments.employees.empty() ? OfferedNames(all) : m_arguments.employees, doubled);
        PayTable table = ReadPayTable(order).value();
        if (!table.missing.empty()) {
            m_transcript.Complain(ProgramFailure(report::NotGenerated,
                                                 std::string(m_arguments.report.title) + TitleOfDays(days.from, days.to), table.missing));
            m_status = status::Failed;
        }
        Warn(doubled);
        return table;
    }

    void Warn(const std::vector<std::string>& notices)
    {
        for (const std::string& notice : notices) {
            m_transcript.Complain(Failure(0, "PTK", notice));
            m_status = m_status == status::Done ? status::ProblemsFound : m_status;
        }
    }

    void Deliver(const PayTable& table)
    {
        if (!m_arguments.output && m_console.terminal) {
            return m_transcript.Print(TerminalText(TableText(m_profile, table.people)));
        }
        TableFile file = TableFileOf(m_profile, table.people);
        Warn(TableNotices(file));
        if (!m_arguments.output) {
            return m_transcript.Print(std::move(file.bytes));
        }
        try {
            PutFile(*m_arguments.output, file.bytes);
        } catch (const Failure& reason) {
            throw FileFailure(reason, *m_arguments.output);
        }
        m_transcript.NameFile(*m_arguments.output);
    }

    const ReportArguments& m_arguments;
    Console& m_console;
    Session m_session;
    Profile m_profile;
    Transcript m_transcript;
    int m_status = status::Done;
};

} // namespace

int ReportByProfile(const ReportArguments& arguments, Console& console)
{
    return TableWriter(arguments, console).Write();
}

int ProfilesCommand(const ProfilesArguments& /*arguments*/, Console& console)
{
    const std::vector<KnownProfile> all = ReadProfiles(ConfiguredDatabase(console.programFolder));
    for (const KnownProfile& known : all) {
        console.out << TerminalText(known.name + "  " + DescribeProfile(known)) << '\n';
    }
    const bool readable = std::all_of(all.begin(), all.end(), [](const KnownProfile& known) { return known.profile.has_value(); });
    return readable ? status::Done : status::ProblemsFound;
}

} // namespace ptk
