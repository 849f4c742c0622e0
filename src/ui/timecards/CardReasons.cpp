#include "ui/timecards/CardReasons.h"

#include "ui/page/OfferedReasons.h"
#include "ui/timecards/CurrentCard.h"

namespace ptk {

ReasonLine ReasonFor(Workplace& host, const CurrentCard& card)
{
    return OfferedReasons(host, card.IsPaid());
}

} // namespace ptk
