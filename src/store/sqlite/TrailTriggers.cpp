#include "store/sqlite/TrailTriggers.h"

#include "platform/text/Joined.h"
#include "platform/text/Text.h"
#include "store/engine/Schema.h"
#include "store/engine/StoredTable.h"

#include <algorithm>
#include <cstring>
#include <fmt/format.h>
#include <string_view>
#include <utility>
#include <vector>

namespace ptk {

namespace {

using Texts = std::vector<std::string>;

constexpr std::size_t kWidth = 138; // of a line, in characters
constexpr std::string_view kEmployee = "EmployeeID";

// A kind of change of a row: whether it has a row before (b, OLD) and a row after (a, NEW).
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

// Adds `parts` to `line`, `between` behind each but the last. A full line is ended, and the next one is indented by `depth`.
std::string Wrapped(std::string line, const Texts& parts, std::size_t depth, const char* end, const char* between = ",")
{
    std::string text;
    bool isFirst = true;
    for (const std::string& part : parts) {
        const std::string piece = part + (&part == &parts.back() ? end : between);
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

// Calls `add` for each side of the deed: for the row before, then for the row after.
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

// As many columns as the widest table has.
std::size_t Width()
{
    std::size_t width = 0;
    for (const char* table : kFirstToldTables) {
        width = std::max(width, StoredTableOf(table).columns.size());
    }
    return width;
}

std::string Numbered(char side)
{
    Texts columns;
    for (std::size_t i = 0; i < Width(); ++i) {
        columns.push_back(fmt::format("{}{}", side, i));
    }
    return Joined(columns, ", ");
}

// What the triggers of the tables hand over to the one that writes the entry: the names of the columns as a JSON array, and their values
// before (b) and after (a) in the same order. It keeps nothing. Every opening of the file reads all triggers: the less stands in them, the
// better.
std::string View()
{
    const Texts nothing(2 * Width(), "0");
    return fmt::format("CREATE VIEW _Edit (tab, act, row, empb, empa, names,\n    {},\n    {}\n) AS SELECT 0, 0, 0, 0, 0, 0, \n    {};\n",
                       Numbered('b'), Numbered('a'), Joined(nothing, ", "));
}

// Which column of the view has which number, to stand in a CASE.
std::string Cases(char side)
{
    Texts words;
    for (std::size_t i = 0; i < Width(); ++i) {
        words.insert(words.end(), {"WHEN", std::to_string(i), "THEN", fmt::format("NEW.{}{}", side, i)});
    }
    std::string text = Wrapped("        ", words, 8, "", "");
    text.pop_back(); // the end of its last line
    return text;
}

} // namespace

std::string TrailEntryTrigger()
{
    std::string text = kTrailEntrySql;
    for (const auto& [mark, side] : {std::pair("$B$", 'b'), std::pair("$A$", 'a')}) {
        text.replace(text.find(mark), std::strlen(mark), Cases(side));
    }
    return text;
}

std::string TrailTriggers()
{
    std::string text = View();
    for (const char* table : kFirstToldTables) {
        for (const Deed& deed : kDeeds) {
            text += Trigger(StoredTableOf(table), deed);
        }
    }
    return text;
}

} // namespace ptk
