#include "store/sqlite/TrailTriggers.h"

#include "platform/text/Joined.h"
#include "platform/text/Text.h"
#include "store/engine/StoredTable.h"

#include <algorithm>
#include <fmt/format.h>
#include <string_view>
#include <vector>

namespace ptk {

namespace {

using Texts = std::vector<std::string>;

constexpr std::size_t kWidth = 138; // of a line, in characters
constexpr std::string_view kEmployee = "EmployeeID";

// What happens to a row: what it was (b, OLD) and what it becomes (a, NEW).
struct Deed
{
    const char* name;
    bool hasBefore;
    bool hasAfter;
};

constexpr Deed kDeeds[] = {{"Insert", false, true}, {"Update", true, true}, {"Delete", true, false}};

std::string Capitals(std::string_view word)
{
    std::string text(word);
    std::ranges::transform(text, text.begin(), [](char letter) { return letter >= 'a' ? static_cast<char>(letter - 'a' + 'A') : letter; });
    return text;
}

// Behind `line`, with commas; where a line is full, on a new one as deep as `depth`.
std::string Wrapped(std::string line, const Texts& parts, std::size_t depth, const char* end)
{
    std::string text;
    bool isFirst = true;
    for (const std::string& part : parts) {
        const std::string piece = part + (&part == &parts.back() ? end : ",");
        if (line.size() + piece.size() + (isFirst ? 0 : 1) > kWidth) {
            text += line + '\n';
            line = std::string(depth, ' ');
            isFirst = true;
        }
        line += (isFirst ? "" : " ") + piece;
        isFirst = false;
    }
    return text + line + '\n';
}

// For each side of the deed, what it was before what it becomes.
template <typename Add>
void ForEachSide(const Deed& deed, Add add)
{
    if (deed.hasBefore) {
        add('b', "OLD");
    }
    if (deed.hasAfter) {
        add('a', "NEW");
    }
}

std::string Trigger(const StoredTable& table, const Deed& deed)
{
    const std::string_view name = table.name;
    const bool isOfEmployee = std::ranges::any_of(table.columns, [](const StoredColumn& column) { return column.name == kEmployee; });
    Texts targets{"tab", "act", "row"};
    Texts heads{fmt::format("'{}'", name), fmt::format("'{}'", LowerCase(deed.name)),
                fmt::format("{}.{}", deed.hasBefore ? "OLD" : "NEW", table.hasKey ? table.columns.front().name : "rowid")};
    Texts numbers;
    Texts names;
    Texts values;
    ForEachSide(deed, [&](char side, const char* row) {
        if (isOfEmployee) {
            targets.push_back(fmt::format("emp{}", side));
            heads.push_back(fmt::format("{}.{}", row, kEmployee));
        }
        for (const StoredColumn& column : table.columns) {
            numbers.push_back(fmt::format("{}{}", side, &column - table.columns.data()));
            values.push_back(fmt::format("{}.{}", row, column.name));
        }
    });
    for (const StoredColumn& column : table.columns) {
        names.push_back(fmt::format("\"{}\"", column.name));
    }
    targets.emplace_back("names");
    targets.insert(targets.end(), numbers.begin(), numbers.end());
    return fmt::format("CREATE TRIGGER _{}{} AFTER {} ON {} BEGIN\n", name.substr(name.find_first_not_of('_')), deed.name,
                       Capitals(deed.name), name) +
           Wrapped("    INSERT INTO _Edit (", targets, 4, ")") +
           fmt::format("    VALUES ({},\n        '[{}]',\n", Joined(heads, ", "), Joined(names, ",")) +
           Wrapped("        ", values, 8, ");") + "END;\n";
}

} // namespace

std::string TrailTriggers()
{
    std::string text;
    for (const char* table : kFirstToldTables) {
        for (const Deed& deed : kDeeds) {
            text += Trigger(StoredTableOf(table), deed);
        }
    }
    return text;
}

} // namespace ptk
