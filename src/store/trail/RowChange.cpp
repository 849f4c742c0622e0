#include "store/trail/RowChange.h"

#include "platform/text/Joined.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/RowConflict.h"

#include <algorithm>
#include <fmt/format.h>
#include <iterator>
#include <span>

namespace ptk {

namespace {

std::string KeyOf(const std::string& table)
{
    return (table.starts_with('_') ? table.substr(1) : table) + "ID";
}

std::string TextLiteral(const std::string& text)
{
    if (text.find('\0') == std::string::npos) {
        std::string quoted = "'";
        for (const char c : text) {
            quoted += c == '\'' ? "''" : std::string(1, c);
        }
        return quoted + "'";
    }
    std::string hex;
    for (const char c : text) {
        hex += fmt::format("{:02X}", static_cast<unsigned char>(c));
    }
    return "CAST(X'" + hex + "' AS TEXT)";
}

std::string Literal(const TrailValue& value, const EngineWords& words)
{
    switch (value.kind) {
    case TrailValue::Kind::Null:
        return "NULL";
    case TrailValue::Kind::Number:
        return FilledIn(words.number, value.text); // 17 digits, which read back to the same double
    case TrailValue::Kind::Text:
        return TextLiteral(value.text);
    default:
        return "X'" + value.text + "'";
    }
}

std::string Quoted(const std::string& name)
{
    std::string quoted = "\"";
    for (const char c : name) {
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    }
    return quoted + "\"";
}

// The conditions that a row holds these values, " AND a is 1 AND b is 'x'", where a null is like another.
std::string Holding(const TrailRow& row, const EngineWords& words)
{
    std::string conditions;
    for (const TrailValue& value : row) {
        conditions += " AND " + Quoted(value.column) + " IS NOT DISTINCT FROM " + Literal(value, words);
    }
    return conditions;
}

// The key that the row has now: an update may have given it another one.
std::int64_t KeyNow(const RowChange& change)
{
    const TrailValue* key = change.before ? ValueOf(*change.before, KeyOf(change.table)) : nullptr;
    return key == nullptr ? change.row : std::strtoll(key->text.c_str(), nullptr, 10);
}

[[noreturn]] void Refuse(const RowChange& change)
{
    throw RowChanged({change.table, static_cast<std::int32_t>(KeyNow(change)), {}});
}

// Changes of one kind and one table, each of another row: one question is asked about all of them.
using Portion = std::span<const RowChange>;
constexpr std::size_t kMostTogether = 200;

std::string KeysOf(Portion portion)
{
    std::vector<std::int64_t> keys(portion.size());
    std::transform(portion.begin(), portion.end(), keys.begin(), KeyNow);
    return Joined(keys, ",");
}

// "Employee WHERE EmployeeID IN (41,42)"
std::string RowsOf(Portion portion)
{
    const std::string& table = portion.front().table;
    return fmt::format("{} WHERE {} IN ({})", table, KeyOf(table), KeysOf(portion));
}

// Refuses the change of each row that the first column of the question's answer names, unless `isAllowed`.
template <typename IsAllowed>
void RefuseAnswered(Engine& engine, Portion portion, const std::string& question, IsAllowed isAllowed)
{
    const auto found = engine.Prepare(question);
    for (const auto rows = found->ReadRows(); !rows->EndOfFile(); rows->MoveNext()) {
        if (isAllowed(*rows)) {
            continue;
        }
        const auto change =
            std::find_if(portion.begin(), portion.end(), [&](const RowChange& one) { return KeyNow(one) == rows->Int64At(0); });
        Refuse(change == portion.end() ? portion.front() : *change);
    }
}

void RefuseAnswered(Engine& engine, Portion portion, const std::string& question)
{
    RefuseAnswered(engine, portion, question, [](const RecordSet&) { return false; });
}

// Refuses a row that is not as its change begins with. The rows are locked, so that nobody else can change them any more.
void RequireAsBefore(Engine& engine, Portion portion)
{
    const std::string key = KeyOf(portion.front().table);
    std::string conditions;
    for (const RowChange& change : portion) {
        conditions +=
            fmt::format("{}{} = {}{}", conditions.empty() ? "" : " OR ", key, KeyNow(change), Holding(*change.before, engine.Words()));
    }
    std::set<std::int64_t> same;
    const auto found =
        engine.Prepare(fmt::format("SELECT {} FROM {} AND ({}){}", key, RowsOf(portion), conditions, engine.Words().lockRows));
    engine.WillChangeNext();
    for (const auto rows = found->ReadRows(); !rows->EndOfFile(); rows->MoveNext()) {
        same.insert(rows->Int64At(0));
    }
    const auto other =
        std::find_if(portion.begin(), portion.end(), [&](const RowChange& change) { return !same.contains(KeyNow(change)); });
    if (other != portion.end()) {
        Refuse(*other);
    }
}

void RequireUntouched(Engine& engine, Portion portion, const KnownSteps& known)
{
    const auto isOurs = [&](const RecordSet& entry) {
        const std::int64_t step = entry.IsNull(1) ? 0 : entry.Int64At(1);
        return step != 0 && (step == engine.StepNumber() || known.steps.contains(step));
    };
    RefuseAnswered(engine, portion,
                   fmt::format("SELECT RowID, Step FROM _Change WHERE ChangeID > {} AND TableName = '{}' AND RowID IN ({})",
                               known.newerThan, portion.front().table, KeysOf(portion)),
                   isOurs);
}

void RequireNone(Engine& engine, Portion portion, const char* table, const char* column)
{
    engine.LockTable(table);
    RefuseAnswered(engine, portion, fmt::format("SELECT {0} FROM {1} WHERE {0} IN ({2}) LIMIT 1", column, table, KeysOf(portion)));
}

// Refuses to delete whom others rely on: a person's time records and a company's people would be nobody's.
void RequireUnused(Engine& engine, Portion portion)
{
    if (portion.front().table == "Employee") {
        RequireNone(engine, portion, "TimeRecord", "EmployeeID");
    } else if (portion.front().table == "Company") {
        RequireNone(engine, portion, "Employee", "CompanyID");
    }
}

std::string ValuesOf(const RowChange& change, const EngineWords& words)
{
    std::string values;
    for (const TrailValue& value : *change.after) {
        values += (values.empty() ? "" : ", ") + Literal(value, words);
    }
    return '(' + values + ')';
}

std::string InsertSql(Portion portion, const EngineWords& words)
{
    std::string columns;
    for (const TrailValue& value : *portion.front().after) {
        columns += (columns.empty() ? "" : ", ") + Quoted(value.column);
    }
    std::string rows;
    for (const RowChange& change : portion) {
        rows += (rows.empty() ? "" : ", ") + ValuesOf(change, words);
    }
    return fmt::format("INSERT INTO {} ({}) VALUES {}", portion.front().table, columns, rows);
}

std::string UpdateSql(const RowChange& change, const EngineWords& words)
{
    std::string set;
    for (const TrailValue& value : *change.after) {
        set += (set.empty() ? "" : ", ") + Quoted(value.column) + " = " + Literal(value, words);
    }
    return fmt::format("UPDATE {} SET {} WHERE {} = {}", change.table, set, KeyOf(change.table), KeyNow(change));
}

void Add(Engine& engine, Portion portion, const KnownSteps& known)
{
    RequireUntouched(engine, portion, known);
    engine.WillChangeNext();
    RefuseAnswered(engine, portion, fmt::format("SELECT {} FROM {}", KeyOf(portion.front().table), RowsOf(portion)));
    engine.Prepare(InsertSql(portion, engine.Words()))->Run();
}

void RedoTogether(Engine& engine, Portion portion, const KnownSteps& known)
{
    if (!portion.front().before) {
        return Add(engine, portion, known);
    }
    RequireAsBefore(engine, portion);
    RequireUntouched(engine, portion, known);
    if (!portion.front().after) {
        RequireUnused(engine, portion);
        return engine.Prepare("DELETE FROM " + RowsOf(portion))->Run();
    }
    for (const RowChange& change : portion) {
        engine.Prepare(UpdateSql(change, engine.Words()))->Run();
    }
}

bool HasSameColumns(const std::optional<TrailRow>& one, const std::optional<TrailRow>& other)
{
    const auto named = [](const TrailValue& left, const TrailValue& right) { return left.column == right.column; };
    return !one || std::equal(one->begin(), one->end(), other->begin(), other->end(), named);
}

bool GoTogether(const RowChange& one, const RowChange& other)
{
    return one.table == other.table && one.before.has_value() == other.before.has_value() &&
           one.after.has_value() == other.after.has_value() && HasSameColumns(one.after, other.after);
}

// The changes from the first on that go together. A row that is changed twice is changed in two portions.
Portion FirstOf(Portion changes)
{
    std::set<std::int64_t> keys;
    std::size_t count = 0;
    while (count < changes.size() && count < kMostTogether && GoTogether(changes.front(), changes[count]) &&
           keys.insert(KeyNow(changes[count])).second) {
        ++count;
    }
    return changes.first(count);
}

} // namespace

std::vector<RowChange> Inverse(const std::vector<RowChange>& changes)
{
    std::vector<RowChange> inverse;
    std::transform(changes.rbegin(), changes.rend(), std::back_inserter(inverse), [](const RowChange& change) {
        return RowChange{change.table, change.row, change.after, change.before};
    });
    return inverse;
}

void Apply(Engine& engine, const std::vector<RowChange>& changes, const KnownSteps& known)
{
    for (Portion left = changes; !left.empty();) {
        const Portion portion = FirstOf(left);
        RedoTogether(engine, portion, known);
        left = left.subspan(portion.size());
    }
}

} // namespace ptk
