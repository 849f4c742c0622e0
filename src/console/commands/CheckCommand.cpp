#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "store/whole/DatabaseChecker.h"
#include "store/whole/DatabaseName.h"

namespace ptk {

namespace {

DatabaseCheck Check(const std::string& path)
{
    try {
        return CheckDatabase(path);
    } catch (const Failure& failure) {
        throw FileFailure(failure, path);
    }
}

} // namespace

int CheckCommand(const CheckArguments&, Console& console)
{
    const std::string path = ConfiguredName(console.programFolder);
    const DatabaseCheck check = Check(path);
    console.out << "database: " << TerminalText(SaidDatabase(path)) << '\n'
                << "Company: " << check.companies << '\n'
                << "Employee: " << check.employees << '\n'
                << "TimeRecord: " << check.timeRecords << '\n';
    for (const std::string& problem : check.problems) {
        console.out << "problem: " << TerminalText(problem) << '\n';
    }
    if (!check.problems.empty()) {
        throw Failure(0, "PTK", "the database has problems: " + std::to_string(check.problems.size()));
    }
    return status::Done;
}

} // namespace ptk
