#include "store/whole/DatabaseCopier.h"

#include "platform/Failure.h"
#include "platform/files/FileDraft.h"
#include "platform/files/FileSteps.h"
#include "platform/text/Text.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/engine/RowSink.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/DatabaseCreator.h"
#include "store/whole/DatabaseName.h"
#include "store/whole/OpenDatabase.h"

#include <fmt/format.h>

#include <algorithm>

namespace ptk {

namespace {

constexpr std::int32_t kInterrupted = 9;  // the engines' number
constexpr std::int64_t kPortion = 10'000; // rows between two calls of the progress
constexpr std::size_t kLongestShown = 60; // bytes of a value

constexpr const char* kUnequal = "the copy does not hold as many rows as the database; nothing was kept of it";
constexpr const char* kEnded = "the copy was ended";

constexpr const char* kTables = "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite^_%' ESCAPE '^' AND name "
                                "COLLATE NOCASE NOT IN ('_Session', '_StoredQuery', '_Structure')";

struct Source
{
    std::unique_ptr<Engine> engine;
    bool isFile;

    explicit Source(const std::string& name) : engine(OpenDatabase(name, OpenFor::Whole)), isFile(IsFileName(name)) {}
};

std::int64_t CountRows(Engine& engine, const StoredTable& table)
{
    return engine.NumberFrom(fmt::format("SELECT COUNT(*) FROM {}", table.name));
}

// Whether the source has a table: files of earlier versions lack some, a server has all of them.
bool HasTable(const Source& source, const StoredTable& table)
{
    return !source.isFile ||
           source.engine->NumberFrom(
               fmt::format("SELECT COUNT(*) FROM sqlite_master WHERE type = 'table' AND name = '{}' COLLATE NOCASE", table.name)) != 0;
}

CopyAccount CountSource(const Source& source)
{
    CopyAccount account;
    for (const StoredTable& table : StoredTables()) {
        CopiedTable& copied = account.tables.emplace_back(CopiedTable{table.name, std::nullopt, 0});
        if (HasTable(source, table)) {
            copied.before = CountRows(*source.engine, table);
        }
    }
    return account;
}

bool SameName(std::string_view a, std::string_view b)
{
    return LowerCase(a) == LowerCase(b);
}

void NameForeignColumns(Engine& file, const StoredTable& table, std::vector<std::string>& names)
{
    const auto columns = file.Prepare(fmt::format("SELECT name FROM pragma_table_info('{}')", table.name));
    columns->ForEachRow([&] {
        const std::string name(columns->TextAt(0));
        if (std::none_of(table.columns.begin(), table.columns.end(), [&](const StoredColumn& ours) { return SameName(ours.name, name); })) {
            names.push_back(fmt::format("{}.{}", table.name, name));
        }
    });
}

// The tables and columns that other tools added to a file.
std::vector<std::string> ForeignParts(Engine& file)
{
    std::vector<std::string> names;
    const auto tables = file.Prepare(kTables);
    tables->ForEachRow([&] {
        const std::string name(tables->TextAt(0));
        const auto ours = std::find_if(StoredTables().begin(), StoredTables().end(),
                                       [&](const StoredTable& table) { return SameName(table.name, name); });
        if (ours == StoredTables().end()) {
            names.push_back(name);
        } else {
            NameForeignColumns(file, *ours, names);
        }
    });
    return names;
}

std::string CellText(const Statement& row, int column)
{
    if (row.KindAt(column) == CellKind::Bytes) {
        return "bytes";
    }
    std::string text(row.TextAt(column));
    if (text.size() > kLongestShown) {
        text.resize(kLongestShown);
        text += "...";
    }
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c >= '\0' && c < ' '; }, '?');
    return row.KindAt(column) == CellKind::Text ? '"' + text + '"' : text;
}

Failure Refusal(const StoredTable& table, const Statement& row, const Unfit& unfit)
{
    const std::string key = table.hasKey ? fmt::format(" {}", row.TextAt(0)) : std::string();
    return {0, "PTK",
            fmt::format("{}{}: {} is {} ({})", table.name, key, table.columns[static_cast<std::size_t>(unfit.column)].name,
                        CellText(row, unfit.column), unfit.why)};
}

bool HasColumn(Engine& file, const StoredTable& table, const char* column)
{
    constexpr auto kFind = "SELECT COUNT(*) FROM pragma_table_info('{}') WHERE name = '{}' COLLATE NOCASE";
    return file.NumberFrom(fmt::format(kFind, table.name, column)) != 0;
}

