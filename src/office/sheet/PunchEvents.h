// Comings and goings, paired by person and time.
#pragma once

#include "office/sheet/PunchLines.h"

namespace ptk {

struct PunchEvent
{
    std::int32_t employee = 0;
    DateTime time;
    std::int64_t line = 0;
    Direction direction = Direction::In;
};

// What the file calls the columns, for the reasons.
struct EventColumns
{
    std::string time;
    std::string direction;
};

// Pairs each coming with the going that follows it, and adds to `read` the records, in the order of the file, and the events that make
// none. Nothing is guessed: of two comings in a row neither counts, nor does the going behind them. A person's last coming without a going
// is an open record. `longestHours`: a going later than that is refused together with its coming.
void PairEvents(std::vector<PunchEvent> events, std::int32_t longestHours, const EventColumns& columns, PunchLines& read);

} // namespace ptk
