// Where many rows go on their way into one table: much faster than a statement each.
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
    int column; // of the table, from 0
    const char* why;
};

// REQUIRES: within a transaction of the engine, of which no other member is called meanwhile.
class RowSink
{
public:
    RowSink() = default;
    virtual ~RowSink() = default;
    RowSink(const RowSink&) = delete;
    RowSink& operator=(const RowSink&) = delete;

    // The row at which `from` stands, whose columns are the table's in their order. Raises Unfit, and the engine's failures.
    virtual void Add(const Statement& from) = 0;

    // All are there when it returns.
    virtual void Finish() = 0;
};

// A value as its column takes it; nothing for a null. A text is valid as long as the row.
using FitValue = std::variant<std::monostate, std::int64_t, double, std::string_view>;

// Raises Unfit for what does not keep its meaning in a column of that kind.
[[nodiscard]] FitValue FitInto(const StoredColumn& column, const Statement& from, int place);

} // namespace ptk
