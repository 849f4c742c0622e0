// What the server answered to one statement.
#pragma once

#include "store/postgres/line/LibPq.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace ptk {

// Owns the library's result; rows and columns count from 0.
class ServerResult
{
public:
    explicit ServerResult(PGresult* result) : m_result(result) {}

    [[nodiscard]] PGresult* Get() const { return m_result.get(); }
    [[nodiscard]] bool HasRows() const { return Library().resultStatus(Get()) == PGRES_TUPLES_OK || IsOneOfMany(); }

    // Whether this is one row of many, after which others or the end are answered.
    [[nodiscard]] bool IsOneOfMany() const { return Library().resultStatus(Get()) == PGRES_SINGLE_TUPLE; }
    [[nodiscard]] int RowCount() const { return Library().ntuples(Get()); }
    [[nodiscard]] int ColumnCount() const { return Library().nfields(Get()); }
    [[nodiscard]] Oid TypeOf(int column) const { return Library().ftype(Get(), column); }
    [[nodiscard]] bool IsNull(int row, int column) const { return Library().getisnull(Get(), row, column) != 0; }

    // The text of a cell, valid as long as this lives.
    [[nodiscard]] std::string_view Text(int row, int column) const
    {
        return {Library().getvalue(Get(), row, column), static_cast<std::size_t>(Library().getlength(Get(), row, column))};
    }

    // Answers 0 for what is no whole number.
    [[nodiscard]] std::int64_t IntegerAt(int row, int column) const
    {
        return std::strtoll(Library().getvalue(Get(), row, column), nullptr, 10);
    }

private:
    struct Ending
    {
        void operator()(PGresult* result) const { Library().clear(result); }
    };

    std::unique_ptr<PGresult, Ending> m_result;
};

} // namespace ptk
