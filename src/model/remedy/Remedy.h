// What can be done about a finding, and how that would change the card's hours, before anything is stored.
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

// A change, a deletion or an addition of one record.
struct RecordChange
{
    std::optional<std::int64_t> record; // its key; none: a record to be added
    DateTime start;                     // start and end after the change; without meaning where the record is deleted
    DateTime end;
    bool deletes = false;

    bool operator==(const RecordChange&) const = default;
};

// One thing that can be done about a finding. The remedies of one finding have different texts.
struct Remedy
{
    std::string text;                 // "End at 04:30 PM: the card has 80.30 hours"
    std::optional<std::string> hours; // regular and overtime hours of the changed card together; none where they cannot be computed
    std::vector<RecordChange> changes;
    std::string what; // "End at 04:30 PM": the text without the hours

    [[nodiscard]] bool Deletes() const;
};

// When the shift of somebody who forgot to clock out may have ended, as seconds of the day.
struct ShiftEnds
{
    // Answers when the employee usually ends a shift that began at `start`. Called only when that is needed; empty where it cannot be told.
    std::function<std::optional<std::int64_t>(DateTime start)> usual;

    std::optional<std::int64_t> automatic; // the end of the auto shift in the options: see AutoShiftEnd
};

// The second of the day at which the auto shift ends; none unless both its times are set, that is, are not midnight.
[[nodiscard]] std::optional<std::int64_t> AutoShiftEnd(DateTime autoShiftStart, DateTime autoShiftEnd);

// A card, its rows and what their check found.
struct CheckedRows
{
    const CheckedCard& card;
    const Punches& punches; // among them those that start up to two days after the period
    const CardCheck& check;
    const CheckLimits& limits;
};

// The remedies of a finding in the order in which they are offered; none for a finding that only a person can judge. A remedy changes only
// the finding's own records. Its hours are computed from a changed copy of the rows, by the rules of the card.
[[nodiscard]] std::vector<Remedy> RemediesOf(const Finding& finding, const CheckedRows& rows, const ShiftEnds& ends);

// The hours that the card would show after these changes; none where they cannot be computed.
[[nodiscard]] std::optional<std::string> HoursWith(const CheckedRows& rows, const std::vector<RecordChange>& changes);

} // namespace ptk
