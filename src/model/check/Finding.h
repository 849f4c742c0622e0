// A finding: something that is wrong, or worth a look, on one employee's time card.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// The kinds stand in the order in which findings of one moment are listed.
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

// The kind's name in data files: "unreadable", "clocked-in".
[[nodiscard]] std::string_view KindName(FindingKind kind);

[[nodiscard]] Severity SeverityOf(FindingKind kind);

// The severity's name in data files: "problem", "notice".
[[nodiscard]] std::string_view SeverityName(Severity severity);

struct Finding
{
    FindingKind kind = FindingKind::Unreadable;
    std::vector<std::int64_t> records; // keys, by start, end and number; none for what concerns a whole week or period, save what was paid
    std::int64_t minutes = 0;          // whole minutes that the finding is about; below 0 where less is owed than was paid
    std::optional<DateTime> from;      // the earliest start, where there is one; `to` is the latest end
    std::optional<DateTime> to;
    std::string text; // one plain sentence
};

// Orders by start, findings without one first, then by kind, then by records.
bool operator<(const Finding& left, const Finding& right);

} // namespace ptk
