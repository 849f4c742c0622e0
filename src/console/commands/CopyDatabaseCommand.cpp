#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/Session.h"
#include "store/whole/DatabaseCopier.h"
#include "store/whole/DatabaseName.h"

#include <fmt/format.h>

namespace ptk {

namespace {

std::string SourceOf(const CopyDatabaseArguments& arguments, const Console& console)
{
    return arguments.from ? AbsoluteName(*arguments.from) : ConfiguredName(console.programFolder);
}

CopyAccount Copy(const std::string& from, const std::string& to)
{
    try {
        return CopyDatabase(from, to);
    } catch (const Failure& failure) {
        throw Failure(failure.Number(), failure.Source(),
                      fmt::format("{} (from {} to {})", failure.Description(), SaidDatabase(from), SaidDatabase(to)));
    }
}

std::string Line(const CopiedTable& table)
{
    const std::string before = table.before ? fmt::format("{} rows", *table.before) : "not in the source";
    return fmt::format("{}: {}, {} copied\n", table.name, before, table.before ? table.after : 0);
}

} // namespace

int CopyDatabaseCommand(const CopyDatabaseArguments& arguments, Console& console)
{
    const std::string from = SourceOf(arguments, console);
    const std::string to = AbsoluteName(arguments.to);
    const CopyAccount account = Copy(from, to);
    console.out << "from: " << TerminalText(SaidDatabase(from)) << "\nto: " << TerminalText(SaidDatabase(to)) << '\n';
    for (const CopiedTable& table : account.tables) {
        console.out << Line(table);
    }
    for (const std::string& part : account.leftBehind) {
        console.out << "left behind: " << TerminalText(part) << '\n';
    }
    if (!account.leftToDo.empty()) {
        console.err << "ptk-console: " << account.leftToDo << '\n';
    }
    return account.leftBehind.empty() ? status::Done : status::ProblemsFound;
}

} // namespace ptk
