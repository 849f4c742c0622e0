#include "jetreader/JetTable.h"

#include "jetreader/Refusal.h"

#include <strings.h>

namespace jet {

namespace {

constexpr int kPlaceMask = 0x1FFF;   // the bits of a row's place on its page; above them stand its marks
constexpr std::size_t kLeastMap = 5; // bytes

bool IsWhole(const MdbTableDef& table)
{
    return table.columns != nullptr && table.columns->len == table.num_cols && table.num_cols > 0 && table.num_cols < MDB_MAX_COLS &&
           table.usage_map != nullptr && table.map_sz >= kLeastMap;
}

} // namespace

JetTable::JetTable(const JetFile& file, std::uint32_t page) : m_handle(file.Handle())
{
    m_entry.mdb = m_handle;
    m_entry.object_type = MDB_TABLE;
    m_entry.table_pg = page;
    m_table = mdb_read_table(&m_entry);
    if (m_table == nullptr || mdb_read_columns(m_table) == nullptr || !IsWhole(*m_table)) {
        throw Refused(Refusal::Unreadable);
    }
    m_rowCount = m_table->num_rows;
    if (m_rowCount == 0) {
        m_table->num_rows = 1; // the library would not even look for rows
    }
    mdb_rewind_table(m_table);
}

JetTable::~JetTable()
{
    mdb_free_tabledef(m_table);
}

const MdbColumn& JetTable::Column(std::size_t column) const
{
    return *static_cast<const MdbColumn*>(g_ptr_array_index(m_table->columns, column));
}

std::optional<std::size_t> JetTable::FindColumn(const char* name) const
{
    for (std::size_t column = 0; column < ColumnCount(); ++column) {
        if (strcasecmp(Column(column).name, name) == 0) {
            return column;
        }
    }
    return std::nullopt;
}

// The library has read the row, but hands out texts made of it, in which values are lost; so the row is taken apart once more.
bool JetTable::Next()
{
    while (mdb_fetch_row(m_table) != 0) {
        int start = 0;
        std::size_t size = 0;
        if (mdb_find_row(m_handle, static_cast<int>(m_table->cur_row) - 1, &start, &size) == 0 &&
            mdb_crack_row(m_table, start & kPlaceMask, size, m_fields) >= 0) {
            return true;
        }
    }
    return false;
}

std::span<const unsigned char> JetTable::Bytes(std::size_t column, std::size_t width) const
{
    const MdbField& field = m_fields[column];
    const bool inside = field.start >= 0 && field.siz >= 0 && field.start <= m_handle->fmt->pg_size - field.siz;
    if (!inside || static_cast<std::size_t>(field.siz) < width) {
        return {};
    }
    return {m_handle->pg_buf + field.start, static_cast<std::size_t>(field.siz)};
}

} // namespace jet
