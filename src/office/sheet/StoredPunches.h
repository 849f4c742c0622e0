// What of the records in a file stands in the database already.
#pragma once

#include "office/sheet/PunchLines.h"
#include "office/sheet/SheetPeople.h"

#include <cstddef>
#include <span>
#include <unordered_map>

namespace ptk {

enum class PunchPlace
{
    New,
    There,   // the same employee, start and end
    OtherEnd // the same employee and start, another end
};

// The records of the database, and those of the file as they are taken.
class StoredPunches
{
public:
    // Reads what starts when one of the punches starts, of their employees alone: some hundred people with each question. A start or an end
    // that cannot be read is like none. Raises what reading raises.
    StoredPunches(const PrepareStatement& prepare, std::span<const SheetPunch> punches);

    [[nodiscard]] PunchPlace PlaceOf(const SheetPunch& punch) const;

    void Take(const SheetPunch& punch) { m_ends.emplace(Key{punch.employee, punch.start}, punch.end); }

private:
    struct Key
    {
        std::int32_t employee;
        DateTime start;

        bool operator==(const Key&) const = default;
    };
    struct HashKey
    {
        std::size_t operator()(const Key& key) const noexcept;
    };

    void Read(const PrepareStatement& prepare, std::span<const std::int32_t> employees, DateTime first, DateTime last);

    std::unordered_multimap<Key, DateTime, HashKey> m_ends;
};

} // namespace ptk
