// The limits by which a time card is checked: the single row of the table _CheckLimits.
#pragma once

#include <cstdint>
#include <memory>

namespace ptk {

class CJetDB;
class Statement;

struct CheckLimits
{
    std::int32_t longShiftHours = 16; // a longer shift is a problem, a longer open one no longer counts as at work; not negative
    std::int32_t firstWeekday = 0;    // the first day of a work week, 0 Sunday to 6 Saturday
    bool showNotices = true;          // in windows and printed text; figures and data files always hold them

    bool operator==(const CheckLimits&) const = default;
};

// A question for the stored limits; on a server it is sent off by the constructor, and Answer waits for it. Files of earlier versions have
// no such table: where it, its row or a value in it is missing or of no use, the default of CheckLimits counts. Raises the failure of a
// database that cannot be read. REQUIRES: a CJetDB::Hold on the open database outlives it.
class LimitsQuestion
{
public:
    explicit LimitsQuestion(CJetDB& database);
    ~LimitsQuestion();
    LimitsQuestion(const LimitsQuestion&) = delete;
    LimitsQuestion& operator=(const LimitsQuestion&) = delete;

    [[nodiscard]] CheckLimits Answer();

private:
    std::unique_ptr<Statement> m_row; // nullptr without the table
};

// Reads the stored limits, as LimitsQuestion does, and waits for them. Raises also the failure of a database that cannot be opened.
// REQUIRES: database is not nullptr.
[[nodiscard]] CheckLimits LoadCheckLimits(const std::shared_ptr<CJetDB>& database);

// Stores the limits; makes the table where it is missing. Writes nothing where the limits are those as read, or stored already. On disk
// when it answers true; false with what CJetDB::ExecuteSteps leaves: a Conflict where the stored limits are not as they were read.
// REQUIRES: database is not nullptr.
[[nodiscard]] bool SaveCheckLimits(const std::shared_ptr<CJetDB>& database, const CheckLimits& limits, const CheckLimits& asRead);

} // namespace ptk
