#include "console/Account.h"
#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "office/import/Import.h"
#include "platform/system/Clock.h"
#include "store/engine/EngineSource.h"

#include <filesystem>

namespace ptk {

namespace {

constexpr const char* kAccept = " (--accept-damaged)";

ImportOutcome Import(const ImportOrder& order)
{
    try {
        return ImportOldDatabase(order);
    } catch (const Failure& failure) {
        throw IsOfDatabase(failure) ? FileFailure(failure, order.database) : failure;
    }
}

} // namespace

int ImportCommand(const ImportArguments& arguments, Console& console)
{
    ImportOrder order;
    order.file = std::filesystem::absolute(arguments.file).string();
    order.database = ConfiguredName(console.programFolder);
    order.programFolder = console.programFolder;
    order.codePage = arguments.codePage;
    order.trial = arguments.dryRun;
    order.acceptDamaged = arguments.acceptDamaged;
    order.now = console.clock.Now();
    order.author = ConsoleAuthor();
    const ImportOutcome outcome = Import(order);
    for (const std::string& line : AccountLines(outcome.account)) {
        console.out << TerminalText(line) << '\n';
    }
    if (!outcome.refusal.empty()) {
        throw Failure(0, "PTK", outcome.refusal + kAccept);
    }
    if (!outcome.problem.empty()) {
        Complain(console.err, Failure(0, "PTK", "imported, but " + outcome.problem));
    }
    return outcome.account.signs.empty() && outcome.problem.empty() ? status::Done : status::ProblemsFound;
}

} // namespace ptk
