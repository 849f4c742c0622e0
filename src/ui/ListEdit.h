// Saving an edited entity in its list.
#pragma once

#include <cstdint>
#include <memory>
#include <utility>

namespace ptk {

enum class ListSave
{
    Saved,
    NotInserted,
    Failed
};

// The 1-based position of the first entity that satisfies it, or 0.
template <typename List, typename Predicate>
std::int32_t PositionWhere(List& list, Predicate matches)
{
    for (std::int32_t i = 1; i <= list.Count(); ++i)
        if (const auto entity = list.Item(i); entity != nullptr && matches(*entity))
            return i;
    return 0;
}

// Puts the edited copy into the place of the entity at `position`, or at the end when the position is Count + 1, and saves the list. Where
// that fails, the list is as before, in step with the database, so that the next try finds what this one found.
template <typename List, typename Entity>
ListSave SaveInPlace(List& list, const std::shared_ptr<Entity>& edited, std::int32_t position)
{
    const auto original = position <= list.Count() ? list.Remove(position) : nullptr;
    ListSave result = ListSave::NotInserted;
    if (list.Insert(edited, position) != nullptr) {
        if (list.SaveList())
            return ListSave::Saved;
        list.Remove(position);
        result = ListSave::Failed;
    }
    if (original != nullptr)
        list.Insert(original, position);
    return result;
}

} // namespace ptk
