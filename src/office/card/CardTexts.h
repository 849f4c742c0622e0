// What the Timecards page and its editors say without a box: whose card is shown, whose a record will be, what was done.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <string>

namespace ptk {

class CTimeCard;

// Whose card and of which days, as the page's boxes show it.
struct CardName
{
    std::string employee; // display name, empty for nobody
    std::string period;   // "02/18/2003 - 03/04/2003", both days inclusive

    bool operator==(const CardName&) const = default;
};

// The employee is empty where the card could not even be given one.
[[nodiscard]] CardName NameOf(const CTimeCard& card);

// The warning above a card that is not the one the boxes name; empty when it is, or when it is nobody's. A card that is not shown any more
// still takes the new records, and that is what is said of it. `chosen.employee` is empty for a text that is nobody's name.
[[nodiscard]] std::string StrangeCardText(const CardName& card, bool shown, const CardName& chosen);

// How to come to the card that the boxes name.
[[nodiscard]] std::string NextStepText(const CardName& chosen);

// For the editors: whose the record will be, that of the card's employee whatever the boxes say.
[[nodiscard]] std::string RecordOwnerText(const std::string& cardEmployee, const std::string& chosenEmployee);

// "1 record", "2 records".
[[nodiscard]] std::string CountText(std::int64_t count, const std::string& thing);

// "Ann Lee's card generated: 12 records".
[[nodiscard]] std::string GeneratedText(const CTimeCard& card);

// "Ann Lee's records could not be read: the database is in use by another program"; empty where there simply are none.
[[nodiscard]] std::string UnreadText(const CTimeCard& card);

// "Record not saved: " and why, as far as the card knows it.
[[nodiscard]] std::string RefusedText(const std::string& what, const CTimeCard& card);

// "after 0:45 break time": what was taken off the hours of a generated card in all, and what follows where it exceeds them; empty when
// nothing was.
[[nodiscard]] std::string BreakTimeText(const CTimeCard& card);

// "Sunday".
[[nodiscard]] std::string WeekdayName(DateTime day);

} // namespace ptk
