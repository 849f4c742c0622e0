// A table of the file: its columns, and its rows one after the other.
#pragma once

#include "jetreader/JetFile.h"

#include <cstdint>
#include <optional>
#include <span>

namespace jet {

class JetTable
{
public:
    // Reads the definition of a table at `page`. Raises Refused when that, or the map of the table's rows, is damaged.
    JetTable(const JetFile& file, std::uint32_t page);
    ~JetTable();
    JetTable(const JetTable&) = delete;
    JetTable& operator=(const JetTable&) = delete;

    [[nodiscard]] std::size_t ColumnCount() const { return m_table->num_cols; }
    [[nodiscard]] const MdbColumn& Column(std::size_t column) const;

    // Finds a column by its name, without regard to letter case.
    [[nodiscard]] std::optional<std::size_t> FindColumn(const char* name) const;

    // The number of rows that the table's definition says; it may be wrong.
    [[nodiscard]] std::uint32_t RowCount() const { return m_rowCount; }

    // Goes to the next row that is not deleted; false behind the last.
    bool Next();

    [[nodiscard]] bool IsNull(std::size_t column) const { return m_fields[column].is_null != 0; }

    // The stored bytes of a field; empty where they do not lie inside the row's page, or are fewer than `width`. Valid until the next row.
    [[nodiscard]] std::span<const unsigned char> Bytes(std::size_t column, std::size_t width = 0) const;

private:
    MdbCatalogEntry m_entry{};
    MdbHandle* m_handle;
    MdbTableDef* m_table = nullptr;
    std::uint32_t m_rowCount = 0;
    MdbField m_fields[MDB_MAX_COLS]{};
};

} // namespace jet
