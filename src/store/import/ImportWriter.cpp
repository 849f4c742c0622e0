#include "store/import/ImportWriter.h"

#include "platform/Failure.h"
#include "platform/files/FileSteps.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"
#include "store/whole/DatabaseCreator.h"
#include "store/whole/DatabaseName.h"

#include <fmt/format.h>
#include <utility>

namespace ptk {

namespace {

constexpr std::int32_t kAdministrator = 39;

constexpr const char* kNotEmpty =
    "the database already holds companies, employees, time records or paydays; an older database can only be brought "
    "along into one that is still empty";
constexpr const char* kCountOthers = "SELECT (SELECT COUNT(*) FROM Company) + (SELECT COUNT(*) FROM TimeRecord) + "
                                     "(SELECT COUNT(*) FROM Employee WHERE EmployeeID <> 39)";
constexpr const char* kCountClosings = "SELECT COUNT(*) FROM _Payday";
constexpr const char* kWhereShipped = " WHERE EmployeeID = 39";
constexpr const char* kRecords = "SELECT EmployeeID, StartTime, EndTime FROM TimeRecord";
constexpr const char* kOrphans =
    "SELECT COUNT(*) FROM TimeRecord WHERE NOT EXISTS (SELECT 1 FROM Employee WHERE Employee.EmployeeID = TimeRecord.EmployeeID)";

std::string InsertText(const ImportTable& table)
{
    std::string names;
    std::string parameters;
    for (const ImportColumn& column : table.columns) {
        names += fmt::format("{}{}", names.empty() ? "" : ", ", column.name);
        parameters += fmt::format("{}:{}", parameters.empty() ? "" : ", ", column.name);
    }
    return fmt::format("INSERT INTO {} ({}) VALUES ({})", table.name, names, parameters);
}

std::string FindText(const ImportTable& table)
{
    return fmt::format("SELECT 1 FROM {} WHERE {} = :key", table.name, table.columns.front().name);
}

std::int64_t CountRows(Engine& engine, const ImportTable& table)
{
    return engine.NumberFrom(fmt::format("SELECT COUNT(*) FROM {}", table.name));
}

// Whether a payday was closed; a file of an earlier version has no table of them.
bool HasClosings(Engine& engine)
{
    return engine.HasTable("_Payday") && engine.NumberFrom(kCountClosings) != 0;
}

void RefuseUnlessEmpty(Engine& engine)
{
    if (engine.NumberFrom(kCountOthers) != 0 || HasClosings(engine)) {
        throw Failure(0, "PTK", kNotEmpty);
    }
}

// Keeps others from adding a row between the last look and the writing.
void LockTables(Engine& engine)
{
    for (std::size_t i = 0; i < kImportTableCount; ++i) {
        engine.LockTable(ImportTableOf(static_cast<ImportTableId>(i)).name);
    }
}

// Makes the number of the next row lie behind those that came along.
void SkipNumbers(Engine& engine)
{
    for (std::size_t i = 0; i < kImportTableCount; ++i) {
        const ImportTable& table = ImportTableOf(static_cast<ImportTableId>(i));
        if (table.hasKey) {
            const char* const key = table.columns.front().name;
            const std::int64_t greatest = engine.NumberFrom(fmt::format("SELECT COALESCE(MAX({}), 0) FROM {}", key, table.name));
            engine.RunScript(FilledIn(engine.Words().skipNumbers, table.name, key, greatest).c_str());
        }
    }
}

void FillServer(Engine& server, const std::function<void(Engine&)>& fill)
{
    LockTables(server);
    RefuseUnlessEmpty(server);
    fill(server);
    SkipNumbers(server);
}

// Whether the database is a file that is not there yet.
bool IsMissing(const std::string& database)
{
    return IsFileName(database) && !IsThere(database);
}

void Change(Engine& engine, const ImportTarget& target, const std::function<void(Engine&)>& fill)
{
    engine.SignAs(target.author);
    engine.Write([&] {
        RefuseUnlessEmpty(engine);
        engine.WithoutTrail([&] { fill(engine); });
        engine.AddWholeEntry("import", target.file);
    });
}

void ReadHours(Engine& engine, ImportFigures& figures)
{
    const auto record = engine.PrepareForAllRows(kRecords);
    record->ForEachRow([&] {
        const auto start = record->StoredDateAt(1);
        const auto end = record->StoredDateAt(2);
        if (!start || !end) {
            throw Failure(0, "PTK", "a time record does not read back as it was written");
        }
        const bool isNone = record->KindAt(0) == CellKind::Null;
        figures.Count(isNone ? std::nullopt : std::optional(NarrowToInt32(record->Int64At(0))), *start, *end);
    });
}

} // namespace

void ImportFigures::Count(std::optional<std::int32_t> employee, DateTime start, DateTime end)
{
    Hours& sum = hours[employee];
    ++sum.records;
    if (end.IsZero()) {
        ++open;
    } else if (end < start) {
        ++backward;
    } else {
        sum.minutes += MinutesBetween(start, end);
    }
}

ImportWriter::ImportWriter(Engine& engine) : m_engine(engine)
{
    for (std::size_t i = 0; i < kImportTableCount; ++i) {
        const ImportTable& table = ImportTableOf(static_cast<ImportTableId>(i));
        m_statements[i] = {table.hasKey ? engine.Prepare(FindText(table)) : nullptr, engine.Prepare(InsertText(table))};
        m_shipped[i] = CountRows(engine, table);
    }
}

ImportWriter::~ImportWriter() = default;

bool ImportWriter::Add(ImportTableId table, std::span<const Value> values)
{
    if (IsTaken(table, values.front())) {
        return false;
    }
    Statement& add = *m_statements[static_cast<std::size_t>(table)].add;
    const auto columns = ImportTableOf(table).columns;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        add.Bind(columns[i].name, values[i]);
    }
    add.Run();
    return true;
}

