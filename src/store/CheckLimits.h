// What the office wants to be told of when a time card is checked: the single row of the table _CheckLimits.
#pragma once

#include <cstdint>
#include <memory>

namespace ptk {

class CJetDB;
class Statement;

struct CheckLimits
{
    std::int32_t longShiftHours = 16; // a longer shift is a problem, an open one no longer somebody at work; not negative
    std::int32_t firstWeekday = 0;    // of a work week, 0 Sunday to 6 Saturday
    bool showNotices = true;          // in windows and printed text; figures and data files hold them all the same

    bool operator==(const CheckLimits&) const = default;
};

// Files of earlier versions have no such table: where it, its row or a value in it is missing or of no use, the value above holds. Raises
// the failure of a database that cannot be read. The question is on its way from the first where its answer comes from afar. REQUIRES: a
// CJetDB::Hold on the open database outlives it.
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

// The stored limits, as LimitsQuestion asks for them, waited for at once. Raises also that the database cannot be opened. REQUIRES:
// database is not nullptr, here and below.
[[nodiscard]] CheckLimits LoadCheckLimits(const std::shared_ptr<CJetDB>& database);

// Makes the table where it is missing; writes nothing where the limits are those as read, or stored already. On disk when it answers true;
// false with what CJetDB::ExecuteSteps leaves: a Conflict where the stored limits are not as they were read.
[[nodiscard]] bool SaveCheckLimits(const std::shared_ptr<CJetDB>& database, const CheckLimits& limits, const CheckLimits& asRead);

} // namespace ptk
