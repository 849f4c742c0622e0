// The reasons that are offered to somebody who changes the records of a card.
#pragma once

#include "platform/system/Desktop.h"

namespace ptk {

class CurrentCard;
class Workplace;

// The last reasons of the edit trail to choose from; a reason is asked for where the card's period was paid. When the last reasons cannot
// be read, that is logged.
[[nodiscard]] ReasonLine ReasonFor(Workplace& host, const CurrentCard& card);

} // namespace ptk
