// Fills a record set: first its columns, then cell after cell, row after row.
#pragma once

#include "store/engine/RecordSet.h"

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

    // A date-time column takes its stored form apart at once.
    void AddText(std::string_view value);

    // No column has such values; reading the cell is a type mismatch.
    void AddBinary() { Add(Kind::Binary, 0); }

    // Raises Failure 7 when the rows take more than a gigabyte.
    void EndRow();

    std::shared_ptr<RecordSet> Finish() { return std::move(m_rows); }

private:
    void Add(Kind kind, std::int64_t content, std::uint32_t size = 0);
    [[nodiscard]] Type NextType() const { return m_rows->m_headings[m_column].type; }

    std::shared_ptr<RecordSet> m_rows;
    std::size_t m_column = 0; // of the next cell
};

} // namespace ptk
