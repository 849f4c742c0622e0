// The texts of the record editor: what it warns of while they are typed, and what is said once the record is stored.
#pragma once

#include "model/PayPeriod.h"
#include "platform/text/DateTime.h"
#include "platform/text/TypedTime.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ptk {

// The contents of the record editor's boxes.
struct RecordTexts
{
    TypedMoment startDate;
    TypedMoment startTime; // empty: midnight
    TypedMoment endDate;
    TypedMoment endTime;

    // The start of the record, from its two boxes. Raises Failure 13 as Together does; End does too.
    [[nodiscard]] DateTime Start() const;

    [[nodiscard]] DateTime End() const;
};

// Sentences that warn of a record that has no hours or lies outside the period, if one is given; empty otherwise, and for a record that
// cannot be read yet.
[[nodiscard]] std::string NewRecordWarning(const RecordTexts& texts, const std::optional<PayPeriod>& period);

// "This shift has 320:20 hours, more than the longest usual one of 16."; empty for a shorter one and for one that cannot be read yet. Whole
// minutes count, as in the check of a card.
[[nodiscard]] std::string LongShiftWarning(const RecordTexts& texts, std::int32_t longShiftHours);

// "Record saved for Ann Lee". If one of the texts could not be read, it first says which one, and then what is stored.
[[nodiscard]] std::string SavedRecordText(const std::string& owner, const RecordTexts& texts, DateTime storedStart, DateTime storedEnd);

} // namespace ptk
