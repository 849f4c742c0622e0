// Whatever a stored profile holds, it is refused, or it is a profile whose own text is read as that profile again.
#include "fuzz/Targets.h"
#include "office/profile/ProfileText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ptk::MayFail([&] {
        const ptk::Profile profile = ptk::ReadProfile("Any", ptk::TextIn({data, size}));
        ptk::Require(ptk::ReadProfile("Any", ptk::ProfileText(profile)) == profile);
    });
    return 0;
}
