#include "office/card/Mending.h"

#include "platform/Failure.h"
#include "platform/text/Value.h"
#include "store/CJetDB.h"
#include "store/CTimeRecSQLConverter.h"

#include <algorithm>

namespace ptk {

namespace {

TimeRecordRow RowAsRead(const Mending& mending, std::int64_t record)
{
    const auto found = std::find_if(mending.rows->begin(), mending.rows->end(), [&](const Punch& punch) { return punch.id == record; });
    if (found == mending.rows->end() || !found->IsReadable()) {
        throw Failure(failure::InvalidProcedureCall);
    }
    return {NarrowToInt32(record), mending.employeeID, *found->start, *found->end, state::Unchanged};
}

TimeRecordWrite WriteOf(const TimeRecordRow& row, std::optional<TimeRecordRow> asRead)
{
    return {WholeStatement(row), asRead};
}

TimeRecordWrite WriteOf(const Mending& mending, const RecordChange& change)
{
    if (!change.record) {
        return WriteOf(TimeRecordRow{-1, mending.employeeID, change.start, change.end, state::New}, std::nullopt);
    }
    const TimeRecordRow asRead = RowAsRead(mending, *change.record);
    TimeRecordRow row = asRead;
    if (change.deletes) {
        row.ObjectState = state::Deleted;
    } else {
        row.StartTime = change.start;
        row.EndTime = change.end;
        row.ObjectState = state::Changed;
    }
    return WriteOf(row, asRead);
}

} // namespace

bool Mend(CJetDB& database, std::span<const Mending> mendings)
{
    std::vector<TimeRecordWrite> writes;
    for (const Mending& mending : mendings) {
        for (const RecordChange& change : mending.changes) {
            writes.push_back(WriteOf(mending, change));
        }
    }
    return database.SaveTimeRecords(writes);
}

bool AddShift(CJetDB& database, std::span<const std::int32_t> employeeIDs, DateTime start, DateTime end)
{
    std::vector<TimeRecordWrite> writes;
    writes.reserve(employeeIDs.size());
    for (const std::int32_t id : employeeIDs) {
        writes.push_back(WriteOf(TimeRecordRow{-1, id, start, end, state::New}, std::nullopt));
    }
    return database.SaveTimeRecords(writes);
}

} // namespace ptk
