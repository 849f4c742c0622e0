// Why the records of a card are changed, as far as somebody says so.
#pragma once

#include "platform/system/Desktop.h"

namespace ptk {

class CurrentCard;
class Workplace;

// Offers the last reasons of the edit trail; the reason is asked for where the card's period was paid. That they cannot be read is logged.
[[nodiscard]] ReasonLine ReasonFor(Workplace& host, const CurrentCard& card);

} // namespace ptk
