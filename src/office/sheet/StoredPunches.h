// Finds out which records of a file are in the database already.
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

// Knows the records of the database, and those of the file that were taken so far.
class StoredPunches
{
public:
    // Reads the stored records of the punches' employees that start between the first and the last of the punches, with one question for
    // some hundred people. A record whose start cannot be read is ignored; an end that cannot be read counts as not set. Raises what
    // reading raises.
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
