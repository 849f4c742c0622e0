#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "office/History.h"
#include "platform/ErrorNumbers.h"

namespace ptk {

namespace {

HistoryForm FormOf(const std::string& format)
{
    if (format == "json") {
        return HistoryForm::Json;
    }
    return format == "csv" ? HistoryForm::Csv : HistoryForm::Text;
}

} // namespace

int HistoryCommand(const HistoryArguments& arguments, Console& console)
{
    if (arguments.from && arguments.to && *arguments.to < *arguments.from) {
        return RefuseUsage(console.err, "--from is after --to");
    }
    Session session(console.programFolder);
    TrailQuery query;
    query.from = arguments.from;
    query.to = arguments.to;
    if (arguments.employee) {
        query.employee = FindInHistory(session.Database(), *session.Employees(), *arguments.employee);
        if (!query.employee) {
            throw ProgramFailure(timecard::NoEmployee, *arguments.employee);
        }
    }
    const std::string history = HistoryIn(FormOf(arguments.format), session.Database(), *session.Employees(), query);
    session.GiveUpDatabase();
    console.out << TerminalText(history);
    return status::Done;
}

} // namespace ptk
