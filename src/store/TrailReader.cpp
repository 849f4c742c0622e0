#include "store/TrailReader.h"

#include "platform/Text.h"
#include "store/CJetDB.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

// Whatever another tool put there, what is read has these kinds: numbers, or texts, or a null.
constexpr const char* kColumns = "ChangeID, ChangedAt, ChangedBy, Program, Step, TableName, RowID, Action, "
                                 "CASE WHEN json_valid(Before) THEN Before END, CASE WHEN json_valid(After) THEN After END, "
                                 "IFNULL(EmployeeAfter, EmployeeBefore)";
constexpr const char* kFields = "SELECT key, type, CASE type WHEN 'real' THEN printf('%!.17g', atom) WHEN 'object' THEN "
                                "json_extract(value, '$.blob') ELSE atom END FROM json_each(:json)";

enum Column
{
    kId,
    kAt,
    kBy,
    kProgram,
    kStep,
    kTable,
    kRow,
    kAction,
    kBefore,
    kAfter,
    kEmployee
};

std::string Conditions(const TrailQuery& query)
{
    std::string sql = "ChangeID > :newer";
    sql += query.from ? " AND ChangedAt >= :from" : "";
    sql += query.to ? " AND ChangedAt < :behind" : "";
    sql += query.step ? " AND Step = :step" : "";
    sql += query.table.empty() ? "" : " AND TableName = :table";
    return sql;
}

void Bind(Statement& statement, const TrailQuery& query)
{
    const auto day = [](DateTime date) { return FormatDateTime(date, "yyyy-mm-dd"); };
    statement.Bind("newer", std::to_string(query.newerThan));
    if (query.employee) {
        statement.Bind("employee", std::to_string(*query.employee));
    }
    if (query.from) {
        statement.Bind("from", day(*query.from));
    }
    if (query.to) { // "~" lies behind every time of that day
        statement.Bind("behind", day(*query.to) + "~");
    }
    if (query.step) {
        statement.Bind("step", std::to_string(*query.step));
    }
    if (!query.table.empty()) {
        statement.Bind("table", query.table);
    }
}

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
    explicit RowParser(CJetDB& database) : m_fields(RequireSelect(database, kFields)) {}

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

TrailEntry EntryOf(const Statement& row, RowParser& parser)
{
    TrailEntry entry;
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
    return entry;
}

bool HasTrail(CJetDB& database)
{
    const auto found = database.ExecuteSelect(kFindTrail);
    if (found == nullptr) {
        throw database.LastFailure();
    }
    return found->Int32At(0) == 2;
}

} // namespace

const TrailValue* ValueOf(const TrailRow& row, std::string_view column)
{
    const auto found = std::find_if(row.begin(), row.end(), [&](const TrailValue& value) { return value.column == column; });
    return found == row.end() ? nullptr : &*found;
}

// The two halves find each entry once, each by its own index and in the order of the numbers.
std::string TrailSql(const TrailQuery& query)
{
    const std::string select = fmt::format("SELECT {} FROM _Change WHERE {}", kColumns, Conditions(query));
    const std::string end = fmt::format(" ORDER BY 1 DESC LIMIT {}", query.most);
    if (!query.employee) {
        return select + end;
    }
    return select + " AND EmployeeAfter = CAST(:employee AS INTEGER) UNION ALL " + select +
           " AND EmployeeBefore = CAST(:employee AS INTEGER) AND EmployeeBefore IS NOT EmployeeAfter" + end;
}

void ReadTrail(const std::shared_ptr<CJetDB>& database, const TrailQuery& query, const std::function<void(const TrailEntry&)>& take)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    if (!HasTrail(*database)) {
        return;
    }
    RowParser parser(*database);
    const auto entries = RequireSelect(*database, TrailSql(query));
    Bind(*entries, query);
    entries->ForEachRow([&] { take(EntryOf(*entries, parser)); });
}

std::vector<TrailEntry> ReadTrail(const std::shared_ptr<CJetDB>& database, const TrailQuery& query)
{
    std::vector<TrailEntry> entries;
    ReadTrail(database, query, [&](const TrailEntry& entry) { entries.push_back(entry); });
    return entries;
}

} // namespace ptk
