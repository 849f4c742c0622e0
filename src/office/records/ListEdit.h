// Saves an edited employee or company in its list.
#pragma once

#include "platform/system/BusyPointer.h"
#include "platform/system/Desktop.h"
#include "platform/text/Text.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace ptk {

namespace listedit {
inline constexpr auto kSaveTitle = "List Save Error";
inline constexpr auto kNotFoundTitle = "Object Not found Error";
} // namespace listedit

enum class ListSave
{
    Saved,
    NotInserted,
    Failed,
    Conflict // somebody else changed or removed it: see the list's own Conflict
};

// The 1-based position of the first entity that matches, or 0.
template <typename List, typename Predicate>
[[nodiscard]] std::int32_t PositionWhere(List& list, Predicate matches)
{
    for (std::int32_t i = 1; i <= list.Count(); ++i) {
        if (const auto entity = list.Item(i); entity != nullptr && matches(*entity)) {
            return i;
        }
    }
    return 0;
}

// What a page edits: a copy of the stored entity and its position, or a new entity and the position after the last.
template <typename Entity>
struct EditedCopy
{
    std::shared_ptr<Entity> entity;
    std::int32_t position = 0;
};

// The copy of the entity with this ID, or a new entity. `key` is the text of the ID, empty for a new entity; `keyOf` answers an entity's
// ID. Nothing if no entity has that ID; raises Failure 13 or 6 for a text that is no ID.
template <typename Entity, typename List, typename KeyOf>
[[nodiscard]] std::optional<EditedCopy<Entity>> CopyToEdit(List& list, const std::string& key, KeyOf keyOf)
{
    if (key.empty()) {
        return EditedCopy<Entity>{std::make_shared<Entity>(), list.Count() + 1};
    }
    const std::int32_t wanted = ToInt32(key);
    const std::int32_t position = PositionWhere(list, [&](const Entity& entity) { return keyOf(entity) == wanted; });
    if (position == 0) {
        return std::nullopt;
    }
    return EditedCopy<Entity>{std::make_shared<Entity>(*list.Item(position)), position};
}

// Puts the edited copy in the place of the entity at `position`, or at the end if the position is Count + 1, and saves the list. If that
// fails, the list is as before, in step with the database, so that the next try starts from the same state.
template <typename List, typename Entity>
[[nodiscard]] ListSave SaveInPlace(List& list, const std::shared_ptr<Entity>& edited, std::int32_t position)
{
    const auto original = position <= list.Count() ? list.Remove(position) : nullptr;
    ListSave result = ListSave::NotInserted;
    if (list.Insert(edited, position) != nullptr) {
        if (list.SaveList()) {
            return ListSave::Saved;
        }
        list.Remove(position);
        result = list.Conflict() ? ListSave::Conflict : ListSave::Failed;
    }
    if (original != nullptr) {
        list.Insert(original, position);
    }
    return result;
}

// Saves the copy; shows `notSaved` in a box if the database refused it, except for a conflict. If the list does not take it, no box is
// shown.
template <typename List, typename Entity>
[[nodiscard]] ListSave SaveOrTell(Desktop& desktop, List& list, const EditedCopy<Entity>& edited, const char* notSaved)
{
    const ListSave result = [&] {
        const BusyPointer busy(desktop);
        return SaveInPlace(list, edited.entity, edited.position);
    }();
    if (result == ListSave::Failed) {
        desktop.Show(notSaved, listedit::kSaveTitle, Icon::Exclamation);
    }
    return result;
}

} // namespace ptk
