#include "store/trail/RowChange.h"

#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/RowConflict.h"

#include <algorithm>
#include <fmt/format.h>
#include <iterator>

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
        fmt::format_to(std::back_inserter(hex), "{:02X}", static_cast<unsigned char>(c));
    }
    return "CAST(X'" + hex + "' AS TEXT)";
}

std::string Literal(const TrailValue& value, const EngineWords& words)
{
    switch (value.kind) {
    case TrailValue::Kind::Null:
        return "NULL";
    case TrailValue::Kind::Number:
        return Said(words.number, value.text); // 17 digits, which read back to the same double
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

// " AND a is 1 AND b is 'x'", where a null is like another.
std::string Holding(const TrailRow& row, const EngineWords& words)
{
    std::string conditions;
    for (const TrailValue& value : row) {
        conditions += " AND " + Quoted(value.column) + " IS NOT DISTINCT FROM " + Literal(value, words);
    }
    return conditions;
}

// The key of a row that an update may have given another one.
std::int64_t KeyNow(const RowChange& change)
{
    const TrailValue* key = change.before ? ValueOf(*change.before, KeyOf(change.table)) : nullptr;
    return key == nullptr ? change.row : std::strtoll(key->text.c_str(), nullptr, 10);
}

[[noreturn]] void Refuse(const RowChange& change)
{
    throw RowChanged({change.table, static_cast<std::int32_t>(KeyNow(change)), {}});
}

bool Any(Engine& engine, const std::string& condition)
{
    return engine.Prepare("SELECT EXISTS (SELECT 1 FROM " + condition + ")")->ReadRows()->Int32At(0) != 0;
}

void RequireUntouched(Engine& engine, const RowChange& change, const KnownSteps& known)
{
    const auto entries = engine.Prepare(fmt::format("SELECT Step FROM _Change WHERE ChangeID > {} AND TableName = '{}' AND RowID = {}",
                                                    known.newerThan, change.table, KeyNow(change)));
    for (const auto rows = entries->ReadRows(); !rows->EndOfFile(); rows->MoveNext()) {
        const std::int64_t step = rows->IsNull(0) ? 0 : rows->Int64At(0);
        if (step == 0 || (step != engine.StepNumber() && !known.steps.contains(step))) {
            Refuse(change);
        }
    }
}

void RequireNone(Engine& engine, const RowChange& change, const char* table, const char* column)
{
    if (const std::string lock = Said(engine.Words().lockTable, table); !lock.empty()) {
        engine.Prepare(lock)->Run();
    }
    if (Any(engine, fmt::format("{} WHERE {} = {}", table, column, change.row))) {
        Refuse(change);
    }
}

// A person's time records and a company's people would be nobody's.
void RequireUnused(Engine& engine, const RowChange& change)
{
    if (change.table == "Employee") {
        RequireNone(engine, change, "TimeRecord", "EmployeeID");
    } else if (change.table == "Company") {
        RequireNone(engine, change, "Employee", "CompanyID");
    }
}

std::string InsertSql(const RowChange& change, const EngineWords& words)
{
    std::string columns;
    std::string values;
    for (const TrailValue& value : *change.after) {
        columns += (columns.empty() ? "" : ", ") + Quoted(value.column);
        values += (values.empty() ? "" : ", ") + Literal(value, words);
    }
    return fmt::format("INSERT INTO {} ({}) VALUES ({})", change.table, columns, values);
}

std::string UpdateSql(const RowChange& change, const EngineWords& words)
{
    std::string set;
    for (const TrailValue& value : *change.after) {
        set += (set.empty() ? "" : ", ") + Quoted(value.column) + " = " + Literal(value, words);
    }
    return fmt::format("UPDATE {} SET {} WHERE {} = {}", change.table, set, KeyOf(change.table), KeyNow(change));
}

void RedoOne(Engine& engine, const RowChange& change, const KnownSteps& known)
{
    const std::string row = fmt::format("{} WHERE {} = {}", change.table, KeyOf(change.table), KeyNow(change));
    if (!change.before) {
        RequireUntouched(engine, change, known);
        if (Any(engine, row)) {
            Refuse(change);
        }
        return engine.Prepare(InsertSql(change, engine.Words()))->Run();
    }
    if (!Any(engine, row + Holding(*change.before, engine.Words()) + engine.Words().lockRows)) {
        Refuse(change);
    }
    RequireUntouched(engine, change, known); // now that nobody else can change it any more
    if (change.after) {
        return engine.Prepare(UpdateSql(change, engine.Words()))->Run();
    }
    RequireUnused(engine, change);
    engine.Prepare("DELETE FROM " + row)->Run();
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

void Redo(Engine& engine, const std::vector<RowChange>& changes, const KnownSteps& known)
{
    for (const RowChange& change : changes) {
        RedoOne(engine, change, known);
    }
}

} // namespace ptk
