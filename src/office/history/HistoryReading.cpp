#include "office/history/HistoryReading.h"

#include <utility>

namespace ptk {

HistoryReading::HistoryReading(std::shared_ptr<CJetDB> database, TrailQuery query, std::shared_ptr<const EmployeeNames> names)
    : m_database(std::move(database)), m_query(std::move(query)), m_names(std::move(names))
{
    m_query.most = kEntries;
}

void HistoryReading::ReadOn()
{
    const auto entries = ReadTrail(m_database, m_query);
    for (const TrailEntry& entry : entries) {
        m_rows.push_back(HistoryCellsOf(entry, [this](std::int64_t id) { return m_names->Of(id); }));
        m_query.olderThan = entry.id;
    }
    m_done = std::ssize(entries) < kEntries;
}

} // namespace ptk
