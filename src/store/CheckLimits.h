// What the office wants to be told of when a time card is checked: the single row of the table _CheckLimits.
#pragma once

#include <cstdint>
#include <memory>

namespace ptk {

class CJetDB;

struct CheckLimits
{
    std::int32_t longShiftHours = 16; // a longer shift is a problem, an open one no longer somebody at work; not negative
    std::int32_t firstWeekday = 0;    // of a work week, 0 Sunday to 6 Saturday
    bool showNotices = true;          // in windows and printed text; figures and data files hold them all the same

    bool operator==(const CheckLimits&) const = default;
};

// Files of earlier versions have no such table: where it, its row or a value in it is missing or of no use, the value above holds. Raises
// the failure of a database that cannot be opened or read. REQUIRES: database is not nullptr, here and below.
[[nodiscard]] CheckLimits LoadCheckLimits(const std::shared_ptr<CJetDB>& database);

// Makes the table where it is missing; writes nothing where the limits are those as read, or stored already. On disk when it answers true;
// false with what CJetDB::ExecuteSteps leaves: a Conflict where the stored limits are not as they were read.
[[nodiscard]] bool SaveCheckLimits(const std::shared_ptr<CJetDB>& database, const CheckLimits& limits, const CheckLimits& asRead);

} // namespace ptk