// The question for a table's rows. A column that the file does not have yet is null in every row.
std::string SelectText(const Source& source, const StoredTable& table, const std::string& condition = "TRUE")
{
    std::string names;
    for (const StoredColumn& column : table.columns) {
        const bool lacks = source.isFile && column.rule == ColumnRule::MayLack && !HasColumn(*source.engine, table, column.name);
        names += fmt::format("{}{}", names.empty() ? "" : ", ", lacks ? "NULL" : column.name);
    }
    return fmt::format("SELECT {} FROM {} WHERE {}{}", names, table.name, condition,
                       table.hasKey ? fmt::format(" ORDER BY {}", table.columns.front().name) : std::string());
}

// Another tool may have written anything into a file's trail, and a server would refuse it only at the end of the copy.
void RefuseNoJson(const Source& file, const StoredTable& table)
{
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (table.columns[i].kind != ColumnKind::Json) {
            continue;
        }
        const auto row = file.engine->Prepare(
            SelectText(file, table, fmt::format("typeof({0}) = 'text' AND NOT json_valid({0})", table.columns[i].name)));
        row->ForEachRow([&] { throw Refusal(table, *row, Unfit{static_cast<int>(i), "no JSON"}); });
    }
}

class Copy
{
public:
    Copy(const Source& source, CopyAccount& account, const RowProgress& progress)
        : m_source(source), m_account(account), m_progress(progress)
    {
        for (const CopiedTable& table : account.tables) {
            m_all += table.before.value_or(0);
        }
    }

    void Into(Engine& target)
    {
        std::size_t place = 0;
        for (const StoredTable& table : StoredTables()) {
            CopiedTable& copied = m_account.tables[place++];
            if (copied.before) {
                CopyTable(target, table);
            }
            copied.after = CountRows(target, table);
            if (copied.before && copied.after != *copied.before) {
                throw Failure(0, "PTK", kUnequal);
            }
        }
    }

private:
    void CopyTable(Engine& target, const StoredTable& table)
    {
        target.Prepare(fmt::format("DELETE FROM {}", table.name))->Run(); // the rows of a new database
        const auto sink = target.Fill(table);
        const auto row = m_source.engine->PrepareForAllRows(SelectText(m_source, table));
        row->ForEachRow([&] {
            try {
                sink->Add(*row);
            } catch (const Unfit& unfit) {
                throw Refusal(table, *row, unfit);
            }
            Tell();
        });
        sink->Finish();
        if (table.hasKey) {
            SkipNumbers(target, table);
        }
    }

    void SkipNumbers(Engine& target, const StoredTable& table)
    {
        const char* const key = table.columns.front().name;
        const std::int64_t given = m_source.engine->NumberFrom(FilledIn(m_source.engine->Words().lastNumber, table.name, key));
        const std::int64_t greatest = m_source.engine->NumberFrom(fmt::format("SELECT COALESCE(MAX({}), 0) FROM {}", key, table.name));
        target.RunScript(FilledIn(target.Words().skipNumbers, table.name, key, std::max(given, greatest)).c_str());
    }

    void Tell()
    {
        if (++m_done % kPortion == 0 && m_progress && !m_progress(m_done, m_all)) {
            throw Failure(kInterrupted, "PTK", kEnded);
        }
    }

    const Source& m_source;
    CopyAccount& m_account;
    const RowProgress& m_progress;
    std::int64_t m_done = 0;
    std::int64_t m_all = 0;
};

// Copies page by page, so that what other tools added comes along.
CopyAccount CopyFile(const std::string& from, const std::string& to)
{
    RefuseTakenPath(to);
    Source source(from);
    CopyAccount account = CountSource(source);
    FileDraft draft(to);
    static_cast<SqliteEngine&>(*source.engine).CopyTo(draft.Path());
    {
        const Source copy(draft.Path());
        static_cast<SqliteEngine&>(*copy.engine).RefuseDamage();
        const CopyAccount found = CountSource(copy);
        for (std::size_t i = 0; i < account.tables.size(); ++i) {
            account.tables[i].after = found.tables[i].before.value_or(0);
            if (found.tables[i].before != account.tables[i].before) {
                throw Failure(0, "PTK", kUnequal);
            }
        }
    }
    draft.PlaceNew();
    return account;
}

} // namespace

CopyAccount CopyDatabase(const std::string& from, const std::string& to, const RowProgress& progress)
{
    if (IsFileName(from) && IsFileName(to)) {
        return CopyFile(from, to);
    }
    if (IsFileName(to)) {
        RefuseTakenPath(to);
    }
    const Source source(from);
    CopyAccount account = CountSource(source);
    if (source.isFile) {
        account.leftBehind = ForeignParts(*source.engine);
        if (account.tables.back().before) {
            RefuseNoJson(source, StoredTables().back()); // the trail
        }
    }
    account.leftToDo = CreateFilledDatabase(to, [&](Engine& target) { Copy(source, account, progress).Into(target); });
    return account;
}

} // namespace ptk
