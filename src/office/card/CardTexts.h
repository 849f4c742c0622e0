// The texts that the Timecards page and its editors show without a message box: whose card is shown, who will own a record, what was done.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <string>

namespace ptk {

class CTimeCard;

// The employee and the days of a card, as the page's boxes show them.
struct CardName
{
    std::string employee; // display name, empty for nobody
    std::string period;   // "02/18/2003 - 03/04/2003", both days inclusive

    bool operator==(const CardName&) const = default;
};

// The employee's name is empty if the card has no employee.
[[nodiscard]] CardName CardNameOf(const CTimeCard& card);

// The warning above a card that is not the one named by the boxes; empty if it is, or if the card has no employee. New records still go to
// a card that is not shown any more, and the warning then says that. `chosen.employee` is empty if the typed text is no employee's name.
[[nodiscard]] std::string StrangeCardText(const CardName& card, bool shown, const CardName& chosen);

// How to get the card that the boxes name.
[[nodiscard]] std::string NextStepText(const CardName& chosen);

// For the editors: who will own the record, which is the card's employee whatever the boxes say.
[[nodiscard]] std::string RecordOwnerText(const std::string& cardEmployee, const std::string& chosenEmployee);

// "1 record", "2 records".
[[nodiscard]] std::string CountText(std::int64_t count, const std::string& thing);

// "Ann Lee's card generated: 12 records".
[[nodiscard]] std::string GeneratedText(const CTimeCard& card);

// "Ann Lee's records could not be read: the database is in use by another program"; empty where there simply are none.
[[nodiscard]] std::string UnreadText(const CTimeCard& card);

// "Record not saved: " and the reason, if the card knows it. `what` is the part before the colon.
[[nodiscard]] std::string RefusedText(const std::string& what, const CTimeCard& card);

// "after 0:45 break time": the break time that was taken off the hours of a generated card in all, and what follows if that exceeds the
// hours; empty if nothing was taken off.
[[nodiscard]] std::string BreakTimeText(const CTimeCard& card);

// "Sunday".
[[nodiscard]] std::string WeekdayName(DateTime day);

} // namespace ptk
