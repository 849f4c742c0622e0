// Closing a payday: what each person is paid for the period is kept, and taken back when it is reopened. Nobody is kept from working on.
#pragma once

#include "model/check/CardFigures.h"
#include "model/PayPeriod.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ptk {

class CJetDB;

struct PaydayOrder
{
    PayPeriod period;
    std::vector<std::int32_t> employees; // by their numbers, in the order of the answer; none: all, as each member says
    DateTime now;
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

// "closed Ann Lee: 80.00 + 0.50 hours, 88.00", "paid already Ann Lee", "not closed Ann Lee: 2 problems", "reopened Ann Lee".
[[nodiscard]] std::string TextOf(const PaydayLine& line);

// Both store all or nothing, as one step of the edit trail and in one transaction with reading the records, and write nothing where there
// is nothing to do. They raise 602, with the number as text, for an employee who is not there any more, and the failure of a database that
// cannot be read or written. REQUIRES: database is not nullptr; the period does not run backward.

// Without `employees` everybody who is offered time cards and has no problem, a difference to what was paid included; the others are left
// and named. With them, problems do not matter, but a card that cannot be computed raises 605, with the name as text. Whoever was paid
// these very figures is left.
[[nodiscard]] std::vector<PaydayLine> ClosePayday(const std::shared_ptr<CJetDB>& database, const PaydayOrder& order);

// Takes the newest closing of exactly this period back; without `employees` of everybody who has one, those last whom nobody knows.
[[nodiscard]] std::vector<PaydayLine> ReopenPayday(const std::shared_ptr<CJetDB>& database, const PaydayOrder& order);

} // namespace ptk
