// A shift for several people on a day, and what is told of it.
#include "office/card/AddedShift.h"

#include "model/CEmployee.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

TEST(AddedShiftTest, SaysWhatWillBeStoredOrWhatIsMissing)
{
    const auto person = [](const char* last) {
        auto employee = std::make_shared<CEmployee>();
        employee->LastName(last);
        return employee;
    };
    const std::vector<std::shared_ptr<CEmployee>> both{person("Lee"), person("Kim")};
    struct
    {
        const char* day;
        const char* start;
        const char* end;
        const char* said;
    } const cases[] = {
        {"", "8", "17", "Choose the day."},
        {"3/5/2003", "", "17", "Type when the shift begins and when it ends: 830, 8:30, 8.30, 830a, 5p or 17."},
        {"3/5/2003", "8", "late", "Type when the shift begins and when it ends: 830, 8:30, 8.30, 830a, 5p or 17."},
        {"3/5/2003", "8", "800a", "Begin and end are the same: there is no shift."},
        {"3/5/2003", "8", "4:30p", "03/05/2003 08:00 AM - 04:30 PM: 8:30 hours for each of 2 people."},
        {"3/5/2003", "22", "6", "03/05/2003 10:00 PM - 03/06/2003 06:00 AM: 8:00 hours for each of 2 people."},
        {"3/5/2003", "8", "7:30a",
         "03/05/2003 08:00 AM - 03/06/2003 07:30 AM: 23:30 hours for each of 2 people. That is more than the longest usual shift of 16 "
         "hours."},
    };
    for (const auto& row : cases) {
        const AddedShift shift{*row.day == '\0' ? std::nullopt : std::optional(ToDateTime(row.day)), TypedTime(row.start),
                               TypedTime(row.end)};
        EXPECT_EQ(AddedShiftForecast(shift, both, std::set<std::int64_t>{}, 16), row.said);
    }
    const AddedShift shift{ToDateTime("3/5/2003"), TypedTime("8"), TypedTime("9")};
    EXPECT_EQ(AddedShiftForecast(shift, {both.front()}, std::set<std::int64_t>{both.front()->EmployeeID()}, 16),
              "03/05/2003 08:00 AM - 09:00 AM: 1:00 hours for Lee. On that day there are records of: Lee.");
    EXPECT_EQ(AddedShiftForecast(shift, {both.front()}, std::nullopt, 16),
              "03/05/2003 08:00 AM - 09:00 AM: 1:00 hours for Lee. Who has records on that day already could not be read.");
}

} // namespace

} // namespace ptk
