#include "office/history/HistoryTable.h"

#include "office/card/CardTexts.h"
#include "platform/text/DataText.h"

#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kOwnProgram = "ptk-admin";
constexpr auto kNothingYet = "Nothing was changed yet. Every change to time records, employees, companies and options will be listed here.";
constexpr auto kNothingFound = "Nothing was changed that fits what is chosen above.";

std::string Who(const TrailEntry& entry)
{
    const std::string person = EntryPerson(entry);
    return entry.program.empty() || entry.program == kOwnProgram ? person : fmt::format("{} ({})", person, entry.program);
}

} // namespace

HistoryCells HistoryHeading()
{
    return {"When", "Who", "Employee", "What"};
}

HistoryCells HistoryCellsOf(const TrailEntry& entry, const NameOfEmployee& nameOf)
{
    return {EntryMoment(entry), Who(entry), EntryEmployee(entry, nameOf), EntryDeed(entry, nameOf) + EntryReason(entry)};
}

std::string InOneText(const HistoryCells& cells)
{
    const auto& [when, who, employee, what] = cells;
    return fmt::format("{}, {}: {}{}", when, who, employee.empty() ? "" : employee + ", ", what);
}

std::string TabSeparated(const std::vector<HistoryCells>& lines)
{
    std::string text;
    for (const HistoryCells& cells : lines) {
        for (const std::string& cell : cells) {
            text += NoFormula(cell) + (&cell == &cells.back() ? '\n' : '\t');
        }
    }
    return text;
}

std::string HistoryNews(std::size_t shown, bool more)
{
    if (shown == 0) {
        return "";
    }
    const std::string changes = CountText(static_cast<std::int64_t>(shown), "change");
    return more ? fmt::format("The newest {}; older ones follow as you scroll down", changes) : changes;
}

std::string NoHistoryText(bool chosen)
{
    return chosen ? kNothingFound : kNothingYet;
}

} // namespace ptk
