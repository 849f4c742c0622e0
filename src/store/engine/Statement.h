// One prepared statement of an open database.
#pragma once

#include "platform/text/Value.h"

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ptk {

class RecordSet;

// A value for a parameter, which is given by its exact name without the colon.
struct Parameter
{
    const char* name;
    Value value;
};

// How a value is stored, in the order in which the engine compares values of different kinds; no comparison with a null is true.
enum class CellKind
{
    Null,
    Number,
    Text,
    Bytes
};

// A prepared statement. It must end before its database is closed. Every member raises the engine's failure when the engine refuses.
class Statement
{
public:
    static constexpr std::int32_t kAllRows = std::numeric_limits<std::int32_t>::max();

    Statement() = default;
    virtual ~Statement() = default;
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    // Assigns a parameter, which may be done again. An unknown name is refused with 25.
    virtual void Bind(const std::string& name, const Value& value) = 0;
    void Bind(std::span<const Parameter> parameters);

    // Raises what Run would raise before it runs: 25 for parameters that were never assigned, 1 for a statement that answers rows.
    virtual void RefuseUnlessAction() = 0;
    virtual void Run() = 0;

    // Answers the next rows, up to `most`; fewer only at their end. Refuses with 25 parameters that were never assigned, with 1 a statement
    // that answers no rows or changes anything. Raises 7 for more rows than memory should hold.
    virtual std::shared_ptr<RecordSet> ReadRows(std::int32_t most = kAllRows) = 0;

    // Calls `take` for each row, without keeping any: for small results many times over, between which parameters may be assigned. Refuses
    // and raises what ReadRows does.
    virtual void ForEachRow(const std::function<void()>& take) = 0;

    // Sends the question to a server ahead, so that it is on its way while the program does something else; the next reading takes the
    // answer, if nothing was bound before. Several statements may do so one after the other. Refuses and raises what ReadRows does. Does
    // nothing for a file.
    virtual void AskAhead() {}

    // The kind of a value in the row at which ForEachRow stands; columns count from 0. This and the readers below are for its `take`.
    [[nodiscard]] virtual CellKind KindAt(int column) const = 0;

    // The value as a number; 0 for what is none.
    [[nodiscard]] virtual std::int64_t Int64At(int column) const = 0;
    [[nodiscard]] virtual double RealAt(int column) const = 0;

    // The value as text, numbers as the engine writes them; valid until the next row.
    [[nodiscard]] virtual std::string_view TextAt(int column) const = 0;

    // The value as a date-time; none for any other form than YYYY-MM-DD HH:MM:SS.
    [[nodiscard]] virtual std::optional<DateTime> StoredDateAt(int column) const = 0;
};

} // namespace ptk
