// What can be wrong, or worth a look, with one employee's time card.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// In the order in which findings of one moment are listed.
enum class FindingKind
{
    Unreadable,
    Open,
    ClockedIn,
    OpenLater,
    Backward,
    Empty,
    Long,
    Future,
    Overlap,
    SameStart,
    CrossesEnd,
    CrossesStart,
    Deduction,
    NoRate,
    NotEmployed,
    LongDay,
    Week,
    PaidChanged,
    Twice,
    Between,
    ClockChange,
    NoShift
};

enum class Severity
{
    Problem, // mend before paying
    Notice   // look at it
};

// "unreadable", "clocked-in": as data files carry it.
[[nodiscard]] std::string_view NameOf(FindingKind kind);

[[nodiscard]] Severity SeverityOf(FindingKind kind);

// "problem", "notice".
[[nodiscard]] std::string_view NameOf(Severity severity);

struct Finding
{
    FindingKind kind = FindingKind::Unreadable;
    std::vector<std::int64_t> records; // keys, by start, end and number; none for what concerns a whole week or period, save what was paid
    std::int64_t minutes = 0;          // what it is about, whole minutes; below 0 where less is owed than was paid
    std::optional<DateTime> from;      // the earliest start and the latest end, where there is one
    std::optional<DateTime> to;
    std::string text; // one plain sentence
};

// By start, those without one first, then by kind, then by record.
bool operator<(const Finding& left, const Finding& right);

} // namespace ptk
