#include "store/CheckLimits.h"

#include "platform/Failure.h"
#include "store/CJetDB.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/RowConflict.h"

#include <fmt/format.h>
#include <limits>

namespace ptk {

namespace {

constexpr const char* kTable = "_CheckLimits";
constexpr const char* kSelect = "SELECT * FROM _CheckLimits LIMIT 1";
constexpr const char* kCreate =
    "CREATE TABLE IF NOT EXISTS _CheckLimits (long_shift_hours INTEGER, first_weekday INTEGER, show_notices BOOLEAN)";
constexpr const char* kAddRow = "INSERT INTO _CheckLimits SELECT 16, 0, 1 WHERE NOT EXISTS (SELECT 1 FROM _CheckLimits)";
constexpr std::int32_t kLastWeekday = 6;

// Puts what a column says into `value`, unless the column is missing or says nothing that `read` can use.
template <typename Value, typename Read>
void Take(const RecordSet& row, const char* column, Value& value, Read read)
{
    try {
        const Value found = read(row.Column(column));
        value = found;
    } catch (const Failure&) {
        // deliberately: the shipped limit is better than no check at all
    }
}

std::int32_t Number(const RecordSet& row, std::size_t column, std::int32_t most)
{
    const std::int32_t number = row.Int32At(column);
    if (number < 0 || number > most) {
        throw Failure(failure::Overflow);
    }
    return number;
}

CheckLimits LimitsOf(const RecordSet& row)
{
    CheckLimits limits;
    Take(row, "long_shift_hours", limits.longShiftHours,
         [&](std::size_t column) { return Number(row, column, std::numeric_limits<std::int32_t>::max()); });
    Take(row, "first_weekday", limits.firstWeekday, [&](std::size_t column) { return Number(row, column, kLastWeekday); });
    Take(row, "show_notices", limits.showNotices, [&](std::size_t column) { return row.BooleanAt(column); });
    return limits;
}

CheckLimits LimitsIn(Statement& select)
{
    const auto row = select.ReadRows();
    return row->EndOfFile() ? CheckLimits() : LimitsOf(*row);
}

CheckLimits LockedLimits(Engine& engine)
{
    return engine.HasTable(kTable) ? LimitsIn(*engine.Prepare(std::string(kSelect) + engine.Words().lockRows)) : CheckLimits();
}

void Update(Engine& engine, const CheckLimits& limits)
{
    if (engine.Words().makesTables) {
        engine.Run(kCreate);
        engine.Run(kAddRow);
    }
    engine.Run(fmt::format("UPDATE _CheckLimits SET long_shift_hours = {}, first_weekday = {}, show_notices = '{}'", limits.longShiftHours,
                           limits.firstWeekday, limits.showNotices ? 1 : 0));
}

} // namespace

LimitsQuestion::LimitsQuestion(CJetDB& database)
{
    if (database.HasTable(kTable)) {
        m_row = RequireSelect(database, kSelect);
        m_row->AskAhead();
    }
}

LimitsQuestion::~LimitsQuestion() = default;

CheckLimits LimitsQuestion::Answer()
{
    return m_row == nullptr ? CheckLimits() : LimitsIn(*m_row);
}

CheckLimits LoadCheckLimits(const std::shared_ptr<CJetDB>& database)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    return LimitsQuestion(*database).Answer();
}

bool SaveCheckLimits(const std::shared_ptr<CJetDB>& database, const CheckLimits& limits, const CheckLimits& asRead)
{
    return database->ExecuteSteps([&](Engine& engine) {
        const CheckLimits present = LockedLimits(engine);
        if (limits == present || limits == asRead) {
            return;
        }
        RequireAsRead(present, asRead);
        Update(engine, limits);
    });
}

} // namespace ptk
