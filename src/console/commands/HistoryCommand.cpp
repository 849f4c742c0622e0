#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Output.h"
#include "console/Session.h"
#include "model/ModelErrors.h"
#include "office/history/History.h"
#include "store/whole/DatabaseName.h"

namespace ptk {

namespace {

ReportForm FormOf(const std::string& format)
{
    if (format == "json") {
        return ReportForm::Json;
    }
    return format == "csv" ? ReportForm::Csv : ReportForm::Text;
}

// The history as text. The database is let go when this returns, before output is written, since its reader may be slow.
std::string Read(const HistoryArguments& arguments, TrailQuery query, const std::string& programFolder)
{
    const auto database = ConfiguredDatabase(programFolder);
    const CJetDB::Hold hold(database);
    if (!database->OpenDB()) {
        throw FileFailure(database->LastFailure(), NativeName(database->DatabaseName()));
    }
    if (arguments.employee) {
        query.employee = FindInHistory(database, *arguments.employee);
        if (!query.employee) {
            throw ProgramFailure(timecard::NoEmployee, *arguments.employee);
        }
    }
    return HistoryIn(FormOf(arguments.format), database, query);
}

} // namespace

int HistoryCommand(const HistoryArguments& arguments, Console& console)
{
    if (arguments.from && arguments.to && *arguments.to < *arguments.from) {
        return RefuseUsage(console.err, kFromAfterTo);
    }
    TrailQuery query;
    query.from = arguments.from;
    query.to = arguments.to;
    console.out << TerminalText(Read(arguments, query, console.programFolder));
    return status::Done;
}

} // namespace ptk
