#include "console/Account.h"
#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "office/safety/BackupRun.h"
#include "platform/files/FileSteps.h"
#include "platform/system/Clock.h"
#include "platform/text/DayText.h"
#include "shell/CDatabaseLocator.h"
#include "store/engine/EngineSource.h"
#include "store/whole/DatabaseName.h"

#include <filesystem>
#include <fmt/format.h>

namespace ptk {

namespace {

// The database's path, and the second folder that the configuration names.
BackupOrder OrderOf(const Console& console)
{
    const auto locator = LocateDatabase(console.programFolder);
    return {NativeName(locator->DatabasePath()), console.programFolder, SecondBackupFolder(*locator->ConfigFile()), console.clock.Now()};
}

// Runs the action. A failure of the engine is given the database's name, any other that of the file to be written.
template <typename Action>
auto Naming(const std::string& database, const std::string& target, Action action)
{
    try {
        return action();
    } catch (const Failure& failure) {
        throw FileFailure(failure, IsOfDatabase(failure) ? database : target);
    }
}

int BackUpInto(const BackupOrder& order, Console& console)
{
    const BackupOutcome outcome = Naming(order.database, BackupFolder(order.programFolder), [&] { return MakeBackup(order); });
    console.out << "backup: " << TerminalText(outcome.path) << '\n';
    if (outcome.secondProblem.empty()) {
        return status::Done;
    }
    Complain(console.err, Failure(0, "PTK", outcome.secondProblem));
    return status::ProblemsFound;
}

// The file to restore. A backup in the backup folder may be named without its folder.
std::string FileToRestore(const Console& console, const std::string& file)
{
    const std::string listed = BackupFolder(console.programFolder) + '/' + file;
    const bool isName = file.find('/') == std::string::npos && !IsThere(file);
    return isName && IsThere(listed) ? listed : std::filesystem::absolute(file).string();
}

std::string Line(const BackupEntry& entry)
{
    if (!entry.content) {
        return fmt::format("{}  {} bytes  damaged: {}\n", entry.name, entry.size, entry.fault);
    }
    const BackupContent& content = *entry.content;
    return fmt::format("{}  {} bytes  {} employees  {} records  newest shift {}\n", entry.name, entry.size, content.employees,
                       content.records, content.newestShift ? MomentText(*content.newestShift) : "none");
}

} // namespace

int BackupCommand(const BackupArguments& arguments, Console& console)
{
    const BackupOrder order = OrderOf(console);
    if (!arguments.to) {
        return BackUpInto(order, console);
    }
    if (const std::string refusal = BackupRefusal(*arguments.to); !refusal.empty()) {
        throw Failure(0, "PTK", refusal);
    }
    const std::string target = std::filesystem::absolute(*arguments.to).string();
    Naming(order.database, target, [&] { BackUpTo(order.database, target); });
    console.out << "backup: " << TerminalText(target) << '\n';
    return status::Done;
}

int RestoreCommand(const RestoreArguments& arguments, Console& console)
{
    const BackupOrder order = OrderOf(console);
    const std::string file = FileToRestore(console, arguments.file);
    const std::string kept = RestoreBackup(order, file, ConsoleAuthor());
    if (!kept.empty()) {
        console.out << "kept: " << TerminalText(kept) << '\n';
    }
    console.out << "restored: " << TerminalText(file) << '\n';
    return status::Done;
}

int BackupsCommand(const BackupsArguments&, Console& console)
{
    int result = status::Done;
    const std::string folder = BackupFolder(console.programFolder);
    for (const std::string& name : Naming(folder, folder, [&] { return BackupsIn(folder); })) {
        const BackupEntry entry = CheckedBackup(folder, name);
        console.out << TerminalText(Line(entry));
        if (!entry.content) {
            result = status::ProblemsFound;
        }
    }
    return result;
}

} // namespace ptk
