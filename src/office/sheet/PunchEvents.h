// Pairs clock-ins and clock-outs by person and time.
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

// The file's names of these columns, for the reasons of refusals.
struct EventColumns
{
    std::string time;
    std::string direction;
};

// Pairs each clock-in with the clock-out that follows it. Adds the records to `read`, in the order of the file, and refuses the events that
// make none. Nothing is guessed: two clock-ins in a row are both refused, and so is the clock-out behind them. A person's last clock-in
// without a clock-out is an open record. A clock-out more than `longestHours` after its clock-in is refused together with it.
void PairEvents(std::vector<PunchEvent> events, std::int32_t longestHours, const EventColumns& columns, PunchLines& read);

} // namespace ptk
