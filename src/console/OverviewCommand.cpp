#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"
#include "office/overview/Overview.h"
#include "office/overview/OverviewTexts.h"
#include "platform/system/Clock.h"

namespace ptk {

namespace {

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

} // namespace

int OverviewCommand(const OverviewArguments& arguments, Console& console)
{
    const DateTime made = console.clock.Now();
    // Where the offered period begins does not depend on its length.
    const DateTime from = arguments.from ? *arguments.from : DefaultPayPeriod(DateTime(made.Date()), 0).from;
    if (arguments.to && *arguments.to < from) {
        return RefuseUsage(console.err, "--from is after --to");
    }
    Session session(console.programFolder);
    session.LoadEmployees();
    Overview overview;
    overview.period = {from, arguments.to ? *arguments.to : PayPeriodFrom(from, session.PeriodLength()).to};
    overview.made = made;
    overview.limits = LoadCheckLimits(session.Database());
    ReadOverview(overview, session.Database(), Chosen(*session.Employees(), arguments.employees));
    console.out << TerminalText(Rendered(overview, arguments.format));
    return TotalsOf(overview.rows).problems > 0 ? status::ProblemsFound : status::Done;
}

} // namespace ptk
