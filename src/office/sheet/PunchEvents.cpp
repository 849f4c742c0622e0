#include "office/sheet/PunchEvents.h"

#include <algorithm>
#include <fmt/format.h>
#include <span>
#include <tuple>

namespace ptk {

namespace {

constexpr std::int64_t kMinutesPerHour = 60;

constexpr auto kTwoIns = "two ins follow each other, so nobody can say what they belong to";
constexpr auto kOutOfTwoIns = "an out after two ins";
constexpr auto kNoIn = "an out without an in";
constexpr auto kTooLate = "the out comes more than {} hours after the in";

class Pairing
{
public:
    Pairing(std::int32_t longestHours, const EventColumns& columns, PunchLines& read)
        : m_longestHours(longestHours), m_columns(columns), m_read(read)
    {
    }

    // Pairs all events of one person. REQUIRES: they are in the order of their times.
    void Pair(std::span<const PunchEvent> events)
    {
        while (!events.empty()) {
            events = events.subspan(TakeFirst(events));
        }
    }

private:
    // Pairs or refuses the first events. Answers how many.
    std::size_t TakeFirst(std::span<const PunchEvent> events)
    {
        if (events.front().direction == Direction::Out) {
            Refuse(events.front(), m_columns.direction, kNoIn);
            return 1;
        }
        const auto out =
            std::find_if(events.begin(), events.end(), [](const PunchEvent& event) { return event.direction == Direction::Out; });
        const auto ins = static_cast<std::size_t>(out - events.begin());
        if (ins == 1) {
            return out == events.end() ? Open(events.front()) : Close(events[0], events[1]);
        }
        for (const PunchEvent& in : events.first(ins)) {
            Refuse(in, m_columns.direction, kTwoIns);
        }
        if (out == events.end()) {
            return ins;
        }
        Refuse(*out, m_columns.direction, kOutOfTwoIns);
        return ins + 1;
    }

    std::size_t Open(const PunchEvent& in)
    {
        m_read.punches.push_back({in.employee, in.time, DateTime(), in.line, 0});
        return 1;
    }

    std::size_t Close(const PunchEvent& in, const PunchEvent& out)
    {
        if (MinutesBetween(in.time, out.time) > m_longestHours * kMinutesPerHour) {
            const std::string reason = fmt::format(kTooLate, m_longestHours);
            Refuse(in, m_columns.time, reason);
            Refuse(out, m_columns.time, reason);
        } else {
            m_read.punches.push_back({in.employee, in.time, out.time, in.line, out.line});
        }
        return 2;
    }

    void Refuse(const PunchEvent& event, const std::string& column, std::string_view reason)
    {
        m_read.refused.push_back({event.line, fmt::format("{}: {}", column, reason)});
    }

    std::int64_t m_longestHours;
    const EventColumns& m_columns;
    PunchLines& m_read;
};

} // namespace

void PairEvents(std::vector<PunchEvent> events, std::int32_t longestHours, const EventColumns& columns, PunchLines& read)
{
    // Stable: events of one moment stay as they stand in the file.
    std::stable_sort(events.begin(), events.end(), [](const PunchEvent& left, const PunchEvent& right) {
        return std::tie(left.employee, left.time) < std::tie(right.employee, right.time);
    });
    Pairing pairing(longestHours, columns, read);
    for (auto first = events.begin(); first != events.end();) {
        const auto end = std::find_if(first, events.end(), [&](const PunchEvent& event) { return event.employee != first->employee; });
        pairing.Pair({first, end});
        first = end;
    }
    std::sort(read.punches.begin(), read.punches.end(),
              [](const SheetPunch& left, const SheetPunch& right) { return left.line < right.line; });
}

} // namespace ptk
