#include "model/check/PunchFinding.h"

#include <utility>

namespace ptk {

Finding FindingOf(FindingKind kind, std::span<const Punch* const> punches, std::int64_t minutes, std::string text)
{
    Finding finding{kind, {}, minutes, punches.front()->start, {}, std::move(text)};
    for (const Punch* punch : punches) {
        finding.records.push_back(punch->id);
        if (!punch->IsOpen() && (!finding.to || *punch->end > *finding.to)) {
            finding.to = punch->end;
        }
    }
    return finding;
}

} // namespace ptk
