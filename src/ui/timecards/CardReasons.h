// The reasons that are offered to somebody who changes the records of a card.
#pragma once

#include "platform/system/Desktop.h"

namespace ptk {

class CurrentCard;
class Workplace;

// A reason line with the last reasons of the edit trail to choose from. The user is asked for a reason where the card's period was paid. A
// failure to read the last reasons is logged, and none are offered.
[[nodiscard]] ReasonLine ReasonFor(Workplace& host, const CurrentCard& card);

} // namespace ptk
