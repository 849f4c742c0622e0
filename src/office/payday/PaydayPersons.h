// The people that a payday is about: those in the list, and those who were paid and are not in the list.
#pragma once

#include "model/payday/Closing.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ptk {

class CEmployee;
class CEmployeeList;
class CJetDB;

struct PaydayPerson
{
    std::int64_t id = 0;
    std::shared_ptr<CEmployee> employee; // nullptr: no employee has this ID any more
};

// Asked after each person; false ends the work, and what it had begun is given up.
using PaydayGoesOn = std::function<bool(std::size_t done, std::size_t all)>;

// Raises a failure without a number if `goesOn` answers false.
void AskWhetherToGoOn(const PaydayGoesOn& goesOn, std::size_t done, std::size_t all);

// The display name; "Employee 77" if there is no such employee any more.
[[nodiscard]] std::string PersonName(const PaydayPerson& person);

// Everybody who has a closing of the period, and with `offered` also everybody who is offered time cards. They stand in the list's order;
// behind it, by ID, those who are no employees any more.
[[nodiscard]] std::vector<PaydayPerson> PersonsWithClosings(CEmployeeList& employees, const Closings& closings, bool offered = false);

// Makes a payday's persons of these employees, in their order.
[[nodiscard]] std::vector<PaydayPerson> PersonsOf(const std::vector<std::shared_ptr<CEmployee>>& employees);

} // namespace ptk
