#include "office/EmployeeTexts.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

TEST(SplitDisplayNameTest, EndsTheFirstNameAtTheFirstBlank)
{
    using Names = std::pair<std::string, std::string>;
    EXPECT_EQ(SplitDisplayName("Ann Lee"), Names("Ann", "Lee"));
    EXPECT_EQ(SplitDisplayName("Lee"), Names("", "Lee"));
    EXPECT_EQ(SplitDisplayName("Mary Ann Lee"), Names("Mary", "Ann Lee"));
    EXPECT_EQ(SplitDisplayName(" Lee"), Names("", "Lee"));
    EXPECT_EQ(SplitDisplayName("Ann "), Names("Ann", ""));
}

} // namespace

} // namespace ptk
