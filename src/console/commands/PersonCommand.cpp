#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "model/CEmployee.h"
#include "model/ModelErrors.h"
#include "office/person/Kept.h"
#include "office/person/PersonData.h"
#include "office/safety/BackupRun.h"
#include "platform/files/FileDraft.h"
#include "platform/system/Clock.h"
#include "shell/CDatabaseLocator.h"

namespace ptk {

namespace {

constexpr auto kPagesAreForFiles = "a PDF file is nothing for a terminal: name a file with -o";
constexpr auto kOutputNeedsName = "-o needs the name of a file";

PersonData ReadNamed(const PersonArguments& arguments, const Console& console)
{
    Session session(console.programFolder);
    const PersonPlaces places{console.programFolder, SecondBackupFolder(*LocateDatabase(console.programFolder)->ConfigFile())};
    try {
        const auto employee = FindPerson(session.Database(), arguments.name, arguments.number);
        return ReadPerson(session.Database(), employee->EmployeeID(), places, console.clock.Now());
    } catch (const Failure& failure) {
        if (failure.Number() == timecard::NoEmployee) {
            throw ProgramFailure(timecard::NoEmployee, arguments.name);
        }
        throw;
    }
}

} // namespace

int PersonCommand(const PersonArguments& arguments, Console& console)
{
    if (arguments.form == ReportForm::Pdf && !arguments.output && console.terminal) {
        return RefuseUsage(console.err, kPagesAreForFiles);
    }
    if (arguments.output && arguments.output->empty()) {
        return RefuseUsage(console.err, kOutputNeedsName);
    }
    const std::string bytes = PersonIn(arguments.form, ReadNamed(arguments, console));
    if (!arguments.output) {
        console.out << (arguments.form == ReportForm::Pdf ? bytes : TerminalText(bytes));
        return status::Done;
    }
    try {
        PutFile(*arguments.output, bytes);
    } catch (const Failure& reason) {
        throw FileFailure(reason, *arguments.output);
    }
    return status::Done;
}

int KeptCommand(const KeptArguments& arguments, Console& console)
{
    Session session(console.programFolder);
    const KeptAccount account = ReadKept(session.Database(), arguments.years, console.clock.Today());
    session.GiveUpDatabase();
    for (const std::string& line : KeptLines(account)) {
        console.out << line << '\n';
    }
    return status::Done;
}

} // namespace ptk
