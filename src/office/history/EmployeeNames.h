// The present and former names of employees, by EmployeeID.
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

// The names of employees by EmployeeID: of all stored rows, whatever else in them cannot be read, and of deleted employees, as far as the
// entries read so far show them.
class EmployeeNames
{
public:
    // Reads the names of all stored employees. Raises what reading the database raises.
    explicit EmployeeNames(const std::shared_ptr<CJetDB>& database);

    // The display name; empty for an unknown one.
    [[nodiscard]] const std::string& Of(std::int64_t employeeID) const;

    // The stored employees, in the order of the employee list.
    [[nodiscard]] const std::vector<std::int64_t>& Present() const { return m_order; }

    [[nodiscard]] std::optional<std::int64_t> FirstOf(std::string_view displayName) const;

    // Takes the name of a deleted employee from the entry. REQUIRES: entries come newest first.
    void Learn(const TrailEntry& entry);

    // Takes the names of all employees whose deletion the trail holds. Raises what reading the database raises.
    void LearnGone(const std::shared_ptr<CJetDB>& database);

    // The EmployeeIDs of the deleted employees that it knows, in ascending order.
    [[nodiscard]] std::vector<std::int64_t> Gone() const;

    // The name that the employee had right before this entry of the table Employee, or after it when the employee was added. REQUIRES:
    // entries come newest first.
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

    std::unordered_map<std::int64_t, Name> m_known;  // stored and deleted employees
    std::unordered_map<std::int64_t, Name> m_former; // of those that FormerOf was asked about
    std::vector<std::int64_t> m_order;
};

// The EmployeeID for a display name: of the first employee in the list with this name, or else of the employee who had it last, as the
// trail shows. Nothing if nobody ever had it. Raises what reading the database raises.
[[nodiscard]] std::optional<std::int64_t> FindInHistory(const std::shared_ptr<CJetDB>& database, const std::string& name);

} // namespace ptk
