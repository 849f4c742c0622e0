// Writes the rows of an import into a database that holds nothing yet.
#pragma once

#include "store/import/ImportTables.h"
#include "store/sqlite/EditTrail.h"
#include "store/whole/OpenDatabase.h"

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace ptk {

class Engine;
class Statement;

// The figures that tell of an import, both of what was to be written and of what was. Minutes are those of the wall clock between start and
// end, both without their seconds, of records with an end not before their start.
struct ImportFigures
{
    struct Hours
    {
        std::int64_t records = 0;
        std::int64_t minutes = 0;

        bool operator==(const Hours&) const = default;
    };

    std::array<std::int64_t, kImportTableCount> rows{};
    std::int64_t orphans = 0; // records whose employee is not there
    std::int64_t open = 0;
    std::int64_t backward = 0;
    std::map<std::optional<std::int32_t>, Hours> hours; // by employee, or for records without one

    // Counts a record of this employee.
    void Count(std::optional<std::int32_t> employee, DateTime start, DateTime end);

    bool operator==(const ImportFigures&) const = default;
};

// Writes rows with the keys that they have. REQUIRES: within Engine::Write, on a database that RefuseUnlessEmpty lets pass.
class ImportWriter
{
public:
    explicit ImportWriter(Engine& engine);
    ~ImportWriter();
    ImportWriter(const ImportWriter&) = delete;
    ImportWriter& operator=(const ImportWriter&) = delete;

    // Adds a row with `values` in the order of the table's columns. False, and nothing written, where a row of this key, or the only row,
    // was written before; the shipped rows give way.
    [[nodiscard]] bool Add(ImportTableId table, std::span<const Value> values);

    // How many shipped rows no row of the import has replaced so far.
    [[nodiscard]] std::int64_t ShippedRows(ImportTableId table) const { return m_shipped[static_cast<std::size_t>(table)]; }

private:
    struct Statements
    {
        std::unique_ptr<Statement> find; // nullptr for a table of one row
        std::unique_ptr<Statement> add;
    };

    [[nodiscard]] bool IsTaken(ImportTableId table, const Value& key);
    void ClearShipped(ImportTableId table);

    Engine& m_engine;
    std::array<Statements, kImportTableCount> m_statements;
    std::array<std::int64_t, kImportTableCount> m_shipped{};
    bool m_hasOptions = false;
};

// Reads back row by row what the database holds. Shipped rows that gave way to none count, too.
[[nodiscard]] ImportFigures ReadFigures(Engine& engine);

struct ImportTarget
{
    std::string database; // in the platform's own form; a missing file is made, a server's must have its tables
    std::string file;     // where the rows come from, for the trail
    Author author;
    KeepCopy keepCopy;
};

// Raises a failure without a number where there is a database that holds companies, time records, closed paydays or more employees than the
// administrator, and what opening it raises. Does not change it; a file that is missing is empty.
void RefuseUnlessEmpty(const std::string& database);

// Runs `fill` on the target in one transaction, told in the trail as one entry. All of it is stored or, when it raises, nothing. `fill` may
// have to run a second time, when the first was undone. Raises what RefuseUnlessEmpty raises, and what making a database raises.
void Import(const ImportTarget& target, const std::function<void(Engine&)>& fill);

// Tries an import without its target: `fill` runs on a database that is gone afterwards. Looks at the target as RefuseUnlessEmpty does.
void TryImport(const ImportTarget& target, const std::function<void(Engine&)>& fill);

} // namespace ptk
