// Closes a payday, which stores what each person is paid for the period, and reopens it, which deletes that again. Neither keeps anybody
// from working on.
#pragma once

#include "model/check/CardFigures.h"
#include "model/PayPeriod.h"
#include "office/payday/PaydayPersons.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ptk {

class CJetDB;
class Failure;

struct PaydayOrder
{
    PayPeriod period;
    std::vector<std::int32_t> employees; // EmployeeIDs, in the order of the answer; empty: everybody whom the function's comment names
    DateTime now;
    std::vector<std::int32_t> takenIn{}; // EmployeeIDs outside the list, treated as if in it; counts only without `employees`
};

enum class PaydayDeed : std::uint8_t
{
    Closed,
    PaidAlready,
    NotClosed,
    Reopened
};

struct PaydayLine
{
    PaydayDeed deed = PaydayDeed::Closed;
    std::string name;          // "Employee 77" if there is no such employee any more
    CardFigures figures;       // set only for Closed
    std::int32_t problems = 0; // set only for NotClosed
};

// What was done for several people, and for whom nothing was done, in one line: "38 closed, 1 paid already, 2 not closed: Bo Kim (1
// problem), Ann Lee (2 problems)". Empty without people.
[[nodiscard]] std::string NewsOf(const std::vector<PaydayLine>& lines);

// What was done for one person: "closed Ann Lee: 80.00 + 0.50 hours, 88.00", "paid already Ann Lee", "not closed Ann Lee: 2 problems",
// "reopened Ann Lee".
[[nodiscard]] std::string TextOf(const PaydayLine& line);

// Why ClosePayday or ReopenPayday was refused, for people: "the time card of Ann Lee cannot be computed".
[[nodiscard]] std::string PaydayRefusal(const Failure& failure);

// ClosePayday and ReopenPayday store all or nothing, as one step of the edit trail; the same transaction reads the records. They write
// nothing if there is nothing to do, or if `goesOn` ends the work. They raise 602, with the EmployeeID as text, for an employee who is
// gone, and the failure of a database that cannot be read or written. REQUIRES: database is not nullptr; the period does not run backward.

// Closes the period. Without `employees`, it takes everybody who is offered time cards and has no problem; a difference to what was paid is
// a problem, too. The others are named in the answer and left alone. With `employees`, problems do not matter, but a card that cannot be
// computed raises 605, with the name as text. Nobody is closed again with the very figures that were paid already.
[[nodiscard]] std::vector<PaydayLine> ClosePayday(const std::shared_ptr<CJetDB>& database, const PaydayOrder& order,
                                                  const PaydayGoesOn& goesOn = {});

// Deletes each person's newest closing of exactly this period. Without `employees`: of all who have one, the unknown ones last.
[[nodiscard]] std::vector<PaydayLine> ReopenPayday(const std::shared_ptr<CJetDB>& database, const PaydayOrder& order);

} // namespace ptk
