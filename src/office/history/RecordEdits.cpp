#include "office/history/RecordEdits.h"

#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "office/history/HistoryText.h"
#include "platform/text/DayText.h"
#include "platform/text/Text.h"

#include <fmt/format.h>
#include <set>

namespace ptk {

namespace {

constexpr auto kAdded = "Added";
constexpr auto kChanged = "Changed";

bool IsNamed(const TrailEntry& entry)
{
    return !entry.by.empty() || !entry.program.empty();
}

bool IsSet(const TrailValue& end)
{
    const auto moment = ParseDateTime(end.text);
    return end.kind != TrailValue::Kind::Null && !(moment && moment->IsZero());
}

bool IsClockingOut(const TrailEntry& entry)
{
    const TrailValue* end = ValueOf(*entry.before, "EndTime");
    const bool toldMore = ValueOf(*entry.before, "StartTime") != nullptr || ValueOf(*entry.before, "EmployeeID") != nullptr;
    return !IsNamed(entry) && end != nullptr && !IsSet(*end) && !toldMore;
}

std::string EditText(const char* deed, const TrailEntry& entry)
{
    const auto moment = ParseDateTime(entry.at);
    return fmt::format("{} by {} on {}{}", deed, EntryPerson(entry), moment ? MomentText(*moment) : entry.at, EntryReason(entry));
}

} // namespace

RecordEdits EditsIn(const std::vector<TrailEntry>& entries)
{
    RecordEdits edits;
    std::set<std::int64_t> changed;
    for (const TrailEntry& entry : entries) {
        if (!entry.row) {
            continue;
        }
        if (entry.before && entry.after && !changed.contains(*entry.row) && !IsClockingOut(entry)) {
            changed.insert(*entry.row);
            edits[*entry.row] = EditText(kChanged, entry);
        } else if (!entry.before && IsNamed(entry)) {
            std::string& text = edits[*entry.row];
            text.insert(0, EditText(kAdded, entry) + (text.empty() ? "" : "\n"));
        }
    }
    return edits;
}

RecordEdits ReadRecordEdits(const std::shared_ptr<CJetDB>& database, const CTimeCard& card)
{
    TrailQuery query;
    query.records.emplace();
    for (const CardLine& line : card.Lines()) {
        query.records->push_back(line.record->TimeRecordID());
    }
    return query.records->empty() ? RecordEdits() : EditsIn(ReadTrail(database, query));
}

} // namespace ptk
