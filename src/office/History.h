// The edit trail as people and other programs read it: who changed what, when, from what to what.
#pragma once

#include "office/HistoryText.h"
#include "store/TrailReader.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

class CEmployeeList;
class CJetDB;

// The display names of employees by number, also of those whose rows are gone, as far as the entries read so far tell them.
class EmployeeNames
{
public:
    explicit EmployeeNames(CEmployeeList& employees);

    std::string Of(std::int64_t employeeID) const; // empty for an unknown one
    void Learn(const TrailEntry& entry);           // entries newest first

private:
    std::map<std::int64_t, std::string> m_names;
};

// The number of the employee of that display name: the first in the list, else the one that had it last, as the trail tells. Raises what
// reading the trail raises.
std::optional<std::int64_t> FindInHistory(const std::shared_ptr<CJetDB>& database, CEmployeeList& employees, const std::string& name);

enum class HistoryForm
{
    Text,
    Csv,
    Json
};

// The entries of the query, newest first, in one of the forms that docs/history-format.md describes; as text one line an entry, nothing
// without one. Lines end in CR LF. Raises what reading the trail raises.
std::string HistoryIn(HistoryForm form, const std::shared_ptr<CJetDB>& database, CEmployeeList& employees, const TrailQuery& query);

// One line each, for a window that has entries already.
std::string HistoryCsv(const std::vector<TrailEntry>& entries, const NameOfEmployee& nameOf);

} // namespace ptk
