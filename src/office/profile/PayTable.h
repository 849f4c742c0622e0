// What is to be paid to whom for a period, person by person, as an accountant's review has it: what profiles make tables of.
#pragma once

#include "model/PayPeriod.h"
#include "office/overview/Overview.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

class CEmployeeList;
class CJetDB;
class CTimeCard;

struct PaidHours
{
    std::string text;         // "7.50", as the card shows them
    std::int64_t minutes = 0; // the nearest whole ones, as the review has them
};

// Money as the card shows it; what is not on the card adds up to what is.
struct PaidPerson
{
    std::shared_ptr<const CEmployee> employee;
    PayPeriod period;
    PaidHours regular;
    PaidHours overtime;
    PaidHours pause; // taken off automatically
    std::string regularPay;
    std::string overtimePay;
    std::string gross;
    std::optional<OverviewRow> overview; // what the check says, where it was asked for
};

struct PayTableOrder
{
    std::shared_ptr<CJetDB> database;
    Employees people; // in the order of the rows
    PayPeriod period;
    DateTime now;                                               // for the check
    bool withOverview = false;                                  // read the check of each card, too
    std::size_t most = std::numeric_limits<std::size_t>::max(); // people who are looked at, from the first on
};

struct PayTable
{
    std::vector<PaidPerson> people;
    std::string missing; // "without Ann Lee: REASON; ...": whose cards could not be generated, as the review tells it; empty without any
};

// Before each person with the number of those done; false ends the reading.
using PersonTaken = std::function<bool(std::size_t done)>;

// Overtime is paid by the rounded product, regular hours by what is left of the gross pay: both together are what the card shows.
[[nodiscard]] PaidPerson PaidPersonOf(const CTimeCard& card, const PayPeriod& period);

// Of one moment: the database is held until it returns. Nothing when `taken` ended it. Raises the failure of a database that cannot be
// opened or read.
[[nodiscard]] std::optional<PayTable> ReadPayTable(const PayTableOrder& order, const PersonTaken& taken = {});

// Whom a review of these names holds. Of namesakes it holds the first one each time; `doubled` gets a sentence, without its full stop, for
// each name that stands there more than once.
[[nodiscard]] Employees PeopleOfReview(CEmployeeList& all, const std::vector<std::string>& names, std::vector<std::string>& doubled);

} // namespace ptk
