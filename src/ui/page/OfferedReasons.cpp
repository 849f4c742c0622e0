#include "ui/page/OfferedReasons.h"

#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "startup/CController.h"
#include "store/trail/TrailReader.h"
#include "ui/page/PageHost.h"

namespace ptk {

namespace {

constexpr std::int32_t kOfferedReasons = 8;
constexpr auto kNoReasons = "The last reasons could not be read: ";

} // namespace

ReasonLine OfferedReasons(PageHost& host, bool wanted)
{
    ReasonLine line;
    line.wanted = wanted;
    Succeeds([&] { line.offered = ReadTrailReasons(Required(Required(host.Controller())->PTKDatabase()), kOfferedReasons); },
             [&](const Failure& reason) { host.Log(reason.Number(), kNoReasons + reason.Description()); });
    return line;
}

} // namespace ptk
