// Writes many rows into one table, much faster than a statement for each.
#pragma once

#include "store/engine/StoredTable.h"

#include <cstdint>
#include <string_view>
#include <variant>

namespace ptk {

class Statement;

// A value that its column cannot take.
struct Unfit
{
    int column; // of the table, counted from 0
    const char* why;
};

// A sink for rows. REQUIRES: it lives within a transaction of the engine, of which no other member is called meanwhile.
class RowSink
{
public:
    RowSink() = default;
    virtual ~RowSink() = default;
    RowSink(const RowSink&) = delete;
    RowSink& operator=(const RowSink&) = delete;

    // Adds the row at which `from` stands; its columns are the table's in their order. Raises Unfit, and the engine's failures.
    virtual void Add(const Statement& from) = 0;

    // Ends the writing: all rows are in the table when it returns.
    virtual void Finish() = 0;
};

// A value in the form that its column takes; nothing for a null. A text is valid as long as the row.
using FitValue = std::variant<std::monostate, std::int64_t, double, std::string_view>;

// The value at `place` for its column; raises Unfit where it would not keep its meaning in a column of that kind.
[[nodiscard]] FitValue FitInto(const StoredColumn& column, const Statement& from, int place);

} // namespace ptk
