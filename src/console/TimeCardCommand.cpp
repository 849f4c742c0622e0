#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"

namespace ptk {

int TimeCardCommand(const TimeCardArguments& arguments, Console& console)
{
    Session session(console.programFolder);
    CTimeCard card(session.Factory());
    card.PTKDatabase(session.Database());
    // A card's end is a moment: midnight after the last day, as the time card page passes it.
    const DateTime end = arguments.to.AddDays(1);
    if (!card.GenerateTimecard(session.Employees()->GetEmployeeByName(arguments.employee), arguments.from, end)) {
        throw ProgramFailure(card.ErrorNumber(), arguments.employee, card.LastFailure().Description());
    }
    const std::string text = card.ToStringReport();
    if (card.ErrorNumber() != 0) {
        throw ProgramFailure(card.ErrorNumber(), arguments.employee);
    }
    session.GiveUpDatabase();
    console.out << TerminalText(text);
    return status::Done;
}

} // namespace ptk
