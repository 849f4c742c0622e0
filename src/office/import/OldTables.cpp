#include "office/import/OldTables.h"

#include "platform/Failure.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr const char* kUrl = "URL";
constexpr std::size_t kMostEmployeeColumns = 18; // of 22
constexpr std::size_t kMostCompanyColumns = 8;   // of 10, the web address aside

// Attributes of the parts of stored queries.
constexpr std::int64_t kTablePart = 5;
constexpr std::int64_t kColumnPart = 6;

bool Same(std::string_view a, std::string_view b)
{
    return LowerCase(a) == LowerCase(b);
}

std::optional<std::size_t> FindColumn(const OldTable& table, std::string_view name)
{
    const auto found =
        std::find_if(table.columns.begin(), table.columns.end(), [&](const OldColumn& column) { return Same(column.name, name); });
    return found == table.columns.end() ? std::nullopt : std::optional<std::size_t>(found - table.columns.begin());
}

// How many of the program's columns the table has, without the web address.
std::size_t KnownColumns(const OldTable& table, ImportTableId id)
{
    const auto columns = ImportTableOf(id).columns;
    return static_cast<std::size_t>(std::count_if(columns.begin(), columns.end(), [&](const ImportColumn& column) {
        return !Same(column.name, kUrl) && FindColumn(table, column.name);
    }));
}

bool IsEmployeeTable(const OldTable& table)
{
    return FindColumn(table, "EmployeeID") && KnownColumns(table, ImportTableId::Employee) >= kMostEmployeeColumns;
}

bool IsCompanyTable(const OldTable& table)
{
    return FindColumn(table, "CompanyID") && FindColumn(table, "Name") &&
           KnownColumns(table, ImportTableId::Company) >= kMostCompanyColumns;
}

[[noreturn]] void RefuseMissing(const OldCatalog& catalog, const std::string& what)
{
    std::string broken;
    for (const std::string& name : catalog.broken) {
        broken += (broken.empty() ? "" : ", ") + name;
    }
    throw Failure(0, "PTK",
                  fmt::format("the file has no {}{}", what, broken.empty() ? "" : "; of its tables these cannot be read: " + broken));
}

using Candidates = std::vector<const OldTable*>;

// The table that the query for lists names: the one in use. Backup copies of a table have the same columns.
const OldTable& ChosenBy(const OldCatalog& catalog, const char* query, const Candidates& candidates, const char* what)
{
    for (const OldQueryPart& part : catalog.queryParts) {
        const auto named =
            std::find_if(candidates.begin(), candidates.end(), [&](const OldTable* table) { return Same(table->name, part.name); });
        if (Same(part.query, query) && part.attribute == kTablePart && named != candidates.end()) {
            return **named;
        }
    }
    std::string names;
    for (const OldTable* table : candidates) {
        names += (names.empty() ? "" : ", ") + table->name;
    }
    throw Failure(0, "PTK", fmt::format("the file has more than one {}, and none of them is known to be in use: {}", what, names));
}

const OldTable& FindByColumns(const OldCatalog& catalog, bool (*fits)(const OldTable&), const char* query, const char* what)
{
    Candidates candidates;
    for (const OldTable& table : catalog.tables) {
        if (fits(table)) {
            candidates.push_back(&table);
        }
    }
    if (candidates.empty()) {
        RefuseMissing(catalog, what);
    }
    return candidates.size() == 1 ? *candidates.front() : ChosenBy(catalog, query, candidates, what);
}

// The table of this name; nullptr if there is none.
const OldTable* FindByName(const OldCatalog& catalog, std::string_view name)
{
    const auto found =
        std::find_if(catalog.tables.begin(), catalog.tables.end(), [&](const OldTable& table) { return Same(table.name, name); });
    return found == catalog.tables.end() ? nullptr : &*found;
}

bool HoldsText(const OldColumn& column)
{
    return column.type == "text" || column.type == "memo";
}

// The web address has many names. It is the column that the query for new companies fills with it, or else the only unused text column.
std::optional<std::size_t> FindWebAddress(const OldCatalog& catalog, const OldTable& table)
{
    if (const auto named = FindColumn(table, kUrl)) {
        return named;
    }
    std::vector<std::size_t> left;
    const auto known = ImportTableOf(ImportTableId::Company).columns;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const auto isIt = [&](const ImportColumn& column) { return Same(column.name, table.columns[i].name); };
        if (HoldsText(table.columns[i]) && std::none_of(known.begin(), known.end(), isIt)) {
            left.push_back(i);
        }
    }
    for (const OldQueryPart& part : catalog.queryParts) {
        const auto target = FindColumn(table, part.secondName);
        if (Same(part.query, "AddNewCompany") && part.attribute == kColumnPart && Same(part.expression, "[paramURL]") && target &&
            std::find(left.begin(), left.end(), *target) != left.end()) {
            return target;
        }
    }
    return left.size() == 1 ? std::optional(left.front()) : std::nullopt;
}

OldSource SourceOf(const OldCatalog& catalog, const OldTable& table, ImportTableId id)
{
    OldSource source{table.name, {table.id, {}}, {}};
    for (const ImportColumn& column : ImportTableOf(id).columns) {
        const bool isWebAddress = id == ImportTableId::Company && Same(column.name, kUrl);
        const auto found = isWebAddress ? FindWebAddress(catalog, table) : FindColumn(table, column.name);
        source.places.push_back(found ? std::optional(source.order.columns.size()) : std::nullopt);
        if (found) {
            source.order.columns.push_back(*found);
        }
    }
    if (ImportTableOf(id).hasKey && !source.places.front()) {
        throw Failure(0, "PTK",
                      fmt::format("the table {} of the file has no column {}", table.name, ImportTableOf(id).columns.front().name));
    }
    return source;
}

void NameFurtherColumns(const OldTable& table, const OldSource& source, std::vector<std::string>& names)
{
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const auto& taken = source.order.columns;
        if (std::find(taken.begin(), taken.end(), i) == taken.end()) {
            names.push_back(table.columns[i].name + " of " + table.name);
        }
    }
}

} // namespace

OldSources FindSources(const OldCatalog& catalog)
{
    const OldTable* const records = FindByName(catalog, "TimeRecord");
    const std::array<const OldTable*, kImportTableCount> tables{
        &FindByColumns(catalog, IsEmployeeTable, "GetAllEmployees", "employee table (Employee, known by its columns)"),
        &FindByColumns(catalog, IsCompanyTable, "GetAllCompanies", "company table (Company, known by its columns)"), records,
        FindByName(catalog, "_System")};
    if (records == nullptr) {
        RefuseMissing(catalog, "time record table (TimeRecord)");
    }
    OldSources sources;
    for (std::size_t i = 0; i < kImportTableCount; ++i) {
        if (tables[i] != nullptr) {
            sources.tables[i] = SourceOf(catalog, *tables[i], static_cast<ImportTableId>(i));
            NameFurtherColumns(*tables[i], *sources.tables[i], sources.furtherColumns);
        }
    }
    for (const OldTable& table : catalog.tables) {
        if (std::find(tables.begin(), tables.end(), &table) == tables.end()) {
            sources.otherTables.push_back(table.name);
        }
    }
    return sources;
}

} // namespace ptk
