// Closing a payday: what each person is paid for the period is kept, and taken back when it is reopened. Nobody is kept from working on.
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
    std::vector<std::int32_t> employees; // by their numbers, in the order of the answer; none: all, as each member says
    DateTime now;
    std::vector<std::int32_t> takenIn{}; // who is in no list and is to be judged as if he were; counts without `employees` only
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
    std::string name;          // "Employee 77" of nobody who is known
    CardFigures figures;       // of somebody closed
    std::int32_t problems = 0; // of somebody not closed
};

// What was done for several people, and for whom it was not, in one line: "38 closed, 1 paid already, 2 not closed: Bo Kim (1 problem), Ann
// Lee (2 problems)". Empty where there was nobody.
[[nodiscard]] std::string NewsOf(const std::vector<PaydayLine>& lines);

// "closed Ann Lee: 80.00 + 0.50 hours, 88.00", "paid already Ann Lee", "not closed Ann Lee: 2 problems", "reopened Ann Lee".
[[nodiscard]] std::string TextOf(const PaydayLine& line);

// Why either of the following was refused, for people: "the time card of Ann Lee cannot be computed".
[[nodiscard]] std::string PaydayRefusal(const Failure& failure);

// Both store all or nothing, as one step of the edit trail and in one transaction with reading the records, and write nothing where there
// is nothing to do. They raise 602, with the number as text, for an employee who is not there any more, and the failure of a database that
// cannot be read or written. REQUIRES: database is not nullptr; the period does not run backward. goesOn: nothing is stored where it ends
// the work.

// Without `employees` everybody who is offered time cards and has no problem, a difference to what was paid included; the others are left
// and named. With them, problems do not matter, but a card that cannot be computed raises 605, with the name as text. Whoever was paid
// these very figures is left.
[[nodiscard]] std::vector<PaydayLine> ClosePayday(const std::shared_ptr<CJetDB>& database, const PaydayOrder& order,
                                                  const PaydayGoesOn& goesOn = {});

// Takes the newest closing of exactly this period back; without `employees` of everybody who has one, those last whom nobody knows.
[[nodiscard]] std::vector<PaydayLine> ReopenPayday(const std::shared_ptr<CJetDB>& database, const PaydayOrder& order);

} // namespace ptk
