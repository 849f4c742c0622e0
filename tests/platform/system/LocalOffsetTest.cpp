#include "platform/system/LocalOffset.h"

#include "platform/text/Text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace ptk {

namespace {

// Five hours behind, in summer four: from the second Sunday of March to the first of November, at 2 o'clock each.
TEST(LocalOffsetTest, FollowsTheClockOnTheWall)
{
    const char* const before = std::getenv("TZ");
    const std::string zone = before == nullptr ? "" : before;
    ASSERT_EQ(setenv("TZ", "EST5EDT,M3.2.0,M11.1.0", 1), 0);
    tzset();
    struct Moment
    {
        const char* wall;
        std::int64_t hours;
    };
    for (const Moment& m :
         {Moment{"1/1/2026", -5}, Moment{"3/8/2026 1:59:59", -5}, Moment{"3/8/2026 2:30", -5}, Moment{"3/8/2026 3:00", -4},
          Moment{"7/1/2026", -4}, Moment{"11/1/2026 1:30", -4}, Moment{"11/1/2026 2:00", -5}, Moment{"11/2/2026", -5}}) {
        EXPECT_EQ(LocalOffset(ToDateTime(m.wall)), m.hours * 3600) << m.wall;
    }
    if (before == nullptr) {
        unsetenv("TZ");
    } else {
        setenv("TZ", zone.c_str(), 1);
    }
    tzset();
}

} // namespace

} // namespace ptk
