#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Output.h"
#include "console/Session.h"
#include "model/CEmployee.h"
#include "model/ModelErrors.h"
#include "office/person/Kept.h"
#include "office/person/PersonData.h"
#include "office/safety/BackupRun.h"
#include "platform/system/Clock.h"
#include "shell/CDatabaseLocator.h"

namespace ptk {

namespace {

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
    if (const char* const wrong = WrongOutput(arguments.form, arguments.output, console)) {
        return RefuseUsage(console.err, wrong);
    }
    Deliver(arguments.form, arguments.output, PersonIn(arguments.form, ReadNamed(arguments, console)), console);
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
