// Who the employees are and were, by number.
#pragma once

#include "store/trail/TrailReader.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ptk {

class CJetDB;

// The names of employees by number: of all rows, whatever else in them can be read, and of those that are gone, as far as the entries read
// so far tell them.
class EmployeeNames
{
public:
    // Raises what reading the database raises.
    explicit EmployeeNames(const std::shared_ptr<CJetDB>& database);

    // The display name; empty for an unknown one.
    [[nodiscard]] const std::string& Of(std::int64_t employeeID) const;

    // In the order of the employee list.
    [[nodiscard]] const std::vector<std::int64_t>& Present() const { return m_order; }

    [[nodiscard]] std::optional<std::int64_t> FirstOf(std::string_view displayName) const;

    // Entries newest first.
    void Learn(const TrailEntry& entry);

    // All that the trail knows to be gone. Raises what reading the database raises.
    void LearnGone(const std::shared_ptr<CJetDB>& database);

    // Those, by number.
    [[nodiscard]] std::vector<std::int64_t> Gone() const;

    // What the row of Employee that this entry is about was called right before it, or after it when it was added; entries newest first.
    std::string FormerOf(const TrailEntry& entry);

private:
    struct Name
    {
        std::string first;
        std::string last;
        std::string display;

        void Show();
        void Take(const TrailRow& row);
    };

    std::unordered_map<std::int64_t, Name> m_known;  // present and gone ones
    std::unordered_map<std::int64_t, Name> m_former; // of those that FormerOf was asked about
    std::vector<std::int64_t> m_order;
};

// The number of the employee of that display name: the first in the list, else the one that had it last, as the trail tells. Raises what
// reading the database raises.
[[nodiscard]] std::optional<std::int64_t> FindInHistory(const std::shared_ptr<CJetDB>& database, const std::string& name);

} // namespace ptk
