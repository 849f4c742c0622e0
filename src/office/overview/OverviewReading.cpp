#include "office/overview/OverviewReading.h"

#include "model/check/PunchReader.h"
#include "store/CJetDB.h"
#include "store/engine/EngineWords.h"

#include <utility>

namespace ptk {

OverviewReading::OverviewReading(std::shared_ptr<CJetDB> database, Employees employees, const PayPeriod& period, DateTime now,
                                 std::shared_ptr<CEmployeeList> all)
    : m_database(std::move(database)), m_employees(std::move(employees)), m_all(std::move(all)), m_offered(m_employees.size())
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
    m_overview.rows.size() < m_offered ? ReadRows(goOn) : ReadLeftOut(goOn);
}

bool OverviewReading::IsDone() const
{
    return m_overview.rows.size() == m_offered && (m_all == nullptr || (m_leftOut && m_leftOut->IsDone()));
}

void OverviewReading::ReadRows(const std::function<bool()>& goOn)
{
    const std::size_t before = m_overview.rows.size();
    const std::span<const std::shared_ptr<CEmployee>> left = std::span(m_employees).subspan(before);
    ReadOverview(m_overview, m_database, left, [&](const OverviewRow&) { return !EndsPortion(m_overview.rows.size() - before) || goOn(); });
}

void OverviewReading::ReadLeftOut(const std::function<bool()>& goOn)
{
    if (m_all == nullptr) {
        return;
    }
    if (!m_leftOut) {
        m_leftOut = FindLeftOut(m_overview, m_database, *m_all, m_employees);
    } else if (!m_leftOut->IsDone()) {
        const std::size_t before = m_leftOut->done;
        ptk::ReadLeftOut(m_overview, m_database, *m_leftOut, [&] { return !EndsPortion(m_leftOut->done - before) || goOn(); });
    }
}

void OverviewReading::TakeIn()
{
    TakeInLeftOut(m_overview, *m_all);
    m_offered = m_overview.rows.size();
}

// The people who were asked for by one question are read up to the end, so that no answer is thrown away.
bool OverviewReading::EndsPortion(std::size_t read) const
{
    const bool inPortions = *m_database->Words().amongEmployees != '\0';
    return !inPortions || read % PunchReader::kAtOnce == 0;
}

} // namespace ptk
