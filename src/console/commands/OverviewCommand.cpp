#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Output.h"
#include "console/Session.h"
#include "model/CEmployeeList.h"
#include "model/ModelErrors.h"
#include "model/payday/ClosingReader.h"
#include "office/overview/Overview.h"
#include "office/overview/OverviewTexts.h"
#include "platform/system/Clock.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr auto kNoRemedies = "--remedies needs another format than csv";

Employees Chosen(CEmployeeList& all, const std::vector<std::string>& names)
{
    if (names.empty()) {
        return OfferedEmployees(all);
    }
    Employees chosen;
    for (const std::string& name : names) {
        chosen.push_back(all.GetEmployeeByName(name));
        if (chosen.back() == nullptr) {
            throw ProgramFailure(timecard::NoEmployee, name);
        }
    }
    return chosen;
}

std::string Rendered(const Overview& overview, const std::string& format)
{
    if (format == "json") {
        return OverviewJson(overview);
    }
    return format == "csv" ? OverviewCsv(overview) : OverviewText(overview);
}

// Where nothing was closed, the first day that is offered does not depend on the period's length: with --to, the length is not read.
PayPeriod ChosenPeriod(const OverviewArguments& arguments, Session& session, DateTime today)
{
    if (arguments.from) {
        return {*arguments.from, arguments.to ? *arguments.to : PayPeriodFrom(*arguments.from, session.PeriodLength()).to};
    }
    const auto next = PeriodToClose(session.Database());
    const PayPeriod offered = next ? *next : DefaultPayPeriod(today, arguments.to ? std::int16_t{0} : session.PeriodLength());
    return {offered.from, arguments.to ? *arguments.to : offered.to};
}

bool HasProblems(const Overview& overview)
{
    return TotalsOf(overview.rows).problems > 0 ||
           std::any_of(overview.leftOut.begin(), overview.leftOut.end(), [](const LeftOut& out) { return out.IsOwed(); });
}

void Read(Overview& overview, const OverviewArguments& arguments, Session& session)
{
    session.LoadEmployees();
    const Employees chosen = Chosen(*session.Employees(), arguments.employees);
    ReadOverview(overview, session.Database(), chosen);
    if (arguments.employees.empty()) {
        ReadLeftOut(overview, session.Database(), *session.Employees(), chosen);
    }
    if (arguments.all) {
        TakeInLeftOut(overview, *session.Employees());
    }
}

} // namespace

int OverviewCommand(const OverviewArguments& arguments, Console& console)
{
    if (arguments.remedies && arguments.format == "csv") {
        return RefuseUsage(console.err, kNoRemedies);
    }
    if (arguments.from && arguments.to && *arguments.to < *arguments.from) {
        return RefuseUsage(console.err, kFromAfterTo);
    }
    Session session(console.programFolder);
    Overview overview;
    overview.made = console.clock.Now();
    overview.period = ChosenPeriod(arguments, session, DateTime(overview.made.Date()));
    if (overview.period.to < overview.period.from) {
        return RefuseUsage(console.err, kFromAfterTo);
    }
    overview.limits = LoadCheckLimits(session.Database());
    overview.withRemedies = arguments.remedies;
    if (overview.withRemedies) {
        overview.autoShiftEnd = session.AutoShiftEndOfDay();
    }
    Read(overview, arguments, session);
    console.out << TerminalText(Rendered(overview, arguments.format));
    return HasProblems(overview) ? status::ProblemsFound : status::Done;
}

} // namespace ptk
