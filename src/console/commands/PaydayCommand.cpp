#include "console/Account.h"
#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "model/CEmployeeList.h"
#include "model/ModelErrors.h"
#include "office/payday/PaydayAccount.h"
#include "office/payday/PaydayClosing.h"
#include "platform/files/FileDraft.h"
#include "platform/system/Clock.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr auto kPdfIsForFiles = "a PDF file is nothing for a terminal: name a file with -o";
constexpr auto kFileNeedsName = "-o needs the name of a file";

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

void Deliver(const PaydayArguments& arguments, const PaydayAccount& account, Console& console)
{
    const std::string bytes = arguments.output ? AccountFile(arguments.form, account) : AccountIn(arguments.form, account);
    if (!arguments.output) {
        console.out << (arguments.form == ReportForm::Pdf ? bytes : TerminalText(bytes));
        return;
    }
    try {
        PutFile(*arguments.output, bytes);
    } catch (const Failure& reason) {
        throw FileFailure(reason, *arguments.output);
    }
}

int ShowAccount(const PaydayArguments& arguments, Console& console)
{
    Session session(console.programFolder);
    const PaydayAccount account = ReadPaydayAccount(session.Database(), {arguments.from, arguments.to}, console.clock.Now());
    session.GiveUpDatabase();
    Deliver(arguments, account, console);
    return account.IsAnybodyChanged() ? status::ProblemsFound : status::Done;
}

} // namespace

int PaydayCommand(const PaydayArguments& arguments, Console& console)
{
    if (arguments.to < arguments.from) {
        return RefuseUsage(console.err, "--from is after --to");
    }
    if (arguments.form == ReportForm::Pdf && !arguments.output && console.terminal) {
        return RefuseUsage(console.err, kPdfIsForFiles);
    }
    if (arguments.output && arguments.output->empty()) {
        return RefuseUsage(console.err, kFileNeedsName);
    }
    return arguments.task == PaydayTask::Account ? ShowAccount(arguments, console) : ChangePayday(arguments, console);
}

} // namespace ptk
