#include "console/Account.h"
#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Output.h"
#include "console/Session.h"
#include "model/CEmployeeList.h"
#include "model/ModelErrors.h"
#include "office/payday/PaydayAccount.h"
#include "office/payday/PaydayClosing.h"
#include "platform/system/Clock.h"

#include <algorithm>

namespace ptk {

namespace {

std::vector<std::int32_t> NumbersOf(Session& session, const std::vector<std::string>& names)
{
    std::vector<std::int32_t> numbers;
    for (const std::string& name : names) {
        const auto employee = session.EmployeeNamed(name);
        if (employee == nullptr) {
            throw ProgramFailure(timecard::NoEmployee, name);
        }
        numbers.push_back(employee->EmployeeID());
    }
    return numbers;
}

std::vector<PaydayLine> Store(Session& session, const PaydayOrder& order, PaydayTask task)
{
    session.Database()->StoredBy(ConsoleAuthor());
    try {
        return task == PaydayTask::Close ? ClosePayday(session.Database(), order) : ReopenPayday(session.Database(), order);
    } catch (const Failure& failure) {
        if (failure.Number() == timecard::NoRecords || failure.Number() == timecard::NoEmployee) {
            throw ProgramFailure(failure.Number(), failure.Description());
        }
        throw;
    }
}

int ChangePayday(const PaydayArguments& arguments, Console& console)
{
    Session session(console.programFolder);
    PaydayOrder order{{arguments.from, arguments.to}, NumbersOf(session, arguments.employees), console.clock.Now()};
    const auto lines = Store(session, order, arguments.task);
    session.GiveUpDatabase();
    for (const PaydayLine& line : lines) {
        console.out << TerminalText(TextOf(line)) << '\n';
    }
    const auto isLeft = [](const PaydayLine& line) { return line.deed == PaydayDeed::NotClosed; };
    return std::any_of(lines.begin(), lines.end(), isLeft) ? status::ProblemsFound : status::Done;
}

int ShowAccount(const PaydayArguments& arguments, Console& console)
{
    Session session(console.programFolder);
    const PaydayAccount account = ReadPaydayAccount(session.Database(), {arguments.from, arguments.to}, console.clock.Now());
    session.GiveUpDatabase();
    const std::string bytes = arguments.output ? AccountFile(arguments.form, account) : AccountIn(arguments.form, account);
    Deliver(arguments.form, arguments.output, bytes, console);
    return account.IsAnybodyChanged() ? status::ProblemsFound : status::Done;
}

} // namespace

int PaydayCommand(const PaydayArguments& arguments, Console& console)
{
    if (arguments.to < arguments.from) {
        return RefuseUsage(console.err, kFromAfterTo);
    }
    if (const char* const wrong = WrongOutput(arguments.form, arguments.output, console)) {
        return RefuseUsage(console.err, wrong);
    }
    return arguments.task == PaydayTask::Account ? ShowAccount(arguments, console) : ChangePayday(arguments, console);
}

} // namespace ptk
