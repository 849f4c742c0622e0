// What can be done about a finding, and what it would do to the hours, before anything is stored.
#pragma once

#include "model/check/Finding.h"
#include "model/check/Punch.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

struct CardCheck;
struct CheckedCard;
struct CheckLimits;

// What is done to one record.
struct RecordChange
{
    std::optional<std::int64_t> record; // its key; none: a new one
    DateTime start;                     // as they are to be; of no meaning where it is deleted
    DateTime end;
    bool deletes = false;

    bool operator==(const RecordChange&) const = default;
};

// One finding's have different texts.
struct Remedy
{
    std::string text;                 // "End at 04:30 PM: the card has 80.30 hours"
    std::optional<std::string> hours; // regular and overtime of the card together; none where it cannot be computed even then
    std::vector<RecordChange> changes;
    std::string what; // "End at 04:30 PM": the text without the hours

    [[nodiscard]] bool Deletes() const;
};

// When the shift of somebody who forgot to clock out may have ended, as seconds of the day.
struct ShiftEnds
{
    // For a shift that began at that moment: as the employee usually ends it. Empty where nobody can tell; asked only when it is needed.
    std::function<std::optional<std::int64_t>(DateTime start)> usual;

    std::optional<std::int64_t> automatic; // of the auto shift; see AutoShiftEnd
};

// The second of the day; none unless both times of the auto shift are set, that is, are not midnight.
[[nodiscard]] std::optional<std::int64_t> AutoShiftEnd(DateTime autoShiftStart, DateTime autoShiftEnd);

// A card, its rows and what their check found.
struct CheckedRows
{
    const CheckedCard& card;
    const Punches& punches; // also those that start up to two days after the period
    const CardCheck& check;
    const CheckLimits& limits;
};

// In the order in which they are offered; none for a finding that only a person can judge. Each changes records of the finding alone.
// Computed by changing a copy of the rows, as the card itself would be.
[[nodiscard]] std::vector<Remedy> RemediesOf(const Finding& finding, const CheckedRows& rows, const ShiftEnds& ends);

// The shown hours of the card with these changes; none where it cannot be computed.
[[nodiscard]] std::optional<std::string> HoursWith(const CheckedRows& rows, const std::vector<RecordChange>& changes);

} // namespace ptk
