#include "jetreader/Catalog.h"

#include "jetreader/JetTable.h"
#include "jetreader/JetValue.h"
#include "jetreader/Lines.h"
#include "jetreader/Refusal.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <optional>

namespace jet {

namespace {

constexpr std::uint32_t kObjectsPage = 2;
constexpr std::uint32_t kPageMask = 0xFFFFFF; // the bits of an object's number that tell its page
constexpr std::uint32_t kSystemFlags = 0x80000002;
constexpr std::int32_t kTableType = 1;
constexpr std::int32_t kQueryType = 5;
constexpr const char* kQueriesTable = "MSysQueries";

struct Objects
{
    std::map<std::uint32_t, std::string> tables; // people's tables, by number
    std::map<std::uint32_t, std::string> queries;
    std::optional<std::uint32_t> queryParts; // number of the table that holds the parts of queries
};

// The ordinals of columns that a table of the file's own must have. Raises Refused where one is missing.
template <std::size_t Count>
std::array<std::size_t, Count> RequiredColumns(const JetTable& table, const std::array<const char*, Count>& names)
{
    std::array<std::size_t, Count> columns{};
    for (std::size_t i = 0; i < Count; ++i) {
        const auto found = table.FindColumn(names[i]);
        if (!found) {
            throw Refused(Refusal::Unreadable);
        }
        columns[i] = *found;
    }
    return columns;
}

std::uint32_t WholeNumber(const JetTable& table, std::size_t column)
{
    std::uint32_t number = 0;
    const auto bytes = table.Bytes(column);
    if (!table.IsNull(column) && !bytes.empty()) {
        std::memcpy(&number, bytes.data(), std::min(bytes.size(), sizeof number));
    }
    return number;
}

void AddObject(Objects& objects, std::uint32_t id, std::uint32_t type, std::uint32_t flags, const std::string& name)
{
    if (type == kTableType && name == kQueriesTable) {
        objects.queryParts = id;
    } else if (type == kTableType && (flags & kSystemFlags) == 0) {
        objects.tables.emplace(id, name);
    } else if (type == kQueryType) {
        objects.queries.emplace(id, name);
    }
}

// Reads the catalog alone. The library's own way follows the properties of each object, too, which in a damaged file may never end.
Objects ReadObjects(const JetFile& file)
{
    JetTable table(file, kObjectsPage);
    const auto [id, name, type, flags] = RequiredColumns<4>(table, {"Id", "Name", "Type", "Flags"});
    Objects objects;
    while (table.Next()) {
        AddObject(objects, WholeNumber(table, id), WholeNumber(table, type) & 0xFFFF, WholeNumber(table, flags),
                  file.Texts().Decode(table.Bytes(name)).utf8);
    }
    return objects;
}

void WriteTable(const JetFile& file, std::uint32_t id, const std::string& name)
{
    try {
        const JetTable table(file, id & kPageMask);
        Line("table").Number(id).Text(name).Write();
        for (std::size_t column = 0; column < table.ColumnCount(); ++column) {
            Line("column").Text(table.Column(column).name).Text(NameOfType(table.Column(column).col_type)).Write();
        }
    } catch (const Refused&) {
        Line("broken").Text(name).Write();
    }
}

void WriteQueries(const JetFile& file, const Objects& objects)
{
    JetTable table(file, *objects.queryParts & kPageMask);
    const auto [object, attribute, expression, name, second] =
        RequiredColumns<5>(table, {"ObjectId", "Attribute", "Expression", "Name1", "Name2"});
    while (table.Next()) {
        const auto query = objects.queries.find(WholeNumber(table, object));
        if (query != objects.queries.end()) {
            Line line("query");
            line.Text(query->second).Number(WholeNumber(table, attribute) & 0xFF);
            AppendValue(line, file, table, expression);
            AppendValue(line, file, table, name);
            AppendValue(line, file, table, second);
            line.Write();
        }
    }
}

} // namespace

void WriteCatalog(const JetFile& file)
{
    Line("file")
        .Number(file.IsJet4() ? 4 : 3)
        .Number(file.CodePage())
        .Number(static_cast<std::int64_t>(file.BytesBehindLastPage()))
        .Write();
    const Objects objects = ReadObjects(file);
    for (const auto& [id, name] : objects.tables) {
        WriteTable(file, id, name);
    }
    if (objects.queryParts) {
        try {
            WriteQueries(file, objects);
        } catch (const Refused&) {
            Line("broken").Text(kQueriesTable).Write();
        }
    }
}

void WriteRows(const JetFile& file, std::uint32_t id, std::span<const std::size_t> columns)
{
    JetTable table(file, id & kPageMask);
    for (const std::size_t column : columns) {
        if (column >= table.ColumnCount()) {
            throw Refused(Refusal::WrongUsage);
        }
    }
    std::int64_t read = 0;
    while (table.Next()) {
        Line line("row");
        for (const std::size_t column : columns) {
            AppendValue(line, file, table, column);
        }
        line.Write();
        ++read;
    }
    Line("rows").Number(read).Number(table.RowCount()).Write();
}

} // namespace jet
