// The messages that the Timecards page shows to the user.
#pragma once

#include "model/CTimeCard.h"
#include "model/ModelErrors.h"
#include "platform/system/Notice.h"

#include <array>

namespace ptk::timecardnotice {

inline constexpr auto kGenerationTitle = "Timecard Generation Error";
inline constexpr auto kCreationTitle = "Time Card Creation Error";
inline constexpr auto kSelectionTitle = "Time Record Selection Error";
inline constexpr auto kInvalidRangeText = "Incorrect date format or invalid date range."; // also that of a period to fill
inline constexpr auto kNotAddedText = "An error occurred while adding this time record to the database.";

inline constexpr Notice kNoEmployeeChosen{"Generate Timecard Error", "You must select an employee.", Icon::Exclamation};
inline constexpr Notice kNotGenerated{kGenerationTitle,
                                      "An error occurred while generating this timecard. Check time records, rate of pay, or date range.",
                                      Icon::Exclamation};
inline constexpr Notice kNotMoved{kGenerationTitle, "Cannot move to the selected time period.", Icon::Exclamation};
inline constexpr Notice kNoCardForNew{kCreationTitle, "You must generate a time card before adding a new time record.", Icon::Information};
inline constexpr Notice kNoCard{kCreationTitle, "You must generate a time card before continuing.", Icon::Information};
inline constexpr Notice kNoneToEdit{kSelectionTitle, "You must select a time record to edit before continuing.", Icon::Information};
inline constexpr Notice kNoneToDelete{kSelectionTitle, "You must select a time record to delete before continuing.", Icon::Information};
inline constexpr Notice kDeleteQuestion{"Delete Time Record?",
                                        "Deleting will remove this time record from the database permanently. Continue?", Icon::Question};
inline constexpr Notice kNotDeleted{"Time Record Delete Error", "There was an error deleting the time record from the database.",
                                    Icon::Exclamation};
inline constexpr Notice kNotFilled{"Time Record Save Error", kNotAddedText, Icon::Exclamation};
inline constexpr Notice kNotStored{"Database Save Error", kNotAddedText, Icon::Exclamation};

inline constexpr auto kPrintTitle = "Time Card Print Error";
inline constexpr auto kPrintText = // after the error number and " : "
    "An error occurred while printing the current timecard. Check employee record and time records before continuing.";

struct CardError
{
    std::int32_t number;
    Notice notice;
};

// The message for each error of a card that could not be generated. 602 says "not active" even for a name that no employee has.
inline constexpr std::array<CardError, 4> kCardErrors{{
    {timecard::CalculationFailed, kNotGenerated},
    {timecard::NoRecords, {kGenerationTitle, "There are no time records found for this employee during this period.", Icon::Information}},
    {timecard::NoEmployee, {kGenerationTitle, "This is not an active employee.", Icon::Exclamation}},
    {timecard::InvalidRange, {kGenerationTitle, kInvalidRangeText, Icon::Exclamation}},
}};

} // namespace ptk::timecardnotice
