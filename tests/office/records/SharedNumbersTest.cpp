#include "office/records/SharedNumbers.h"
#include "model/CEmployeeList.h"
#include "office/records/EmployeeTexts.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

TEST(SharedNumbersTest, SaysWhoseTheNumbersAreBesides)
{
    CEmployeeList list;
    const auto add = [&](std::int32_t id, const char* name, std::int32_t number, const char* ssn) {
        EmployeeRow row;
        row.EmployeeID = id;
        row.LastName = name;
        row.EmployeeNumber = number;
        row.SSN = ssn;
        list.InsertLoaded(row, list.Count() + 1);
    };
    add(40, "Lee", 5, "111-11-1111");
    add(41, "Kim", 6, "");
    struct Case
    {
        const char* id;
        const char* number;
        const char* ssn;
        const char* notice;
    };
    for (const Case& c : {Case{"40", "5", "111-11-1111", ""}, // her own
                          {"", "7", "", ""},                  // nobody else's, and none
                          {"41", " 05", "1", "The employee number is Lee's too"},
                          {"40", "6", "", "The employee number is Kim's too"},
                          {"", "5a", "111111111", "The SS number is Lee's too"},
                          {"", "6", "111 11 1111", "The employee number is Kim's too. The SS number is Lee's too"},
                          {"", "99999999999", "", ""}}) {
        EmployeeTexts typed;
        typed.id = c.id;
        typed.number = c.number;
        typed.ssn = c.ssn;
        EXPECT_EQ(SharedNumbersNotice(list, typed), c.notice) << c.number << ", " << c.ssn;
    }
}

} // namespace

} // namespace ptk
