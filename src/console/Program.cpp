#include "console/Program.h"

#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "platform/files/ProgramFolder.h"
#include "platform/system/Clock.h"

namespace ptk {

namespace {

// Calls the command that takes these arguments.
struct Dispatch
{
    Console& console;

    int operator()(const CreateDatabaseArguments& arguments) const { return CreateDatabaseCommand(arguments, console); }
    int operator()(const TimeCardArguments& arguments) const { return TimeCardCommand(arguments, console); }
    int operator()(const ReportArguments& arguments) const { return ReportCommand(arguments, console); }
    int operator()(const ProfilesArguments& arguments) const { return ProfilesCommand(arguments, console); }
    int operator()(const OverviewArguments& arguments) const { return OverviewCommand(arguments, console); }
    int operator()(const PaydayArguments& arguments) const { return PaydayCommand(arguments, console); }
    int operator()(const HistoryArguments& arguments) const { return HistoryCommand(arguments, console); }
    int operator()(const BackupArguments& arguments) const { return BackupCommand(arguments, console); }
    int operator()(const RestoreArguments& arguments) const { return RestoreCommand(arguments, console); }
    int operator()(const BackupsArguments& arguments) const { return BackupsCommand(arguments, console); }
    int operator()(const ImportArguments& arguments) const { return ImportCommand(arguments, console); }
    int operator()(const ImportPunchesArguments& arguments) const { return ImportPunchesCommand(arguments, console); }
    int operator()(const ImportEmployeesArguments& arguments) const { return ImportEmployeesCommand(arguments, console); }
    int operator()(const PersonArguments& arguments) const { return PersonCommand(arguments, console); }
    int operator()(const KeptArguments& arguments) const { return KeptCommand(arguments, console); }
    int operator()(const CopyDatabaseArguments& arguments) const { return CopyDatabaseCommand(arguments, console); }
    int operator()(const CheckArguments& arguments) const { return CheckCommand(arguments, console); }
};

int ShowUsage(const UsageAnswer& answer, std::ostream& out, std::ostream& err)
{
    if (!answer.wrong) {
        out << answer.text << '\n';
        return status::Done;
    }
    return RefuseUsage(err, answer.text);
}

int Run(const std::vector<std::string>& words, const Clock& clock, std::ostream& out, std::ostream& err, bool terminal)
{
    const auto read = ReadArguments(words, clock.Today());
    if (const auto* answer = std::get_if<UsageAnswer>(&read)) {
        return ShowUsage(*answer, out, err);
    }
    const auto& arguments = std::get<Arguments>(read);
    Console console{FindProgramFolder(arguments.programFolder).path, clock, out, err, terminal};
    return std::visit(Dispatch{console}, arguments.command);
}

} // namespace

int RunConsole(const std::vector<std::string>& words, const Clock& clock, std::ostream& out, std::ostream& err, bool terminal)
{
    try {
        const int result = Run(words, clock, out, err, terminal);
        if (out.flush() || result == status::Failed || result == status::WrongUsage) {
            return result;
        }
        throw Failure(0, "PTK", "the output could not be written");
    } catch (...) {
        Complain(err, CurrentFailure());
        return status::Failed;
    }
}

} // namespace ptk
