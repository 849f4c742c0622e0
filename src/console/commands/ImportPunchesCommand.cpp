#include "console/Account.h"
#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "office/sheet/PunchImport.h"
#include "store/engine/EngineSource.h"
#include "store/whole/DatabaseName.h"

#include <filesystem>

namespace ptk {

namespace {

constexpr auto kNothingStored = "nothing was stored, since lines are refused (--partly stores the others)";
constexpr auto kAllRefused = "nothing was stored, since every line is refused";

PunchAccount Import(const ImportPunchesArguments& arguments, const std::string& programFolder)
{
    const auto database = ConfiguredDatabase(programFolder);
    database->StoredBy(ConsoleAuthor());
    const PunchOrder order{
        {std::filesystem::absolute(arguments.file).string(), arguments.codePage, arguments.words}, arguments.dryRun, arguments.partly};
    try {
        return ImportPunches(database, order);
    } catch (const Failure& failure) {
        if (IsOfDatabase(failure)) {
            throw FileFailure(failure, NativeName(database->DatabaseName()));
        }
        throw Failure(failure.Number(), failure.Source(), arguments.file + ": " + failure.Description(), failure.LastSystemError());
    }
}

} // namespace

int ImportPunchesCommand(const ImportPunchesArguments& arguments, Console& console)
{
    const PunchAccount account = Import(arguments, console.programFolder);
    for (const std::string& line : PunchAccountLines(account)) {
        console.out << TerminalText(line) << '\n';
    }
    if (account.IsRefused(arguments.partly)) {
        throw Failure(0, "PTK", arguments.partly ? kAllRefused : kNothingStored);
    }
    return account.refused.empty() ? status::Done : status::ProblemsFound;
}

} // namespace ptk
