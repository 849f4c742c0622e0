#include "ui/timecards/CardReasons.h"

#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "startup/CController.h"
#include "store/trail/TrailReader.h"
#include "ui/page/PageHost.h"
#include "ui/timecards/CurrentCard.h"

namespace ptk {

namespace {

constexpr std::int32_t kOfferedReasons = 8;
constexpr auto kNoReasons = "The last reasons could not be read: ";

} // namespace

ReasonLine ReasonFor(PageHost& host, const CurrentCard& card)
{
    ReasonLine line;
    line.wanted = card.IsPaid();
    Succeeds([&] { line.offered = ReadTrailReasons(Required(Required(host.Controller())->PTKDatabase()), kOfferedReasons); },
             [&](const Failure& reason) { host.Log(reason.Number(), kNoReasons + reason.Description()); });
    return line;
}

} // namespace ptk
