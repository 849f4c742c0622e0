// Whom a payday is about: those of the list, and those who were paid and are in no list.
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
    std::shared_ptr<CEmployee> employee; // nullptr: there is none of that number
};

// Asked after each person; false ends the work, and what it had begun is given up.
using PaydayGoesOn = std::function<bool(std::size_t done, std::size_t all)>;

// Raises a failure without a number where the work is to end.
void AskWhetherToGoOn(const PaydayGoesOn& goesOn, std::size_t done, std::size_t all);

// The display name; "Employee 77" of nobody who is known.
[[nodiscard]] std::string NameOf(const PaydayPerson& person);

// As the database has them at this moment. Raises what reading it raises.
[[nodiscard]] std::shared_ptr<CEmployeeList> PresentEmployees(const std::shared_ptr<CJetDB>& database);

// In the list's order, behind them by number those whom nobody knows: who has a closing of the period, and with `offered` also everybody
// who is offered time cards.
[[nodiscard]] std::vector<PaydayPerson> PersonsWithClosings(CEmployeeList& employees, const Closings& closings, bool offered = false);

// In the given order.
[[nodiscard]] std::vector<PaydayPerson> PersonsOf(const std::vector<std::shared_ptr<CEmployee>>& employees);

} // namespace ptk
