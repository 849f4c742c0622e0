// What the texts of the record editor come to: what it warns of while they are typed, and what is said of them once they are stored.
#pragma once

#include "model/PayPeriod.h"
#include "platform/text/DateTime.h"
#include "platform/text/TypedTime.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ptk {

// As the boxes answer them.
struct RecordTexts
{
    TypedMoment startDate;
    TypedMoment startTime; // empty: midnight
    TypedMoment endDate;
    TypedMoment endTime;

    // Raise Failure 13.
    [[nodiscard]] DateTime Start() const;

    [[nodiscard]] DateTime End() const;
};

// Sentences, or nothing for a record that lies in the period (where one is given) and has hours, and for one that cannot be read yet.
[[nodiscard]] std::string NewRecordWarning(const RecordTexts& texts, const std::optional<PayPeriod>& period);

// "This shift has 320:20 hours, more than the longest usual one of 16."; empty for a shorter one and for one that cannot be read yet. Whole
// minutes count, as in the check of a card.
[[nodiscard]] std::string LongShiftWarning(const RecordTexts& texts, std::int32_t longShiftHours);

// "Record saved for Ann Lee"; where one of the texts could not be read, first of all which, and then what is stored.
[[nodiscard]] std::string SavedRecordText(const std::string& owner, const RecordTexts& texts, DateTime storedStart, DateTime storedEnd);

} // namespace ptk
