#include "office/sheet/SheetPeople.h"

#include "platform/text/Characters.h"
#include "store/engine/Statement.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr const char* kEmployees = "SELECT EmployeeID, EmployeeNumber, FirstName, LastName, SSNumber FROM Employee";
constexpr std::int32_t kTwoPeople = 0; // no employee has this ID

std::string TextAt(const Statement& row, int column)
{
    return row.KindAt(column) == CellKind::Text ? std::string(row.TextAt(column)) : std::string();
}

std::string DisplayName(const std::string& first, const std::string& last)
{
    return first.empty() ? last : first + ' ' + last;
}

bool AreDigits(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string_view WithoutZeros(std::string_view digits)
{
    const std::size_t first = digits.find_first_not_of('0');
    return first == std::string_view::npos ? digits.substr(digits.size() - 1) : digits.substr(first);
}

} // namespace

SheetPeople::SheetPeople(const PrepareStatement& prepare)
{
    const auto rows = prepare(kEmployees);
    rows->ForEachRow([&] {
        const auto employee = static_cast<std::int32_t>(rows->Int64At(0));
        Add(m_ids, std::to_string(employee), employee);
        if (rows->KindAt(1) == CellKind::Number) {
            Add(m_numbers, std::to_string(rows->Int64At(1)), employee);
        }
        Add(m_names, std::string(Trimmed(DisplayName(TextAt(*rows, 2), TextAt(*rows, 3)))), employee);
        Add(m_securityNumbers, std::string(Trimmed(TextAt(*rows, 4))), employee);
    });
}

void SheetPeople::Add(Index& index, std::string key, std::int32_t employee)
{
    if (key.empty()) {
        return;
    }
    const auto [at, isNew] = index.emplace(std::move(key), employee);
    if (!isNew) {
        at->second = kTwoPeople;
    }
}

void SheetPeople::Take(const Index& index, const std::string& key, std::optional<std::int32_t>& found)
{
    const auto at = index.find(key);
    if (at != index.end()) {
        found = found && *found != at->second ? kTwoPeople : at->second;
    }
}

std::variant<std::int32_t, PersonFault> SheetPeople::Find(SheetColumn by, std::string_view text) const
{
    if (text.empty()) {
        return PersonFault::None;
    }
    const auto asked = [&](SheetColumn column) { return by == column || by == SheetColumn::Employee; };
    std::optional<std::int32_t> found;
    if (AreDigits(text) && asked(SheetColumn::Number)) {
        Take(m_numbers, std::string(WithoutZeros(text)), found);
    }
    if (AreDigits(text) && asked(SheetColumn::Id)) {
        Take(m_ids, std::string(WithoutZeros(text)), found);
    }
    if (asked(SheetColumn::Name)) {
        Take(m_names, std::string(text), found);
    }
    if (asked(SheetColumn::Ssn)) {
        Take(m_securityNumbers, std::string(text), found);
    }
    if (!found) {
        return PersonFault::Unknown;
    }
    return *found == kTwoPeople ? std::variant<std::int32_t, PersonFault>(PersonFault::Several) : *found;
}

} // namespace ptk
