#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/Session.h"
#include "model/check/FindingText.h"
#include "model/CTimeCard.h"
#include "office/card/CheckedTimecard.h"
#include "office/overview/OverviewTexts.h"
#include "platform/system/Clock.h"

namespace ptk {

namespace {

class TimeCardPrinter
{
public:
    TimeCardPrinter(const TimeCardArguments& arguments, Console& console)
        : m_arguments(arguments), m_console(console), m_session(console.programFolder), m_card(m_session.Factory())
    {
        m_card.PTKDatabase(m_session.Database());
    }

    int Print()
    {
        const auto employee = m_session.EmployeeNamed(m_arguments.employee);
        if (m_arguments.check && employee != nullptr) {
            return PrintChecked(employee);
        }
        // A card's end is a moment: midnight after the last day, as the time card page passes it.
        if (!m_card.GenerateTimecard(employee, m_arguments.from, m_arguments.to.AddDays(1))) {
            throw NotGenerated();
        }
        PrintCard();
        return status::Done;
    }

private:
    // Prints the card and its findings; the findings even where the card could not be generated.
    int PrintChecked(const std::shared_ptr<CEmployee>& employee)
    {
        const CheckLimits limits = LoadCheckLimits(m_session.Database());
        const CheckedTimecard checked =
            GenerateChecked(m_card, m_session.Database(), employee, {m_arguments.from, m_arguments.to}, m_console.clock.Now(), limits);
        m_session.GiveUpDatabase();
        if (checked.generated) {
            PrintCard();
            m_console.out << '\n';
        }
        if (checked.check) {
            m_console.out << TerminalText(FindingSummary(*checked.check) + "\r\n" + FindingLines(*checked.check, limits.showNotices));
        }
        if (!checked.generated) {
            throw NotGenerated();
        }
        if (!checked.check) {
            throw checked.failure;
        }
        return checked.check->problems > 0 ? status::ProblemsFound : status::Done;
    }

    // Lets go of the database first: a terminal or pipe may be slow, and nobody should wait for the database meanwhile.
    void PrintCard()
    {
        m_session.GiveUpDatabase();
        const std::string text = m_card.ToStringReport();
        if (m_card.ErrorNumber() != 0) {
            throw ProgramFailure(m_card.ErrorNumber(), m_arguments.employee);
        }
        m_console.out << TerminalText(text);
    }

    Failure NotGenerated() const { return ProgramFailure(m_card.ErrorNumber(), m_arguments.employee, m_card.LastFailure().Description()); }

    const TimeCardArguments& m_arguments;
    Console& m_console;
    Session m_session;
    CTimeCard m_card;
};

} // namespace

int TimeCardCommand(const TimeCardArguments& arguments, Console& console)
{
    return TimeCardPrinter(arguments, console).Print();
}

} // namespace ptk
