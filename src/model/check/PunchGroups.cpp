#include "model/check/PunchGroups.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace ptk {

namespace {

bool HasNoLength(const Punch* punch)
{
    return punch->Minutes() == 0;
}

// Goes through the shifts from the earliest start on. The part of a shift that lies before the latest end so far is covered at least twice.
class OverlapSweep
{
public:
    void Take(const Punch* punch)
    {
        const std::int64_t start = punch->start->MinuteNumber();
        const std::int64_t end = punch->end->MinuteNumber();
        if (m_group.punches.empty() || start >= m_latestEnd) {
            Begin(end);
        } else {
            const std::int64_t sharedUntil = std::min(end, m_latestEnd);
            m_group.minutes += std::max<std::int64_t>(sharedUntil - std::max(start, m_countedUntil), 0);
            m_countedUntil = std::max(m_countedUntil, sharedUntil);
            m_latestEnd = std::max(m_latestEnd, end);
        }
        m_group.punches.push_back(punch);
    }

    std::vector<PunchGroup> Finish()
    {
        Keep();
        return std::move(m_groups);
    }

private:
    void Begin(std::int64_t end)
    {
        Keep();
        m_group.punches.clear();
        m_group.minutes = 0;
        m_latestEnd = end;
        m_countedUntil = std::numeric_limits<std::int64_t>::min();
    }

    void Keep()
    {
        if (m_group.punches.size() > 1) {
            m_groups.push_back(std::move(m_group));
        }
    }

    std::vector<PunchGroup> m_groups;
    PunchGroup m_group;
    std::int64_t m_latestEnd = 0;
    std::int64_t m_countedUntil = 0;
};

} // namespace

std::vector<PunchGroup> OverlappingPunches(std::span<const Punch* const> punches)
{
    OverlapSweep sweep;
    for (const Punch* punch : punches) {
        if (!HasNoLength(punch)) {
            sweep.Take(punch);
        }
    }
    return sweep.Finish();
}

std::vector<PunchGroup> SameStartPunches(std::span<const Punch* const> punches)
{
    std::vector<PunchGroup> groups;
    for (auto first = punches.begin(); first != punches.end();) {
        const auto last = std::find_if(first, punches.end(), [&](const Punch* punch) { return punch->start != (*first)->start; });
        if (last - first > 1 && std::any_of(first, last, HasNoLength)) {
            PunchGroup& group = groups.emplace_back(PunchGroup{{first, last}, 0});
            for (const Punch* punch : group.punches) {
                group.minutes += punch->Minutes();
            }
        }
        first = last;
    }
    return groups;
}

} // namespace ptk
