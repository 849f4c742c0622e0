// Fills a record set: first its columns, then cell after cell, row after row.
#pragma once

#include "store/engine/RecordSet.h"

#include <memory>

namespace ptk {

class RecordSet::Builder
{
public:
    Builder() : m_rows(std::make_shared<RecordSet>()) {}

    // `declared` is the column's declared type, empty for an expression.
    void AddColumn(std::string name, std::string_view declared);

    void AddNull() { Add(Kind::Null, 0); }
    void AddInteger(std::int64_t value) { Add(Kind::Integer, value); }
    void AddReal(double value);

    // Adds a text; in a date-time column one in the stored form becomes a date-time at once.
    void AddText(std::string_view value);

    // Adds bytes. No column has such values: reading the cell raises 13.
    void AddBinary() { Add(Kind::Binary, 0); }

    // Ends the row. Raises Failure 7 when the cells, or their texts, take more than a gigabyte.
    void EndRow();

    std::shared_ptr<RecordSet> Finish() { return std::move(m_rows); }

private:
    void Add(Kind kind, std::int64_t content, std::uint32_t size = 0);
    [[nodiscard]] Type NextType() const { return m_rows->m_headings[m_column].type; }

    std::shared_ptr<RecordSet> m_rows;
    std::size_t m_column = 0; // of the next cell
};

} // namespace ptk
