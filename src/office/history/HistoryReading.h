// Reads the history a page at a time, for whoever shows only its newest part at first.
#pragma once

#include "office/history/EmployeeNames.h"
#include "office/history/HistoryTable.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace ptk {

// The database is held within ReadOn alone. What is changed between two pages is not in the later ones: each goes on below the last entry.
class HistoryReading
{
public:
    // Of a page.
    static constexpr std::int32_t kEntries = 250;

    // The names say who the employees are. REQUIRES: neither pointer is nullptr.
    HistoryReading(std::shared_ptr<CJetDB> database, TrailQuery query, std::shared_ptr<const EmployeeNames> names);

    // The next page. Raises the failure of a database that cannot be opened or read; what was read before stays.
    void ReadOn();

    [[nodiscard]] bool IsDone() const { return m_done; }

    // As far as it has been read, newest first.
    [[nodiscard]] const std::vector<HistoryCells>& Rows() const { return m_rows; }

private:
    std::shared_ptr<CJetDB> m_database;
    TrailQuery m_query;
    std::shared_ptr<const EmployeeNames> m_names;
    std::vector<HistoryCells> m_rows;
    bool m_done = false;
};

} // namespace ptk
