// The account of a payday as a table: the texts of its cells.
#pragma once

#include "office/payday/PaydayAccount.h"

#include <array>
#include <cstddef>
#include <string>

namespace ptk {

enum class AccountColumn
{
    Name,
    PaidOn,
    PaidHours,
    Paid,
    NowHours,
    Now,
    OwedHours,
    Owed,
    Changes
};

inline constexpr std::size_t kAccountColumns = 9;
using AccountCells = std::array<std::string, kAccountColumns>; // by AccountColumn

[[nodiscard]] AccountCells AccountHeading();

// The cells of one person's row. Hours are regular and overtime, "80.00 + 0.50", but the owed hours are both together. If the period was
// closed several times, the newest closing counts. The owed cells are empty if nothing changed.
[[nodiscard]] AccountCells AccountCellsOf(const AccountPerson& person);

// "10 of 12 are paid, 1 changed since".
[[nodiscard]] std::string AccountNews(const PaydayAccount& account);

} // namespace ptk
