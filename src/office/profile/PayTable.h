// What each person is to be paid for a period, as an accountant's review shows it. Profiles make tables of it.
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
    std::int64_t minutes = 0; // the nearest whole minutes, as in the review
};

// What one person is paid. Money is as the card shows it; amounts that the card does not show add up to those that it shows.
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
    std::optional<OverviewRow> overview; // what the check says; none unless it was asked for
};

struct PayTableOrder
{
    std::shared_ptr<CJetDB> database;
    Employees people; // in the order of the rows
    PayPeriod period;
    DateTime now;                                               // moment of the check
    bool withOverview = false;                                  // whether to check each card, too
    std::size_t most = std::numeric_limits<std::size_t>::max(); // number of people to read, from the first on
};

struct PayTable
{
    std::vector<PaidPerson> people;
    std::string missing; // "without Ann Lee: REASON; ...", as in the review: whose cards could not be generated; empty if there are none
};

// Called before each person, with the number of those done; false ends the reading.
using PersonTaken = std::function<bool(std::size_t done)>;

// What the person is paid. Overtime pay is the rounded product; regular pay is what is left of the card's gross pay.
[[nodiscard]] PaidPerson PaidPersonOf(const CTimeCard& card, const PayPeriod& period);

// Reads what everybody is paid, all at one moment: the database is held until it returns. Nothing if `taken` ended it. Raises the failure
// of a database that cannot be opened or read.
[[nodiscard]] std::optional<PayTable> ReadPayTable(const PayTableOrder& order, const PersonTaken& taken = {});

// The employees that a review of these names holds. If several people have the same name, it holds the first of them each time. `doubled`
// gets a sentence, without its full stop, for each name that is given more than once.
[[nodiscard]] Employees PeopleOfReview(CEmployeeList& all, const std::vector<std::string>& names, std::vector<std::string>& doubled);

} // namespace ptk
