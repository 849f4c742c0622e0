// Finds the employee that a cell of a file means, by number, ID, name or social security number. A cell that fits two people means nobody.
#pragma once

#include "office/sheet/SheetColumns.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>

namespace ptk {

class Statement;

// Prepares a statement in the database's own words, within a transaction or outside.
using PrepareStatement = std::function<std::unique_ptr<Statement>(const std::string& sql)>;

enum class PersonFault
{
    None, // the cell is empty
    Unknown,
    Several
};

class SheetPeople
{
public:
    // Reads every employee, active or not, with one question. Raises what reading raises.
    explicit SheetPeople(const PrepareStatement& prepare);

    // The EmployeeID of the person. Numbers and IDs are digits; zeros before them do not count. Names, as the lists show them, and social
    // security numbers must be exactly the same. REQUIRES: no blanks around `text`.
    [[nodiscard]] std::variant<std::int32_t, PersonFault> Find(SheetColumn by, std::string_view text) const;

private:
    using Index = std::unordered_map<std::string, std::int32_t>; // kTwoPeople where two people have the same

    static void Add(Index& index, std::string key, std::int32_t employee);
    static void Take(const Index& index, const std::string& key, std::optional<std::int32_t>& found);

    Index m_numbers;
    Index m_ids;
    Index m_names;
    Index m_securityNumbers;
};

} // namespace ptk
