// Reads the history in portions, so that a window can show its newest part first.
#pragma once

#include "office/history/EmployeeNames.h"
#include "office/history/HistoryTable.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace ptk {

// Reads the entries of a query, newest first. The database is held only within ReadOn. Changes made between two portions do not appear in
// the later ones, which continue below the last entry.
class HistoryReading
{
public:
    // The entries of a portion.
    static constexpr std::int32_t kEntries = 250;

    // REQUIRES: neither pointer is nullptr.
    HistoryReading(std::shared_ptr<CJetDB> database, TrailQuery query, std::shared_ptr<const EmployeeNames> names);

    // Reads the next portion. Raises the failure of a database that cannot be opened or read; what was read before stays.
    void ReadOn();

    [[nodiscard]] bool IsDone() const { return m_done; }

    // The rows read so far, newest first.
    [[nodiscard]] const std::vector<HistoryCells>& Rows() const { return m_rows; }

private:
    std::shared_ptr<CJetDB> m_database;
    TrailQuery m_query;
    std::shared_ptr<const EmployeeNames> m_names;
    std::vector<HistoryCells> m_rows;
    bool m_done = false;
};

} // namespace ptk
