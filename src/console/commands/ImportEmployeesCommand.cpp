#include "console/Account.h"
#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "office/sheet/EmployeeImport.h"
#include "store/engine/EngineSource.h"
#include "store/whole/DatabaseName.h"

#include <algorithm>
#include <filesystem>

namespace ptk {

namespace {

constexpr auto kLinesRefused = "nothing was stored, since lines are refused";

EmployeeAccount ImportFile(const ImportEmployeesArguments& arguments, const std::string& programFolder)
{
    const auto database = ConfiguredDatabase(programFolder);
    database->StoredBy(ConsoleAuthor());
    const auto takes = [&](const EmployeeDifference& difference) {
        return std::find(arguments.change.begin(), arguments.change.end(), difference.field) != arguments.change.end();
    };
    try {
        return ImportEmployees(database, {std::filesystem::absolute(arguments.file).string(), arguments.dryRun, arguments.change, takes});
    } catch (const Failure& failure) {
        if (IsOfDatabase(failure)) {
            throw FileFailure(failure, NativeName(database->DatabaseName()));
        }
        throw Failure(failure.Number(), failure.Source(), arguments.file + ": " + failure.Description(), failure.LastSystemError());
    }
}

} // namespace

int ImportEmployeesCommand(const ImportEmployeesArguments& arguments, Console& console)
{
    const EmployeeAccount account = ImportFile(arguments, console.programFolder);
    for (const std::string& line : EmployeeAccountLines(account)) {
        console.out << TerminalText(line) << '\n';
    }
    if (account.IsRefused()) {
        throw Failure(0, "PTK", kLinesRefused);
    }
    return status::Done;
}

} // namespace ptk
