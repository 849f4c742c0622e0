#include "office/overview/OverviewReading.h"

#include "model/check/PunchReader.h"
#include "store/CJetDB.h"
#include "store/engine/EngineWords.h"

#include <utility>

namespace ptk {

OverviewReading::OverviewReading(std::shared_ptr<CJetDB> database, Employees employees, const PayPeriod& period, DateTime now)
    : m_database(std::move(database)), m_employees(std::move(employees))
{
    m_overview.period = period;
    m_overview.made = now;
}

void OverviewReading::ReadOn(const std::function<bool()>& goOn)
{
    const CJetDB::Hold hold(m_database);
    if (!m_hasLimits) {
        m_overview.limits = LoadCheckLimits(m_database);
        m_hasLimits = true;
        m_overview.rows.reserve(m_employees.size());
    }
    const std::span<const std::shared_ptr<CEmployee>> left = std::span(m_employees).subspan(m_overview.rows.size());
    const std::size_t before = m_overview.rows.size();
    ReadOverview(m_overview, m_database, left, [&](const OverviewRow&) { return !EndsPortion(m_overview.rows.size() - before) || goOn(); });
}

// What was asked for together is of use together.
bool OverviewReading::EndsPortion(std::size_t read) const
{
    const bool inPortions = *m_database->Words().amongEmployees != '\0';
    return !inPortions || read % PunchReader::kAtOnce == 0;
}

} // namespace ptk