bool ImportWriter::IsTaken(ImportTableId table, const Value& key)
{
    if (table == ImportTableId::System) {
        ClearShipped(table);
        return std::exchange(m_hasOptions, true);
    }
    if (table == ImportTableId::Employee && key.ToInt32() == kAdministrator) {
        ClearShipped(table);
    }
    Statement& find = *m_statements[static_cast<std::size_t>(table)].find;
    find.Bind("key", key);
    bool isThere = false;
    find.ForEachRow([&] { isThere = true; });
    return isThere;
}

// Deletes the shipped rows, which are all that the table holds before the first row of an import.
void ImportWriter::ClearShipped(ImportTableId table)
{
    std::int64_t& shipped = m_shipped[static_cast<std::size_t>(table)];
    if (std::exchange(shipped, 0) != 0) {
        m_engine.Prepare(fmt::format("DELETE FROM {}{}", ImportTableOf(table).name, table == ImportTableId::System ? "" : kWhereShipped))
            ->Run();
    }
}

ImportFigures ReadFigures(Engine& engine)
{
    ImportFigures figures;
    for (std::size_t i = 0; i < kImportTableCount; ++i) {
        figures.rows[i] = CountRows(engine, ImportTableOf(static_cast<ImportTableId>(i)));
    }
    ReadHours(engine, figures);
    figures.orphans = engine.NumberFrom(kOrphans);
    return figures;
}

void RefuseUnlessEmpty(const std::string& database)
{
    if (IsMissing(database)) {
        return;
    }
    const auto engine = OpenDatabase(database, OpenFor::Look);
    RefuseUnlessEmpty(*engine);
}

void Import(const ImportTarget& target, const std::function<void(Engine&)>& fill)
{
    if (IsMissing(target.database)) {
        return CreateAndChangeDatabase(target.database, [&](Engine& engine) { Change(engine, target, fill); });
    }
    const auto engine = OpenDatabase(target.database, OpenFor::Whole, WhenHeld::Wait, target.keepCopy);
    if (IsFileName(target.database)) {
        return Change(*engine, target, fill);
    }
    Change(*engine, target, [&](Engine& server) { FillServer(server, fill); });
}

void TryImport(const ImportTarget& target, const std::function<void(Engine&)>& fill)
{
    RefuseUnlessEmpty(target.database);
    WithTemporaryDatabase([&](Engine& engine) { Change(engine, target, fill); });
}

} // namespace ptk
