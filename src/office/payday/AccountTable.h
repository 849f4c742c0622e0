// The account of a payday as a table: what its cells say.
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

// Hours are regular and overtime ones, "80.00 + 0.50", of what is owed both together; of several closings the newest counts. What is owed
// is empty where nothing changed.
[[nodiscard]] AccountCells CellsOf(const AccountPerson& person);

// "10 of 12 are paid, 1 changed since".
[[nodiscard]] std::string AccountNews(const PaydayAccount& account);

} // namespace ptk
