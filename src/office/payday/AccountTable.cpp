#include "office/payday/AccountTable.h"

#include "platform/text/DayText.h"
#include "platform/text/DecimalSum.h"

#include <algorithm>
#include <fmt/format.h>
#include <string_view>

namespace ptk {

namespace {

constexpr auto kNeverPaid = "not paid";
constexpr auto kSomeDay = "yes"; // paid, but the day is not known
constexpr auto kNoFigures = "not readable";

std::string Hours(const std::string& regular, const std::string& overtime)
{
    return regular + " + " + overtime;
}

void ShowPaid(AccountCells& cells, const Closing& paid)
{
    cells[static_cast<std::size_t>(AccountColumn::PaidOn)] = paid.paidAt ? DayText(*paid.paidAt) : kSomeDay;
    cells[static_cast<std::size_t>(AccountColumn::PaidHours)] = Hours(paid.regular, paid.overtime);
    cells[static_cast<std::size_t>(AccountColumn::Paid)] = paid.gross;
}

// The sum of two differences, with its sign.
std::string Together(std::string_view regular, std::string_view overtime)
{
    DecimalSum sum;
    for (const std::string_view hours : {regular, overtime}) {
        sum.Add(hours.substr(hours.starts_with('+') ? 1 : 0));
    }
    const std::string text = sum.Text();
    return text.starts_with('-') ? text : '+' + text;
}

void ShowOwed(AccountCells& cells, const PaidDifference& owed)
{
    if (owed.regular && owed.overtime) {
        cells[static_cast<std::size_t>(AccountColumn::OwedHours)] = Together(*owed.regular, *owed.overtime);
    }
    cells[static_cast<std::size_t>(AccountColumn::Owed)] = owed.gross.value_or(kNoFigures);
}

} // namespace

AccountCells AccountHeading()
{
    return {"Name", "Paid On", "Paid Hours", "Paid", "Hours Now", "Now", "Hours Owed", "Owed", "Changes"};
}

AccountCells AccountCellsOf(const AccountPerson& person)
{
    AccountCells cells{PersonName(person.person), kNeverPaid};
    if (!person.paid.empty()) {
        ShowPaid(cells, person.paid.back());
    }
    if (person.now) {
        cells[static_cast<std::size_t>(AccountColumn::NowHours)] = Hours(person.now->regular, person.now->overtime);
        cells[static_cast<std::size_t>(AccountColumn::Now)] = person.now->gross;
    } else if (person.person.employee != nullptr) {
        cells[static_cast<std::size_t>(AccountColumn::Now)] = kNoFigures;
    }
    if (person.changed) {
        ShowOwed(cells, *person.changed);
    }
    if (!person.changes.empty()) {
        cells[static_cast<std::size_t>(AccountColumn::Changes)] = std::to_string(person.changes.size());
    }
    return cells;
}

std::string AccountNews(const PaydayAccount& account)
{
    const auto paid =
        std::count_if(account.persons.begin(), account.persons.end(), [](const auto& person) { return !person.paid.empty(); });
    const auto changed =
        std::count_if(account.persons.begin(), account.persons.end(), [](const auto& person) { return person.changed.has_value(); });
    return fmt::format("{} of {} are paid, {} changed since", paid, account.persons.size(),
                       changed == 0 ? "none" : std::to_string(changed));
}

} // namespace ptk
