#include "ui/page/OfferedReasons.h"

#include "platform/Succeeds.h"
#include "store/trail/TrailReader.h"
#include "ui/page/Workplace.h"

namespace ptk {

namespace {

constexpr std::int32_t kOfferedReasons = 8;
constexpr auto kNoReasons = "The last reasons could not be read: ";

} // namespace

ReasonLine OfferedReasons(Workplace& host, bool wanted)
{
    ReasonLine line;
    line.wanted = wanted;
    Succeeds([&] { line.offered = ReadTrailReasons(host.Database(), kOfferedReasons); },
             [&](const Failure& reason) { host.Log(reason.Number(), kNoReasons + reason.Description()); });
    return line;
}

} // namespace ptk
