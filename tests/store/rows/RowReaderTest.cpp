#include "store/rows/RowReader.h"

#include <gtest/gtest.h>

#include <tuple>

namespace ptk {

namespace {

template <typename Fields>
constexpr std::size_t kCountOf = std::tuple_size_v<std::decay_t<Fields>>;

// A row is read column by column into its fields: where one list is longer, every field behind is another one's.
TEST(RowReaderTest, EachColumnThatIsReadHasItsField)
{
    EXPECT_EQ(kCountOf<decltype(kEmployeeFields)>, EmployeeTable().columns.size());
    EXPECT_EQ(kCountOf<decltype(kCompanyFields)>, CompanyTable().columns.size());
    EXPECT_EQ(kCountOf<decltype(kTimeRecordFields)>, TimeRecordTable().columns.size());
}

} // namespace

} // namespace ptk
