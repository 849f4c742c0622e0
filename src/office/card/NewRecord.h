// What the record editor warns of while a new record is being typed.
#pragma once

#include "model/PayPeriod.h"
#include "platform/text/DateTime.h"
#include "platform/text/TypedTime.h"

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

} // namespace ptk
