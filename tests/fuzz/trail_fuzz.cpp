// Whatever stands in an entry of the edit trail or in a stored moment: it is taken apart or is nothing, the same in memory that held
// another row before; and what is a moment is written as it stood.
#include "fuzz/Targets.h"
#include "platform/text/Text.h"
#include "store/engine/StoredDate.h"
#include "store/trail/TrailJson.h"

namespace {

bool AreEqual(const ptk::TrailRow& one, const ptk::TrailRow& other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), [](const ptk::TrailValue& a, const ptk::TrailValue& b) {
        return a.column == b.column && a.kind == b.kind && a.text == b.text;
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static ptk::TrailRow used;
    const std::string_view text = ptk::TextIn({data, size});
    ptk::TrailRow fresh;
    const bool isRow = ptk::ParseTrailRow(text, fresh);
    ptk::Require(ptk::ParseTrailRow(text, used) == isRow && (!isRow || AreEqual(fresh, used)));
    const auto moment = ptk::FromStoredText(text);
    ptk::Require(!moment || ptk::StoredText(*moment) == text);
    return 0;
}
