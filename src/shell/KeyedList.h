// The 1-based list on which every list of the program is built: employees, companies, time records, time cards and texts.
#pragma once

#include "platform/Succeeds.h"
#include "shell/ShellErrors.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

namespace ptk {

// What all lists share, whatever their Insert and Remove answer. `Entry` is a shared reference (empty = nullptr) or text (empty = "").
// Positions are 1 to Count. Every operation except the properties first clears ErrorNumber.
template <typename Entry>
class KeyedStore
{
public:
    [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(m_entries.size()); }
    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }

    bool Create()
    {
        ClearError();
        return Count() >= 1 || Guarded(listerror::CreateFailed, [this] { m_entries.reserve(kFirstEntries); });
    }

    bool Destroy()
    {
        ClearError();
        return Guarded(listerror::DestroyFailed, [this] { m_entries.clear(); });
    }

    // The entry at a position; empty, without an error, outside 1 to Count.
    Entry Item(std::int32_t thisindex)
    {
        ClearError();
        Entry found{};
        if (Holds(thisindex)) {
            Guarded(listerror::ReadFailed, [&] { found = *At(thisindex); });
        }
        return found;
    }

protected:
    KeyedStore() { Create(); }
    ~KeyedStore() = default;

    // Inserts at a position: above Count at the end (amortised O(1)), below 1 at the front. False with 312 when it fails.
    bool InsertAt(Entry thisvalue, std::int32_t thisindex)
    {
        ClearError();
        const std::int32_t position = std::max(thisindex > Count() ? Count() + 1 : thisindex, 1);
        return Guarded(listerror::InsertFailed, [&] { m_entries.insert(At(position), std::move(thisvalue)); });
    }

    // Removes an entry and answers it; none with 351 outside 1 to Count, none with 313 when removing failed.
    std::optional<Entry> RemoveAt(std::int32_t thisindex)
    {
        ClearError();
        if (!Holds(thisindex)) {
            m_errorNumber = listerror::NoSuchPosition;
            return std::nullopt;
        }
        std::optional<Entry> removed;
        if (!Guarded(listerror::RemoveFailed, [&] { removed = TakeOut(At(thisindex)); })) {
            return std::nullopt;
        }
        return removed;
    }

    // The first position whose entry equals it (the same object for references, the same text for strings), or -1.
    std::int32_t PositionOf(const Entry& thisobject)
    {
        ClearError();
        std::int32_t position = -1;
        Guarded(listerror::ReadFailed, [&] {
            const auto found = std::find(m_entries.begin(), m_entries.end(), thisobject);
            if (found != m_entries.end()) {
                position = static_cast<std::int32_t>(std::distance(m_entries.begin(), found)) + 1;
            }
        });
        return position;
    }

    bool ClearError()
    {
        m_errorNumber = 0;
        return true;
    }
    void ErrorNumber(std::int32_t value) { m_errorNumber = value; }

    [[nodiscard]] bool Holds(std::int32_t thisindex) const { return thisindex >= 1 && thisindex <= Count(); }

    // The entries in order, for walks that need neither a copied reference nor a cleared error.
    [[nodiscard]] const std::vector<Entry>& Entries() const { return m_entries; }

    // Makes room for `count` entries; may raise bad_alloc.
    void Reserve(std::int32_t count) { m_entries.reserve(static_cast<std::size_t>(count)); }

    // Keeps the entries that satisfy it, in their order, in one pass.
    template <typename Predicate>
    void KeepOnly(Predicate keep)
    {
        std::erase_if(m_entries, [&](const Entry& entry) { return !keep(entry); });
    }

    // Runs the operation. True, or what it answers; false with this error number when it raised anything.
    template <typename Operation>
    bool Guarded(std::int32_t errorNumber, Operation operation)
    {
        return SucceedsOr(errorNumber, m_errorNumber, operation);
    }

private:
    using Iterator = typename std::vector<Entry>::iterator;

    Iterator At(std::int32_t thisindex) { return m_entries.begin() + (thisindex - 1); }

    Entry TakeOut(Iterator place)
    {
        Entry taken = std::move(*place);
        m_entries.erase(place);
        return taken;
    }

    static constexpr std::size_t kFirstEntries = 16;

    std::vector<Entry> m_entries;
    std::int32_t m_errorNumber = 0;
};

// A list whose Insert, Move and Remove answer the entry.
template <typename Entry>
class KeyedList : public KeyedStore<Entry>
{
public:
    // Inserts an entry and answers it; empty with 312 when it failed.
    Entry Insert(Entry thisvalue, std::int32_t thisindex)
    {
        Entry inserted = thisvalue;
        return this->InsertAt(std::move(thisvalue), thisindex) ? inserted : Entry{};
    }

    // Moves an entry; deliberately nothing but a removal and an insertion in a row: a `fromHere` outside 1 to Count inserts an empty entry.
    Entry Move(std::int32_t fromHere, std::int32_t toHere) { return Insert(Remove(fromHere), toHere); }

    // Removes an entry and answers it; empty with 351 or 313.
    Entry Remove(std::int32_t thisindex) { return this->RemoveAt(thisindex).value_or(Entry{}); }

    std::int32_t Find(const Entry& thisobject) { return this->PositionOf(thisobject); }

protected:
    KeyedList() = default;
    ~KeyedList() = default;
};

} // namespace ptk
