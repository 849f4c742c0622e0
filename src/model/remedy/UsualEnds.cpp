#include "model/remedy/UsualEnds.h"

#include "store/CJetDB.h"
#include "store/engine/Statement.h"
#include "store/PunchSQL.h"

#include <algorithm>
#include <utility>

namespace ptk {

namespace {

constexpr std::size_t kFewest = 3;
constexpr std::int64_t kMinutesADay = 1440;

} // namespace

std::optional<std::int64_t> UsualEnd(std::vector<std::int64_t> ends)
{
    if (ends.size() < kFewest) {
        return std::nullopt;
    }
    const auto middle = ends.begin() + static_cast<std::ptrdiff_t>((ends.size() - 1) / 2);
    std::nth_element(ends.begin(), middle, ends.end());
    return *middle;
}

UsualEnds::UsualEnds(std::shared_ptr<CJetDB> database) : m_database(std::move(database)) {}

UsualEnds::~UsualEnds() = default;

std::optional<std::int64_t> UsualEnds::At(std::int32_t employeeID, DateTime start)
{
    if (m_earlier == nullptr) {
        RequireOpen(*m_database);
        m_earlier = RequireSelect(*m_database, punchsql::EarlierEnds(m_database->Words()));
    }
    m_earlier->Bind("employee", employeeID);
    m_earlier->Bind("start", start);
    m_earlier->Bind("minute", static_cast<std::int32_t>((start.MinuteNumber() % kMinutesADay + kMinutesADay) % kMinutesADay));
    std::vector<std::int64_t> ends;
    m_earlier->ForEachRow([&] {
        const auto end = m_earlier->StoredDateAt(0);
        if (end) {
            ends.push_back(end->SecondOfDay());
        }
    });
    return UsualEnd(std::move(ends));
}

} // namespace ptk
