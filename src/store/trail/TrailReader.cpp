#include "store/trail/TrailReader.h"

#include "store/CJetDB.h"
#include "store/engine/EngineWords.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"
#include "store/trail/TrailSQL.h"

#include <algorithm>

namespace ptk {

namespace {

// From one person to the next by their index, however many entries each has.
constexpr const char* kPersons = "WITH RECURSIVE Person (name) AS (SELECT MIN(ChangedBy) FROM _Change WHERE ChangedBy > '' UNION ALL "
                                 "SELECT (SELECT MIN(ChangedBy) FROM _Change WHERE ChangedBy > name) FROM Person WHERE name IS NOT NULL) "
                                 "SELECT CAST(name AS TEXT) FROM Person WHERE name IS NOT NULL";

constexpr const char* kReasons =
    "SELECT CAST(Reason AS TEXT) FROM (SELECT Reason, ChangeID FROM _Change ORDER BY ChangeID DESC LIMIT 5000) AS "
    "Newest WHERE Reason <> '' GROUP BY Reason ORDER BY MAX(ChangeID) DESC LIMIT ";

std::string TextOf(const Statement& row, int column)
{
    return row.KindAt(column) == CellKind::Null ? std::string() : std::string(row.TextAt(column));
}

std::optional<std::int64_t> NumberOf(const Statement& row, int column)
{
    return row.KindAt(column) == CellKind::Number ? std::optional(row.Int64At(column)) : std::nullopt;
}

// Takes the JSON of an entry apart.
class RowParser
{
public:
    explicit RowParser(CJetDB& database) : m_fields(RequireSelect(database, database.Words().jsonFields)) {}

    std::optional<TrailRow> Parse(const Statement& entry, int column)
    {
        if (entry.KindAt(column) == CellKind::Null) {
            return std::nullopt;
        }
        m_fields->Bind("json", std::string(entry.TextAt(column)));
        TrailRow row;
        m_fields->ForEachRow([&] { row.push_back({std::string(m_fields->TextAt(0)), KindOf(m_fields->TextAt(1)), TextOf(*m_fields, 2)}); });
        return row;
    }

private:
    static TrailValue::Kind KindOf(std::string_view type)
    {
        if (type == "null") {
            return TrailValue::Kind::Null;
        }
        if (type == "text") {
            return TrailValue::Kind::Text;
        }
        return type == "object" || type == "array" ? TrailValue::Kind::Bytes : TrailValue::Kind::Number;
    }

    std::unique_ptr<Statement> m_fields;
};

bool HasReasons(CJetDB& database)
{
    const std::string find = database.Words().findReasons;
    return find.empty() || RequireSelect(database, find)->ReadRows()->RecordCount() != 0;
}

TrailEntry EntryOf(const Statement& row, RowParser& parser)
{
    TrailEntry entry;
    using namespace trailsql;
    entry.id = row.Int64At(kId);
    entry.at = TextOf(row, kAt);
    entry.by = TextOf(row, kBy);
    entry.program = TextOf(row, kProgram);
    entry.step = NumberOf(row, kStep);
    entry.table = TextOf(row, kTable);
    entry.row = NumberOf(row, kRow);
    entry.action = TextOf(row, kAction);
    entry.before = parser.Parse(row, kBefore);
    entry.after = parser.Parse(row, kAfter);
    entry.employee = NumberOf(row, kEmployee);
    entry.reason = TextOf(row, kReason);
    return entry;
}

} // namespace

const TrailValue* ValueOf(const TrailRow& row, std::string_view column)
{
    const auto found = std::find_if(row.begin(), row.end(), [&](const TrailValue& value) { return value.column == column; });
    return found == row.end() ? nullptr : &*found;
}

void ReadTrail(const std::shared_ptr<CJetDB>& database, const TrailQuery& query, const std::function<void(const TrailEntry&)>& take)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    if (!database->HasTrail()) {
        return;
    }
    RowParser parser(*database);
    const auto entries = RequireSelect(*database, TrailSql(query, database->Words(), HasReasons(*database)));
    BindTrail(*entries, query);
    entries->ForEachRow([&] { take(EntryOf(*entries, parser)); });
}

std::vector<TrailEntry> ReadTrail(const std::shared_ptr<CJetDB>& database, const TrailQuery& query)
{
    std::vector<TrailEntry> entries;
    ReadTrail(database, query, [&](const TrailEntry& entry) { entries.push_back(entry); });
    return entries;
}

std::vector<std::string> ReadTrailPersons(const std::shared_ptr<CJetDB>& database)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    std::vector<std::string> persons;
    if (database->HasTrail()) {
        const auto names = RequireSelect(*database, kPersons);
        names->ForEachRow([&] { persons.emplace_back(names->TextAt(0)); });
    }
    return persons;
}

std::vector<std::string> ReadTrailReasons(const std::shared_ptr<CJetDB>& database, std::int32_t most)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    std::vector<std::string> reasons;
    if (database->HasTrail() && HasReasons(*database)) {
        const auto rows = RequireSelect(*database, kReasons + std::to_string(most));
        rows->ForEachRow([&] { reasons.emplace_back(rows->TextAt(0)); });
    }
    return reasons;
}

} // namespace ptk
