#include "model/remedy/ChangedRows.h"

#include "model/check/CardCheck.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace ptk {

namespace {

void Change(const CheckedCard& card, Punches& punches, const RecordChange& change)
{
    const auto found = std::find_if(punches.begin(), punches.end(), [&](const Punch& punch) { return punch.id == change.record; });
    if (change.deletes || (change.record && found == punches.end())) {
        if (found != punches.end()) {
            punches.erase(found);
        }
        return;
    }
    Punch& punch = change.record ? *found : punches.emplace_back();
    if (!change.record) {
        punch.id = std::numeric_limits<std::int64_t>::max(); // the database will give it a number, greater than any other
    }
    punch.start = change.start;
    punch.end = change.end;
    punch.fetched = change.start >= card.from && change.end <= MidnightAfter(card.to);
}

} // namespace

std::vector<const Punch*> ReadablePunches(const Punches& punches)
{
    std::vector<const Punch*> readable;
    readable.reserve(punches.size());
    for (const Punch& punch : punches) {
        if (punch.IsReadable()) {
            readable.push_back(&punch);
        }
    }
    std::sort(readable.begin(), readable.end(), [](const Punch* left, const Punch* right) {
        return std::tie(*left->start, *left->end, left->id) < std::tie(*right->start, *right->end, right->id);
    });
    return readable;
}

Punches WithChanges(const CheckedCard& card, Punches punches, const std::vector<RecordChange>& changes)
{
    for (const RecordChange& change : changes) {
        Change(card, punches, change);
    }
    return punches;
}

std::optional<std::string> HoursWith(const CheckedRows& rows, const std::vector<RecordChange>& changes)
{
    const Punches changed = WithChanges(rows.card, rows.punches, changes);
    if (std::any_of(changed.begin(), changed.end(), [](const Punch& punch) { return punch.fetched && !punch.IsReadable(); })) {
        return std::nullopt;
    }
    std::vector<const Punch*> onCard = ReadablePunches(changed);
    std::erase_if(onCard, [](const Punch* punch) { return !punch->fetched; });
    const auto figures = FiguresOf(rows.card.employee, onCard);
    return figures ? std::optional(figures->Hours()) : std::nullopt;
}

} // namespace ptk
