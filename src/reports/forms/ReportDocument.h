// What a report says: made once, then rendered, as text for its file and its viewer, as pages or as data.
#pragma once

#include "platform/text/Value.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ptk {

// What the values of a column are.
enum class CellType
{
    Text,        // text
    WholeNumber, // 32-bit integers
    Hours,       // singles, decimal hours
    Money,       // singles, in cents
    Rate,        // singles, dollars per hour with as many decimals as they have
    Date,        // date-times at midnight
    DateTime,    // date-times
    Boolean,     // booleans
};

struct ReportColumn
{
    const char* name;
    CellType type;
};

using ReportRow = std::vector<Value>; // one value a column; null where there is nothing to tell

// The report's content as data. Never a password; the social security number in the employee records only.
struct ReportTable
{
    std::span<const ReportColumn> columns{}; // of a lifetime without end
    std::vector<ReportRow> rows{};
};

struct ReportLine
{
    std::string text;      // without its line end, CR LF; may hold line ends of its own
    std::int32_t code = 0; // of what was found missing behind it; 0 = nothing
};

// Lines that belong together: a page ends inside a group only where no page could hold it.
struct LineGroup
{
    std::size_t lines = 0;     // counted with the line ends inside them
    bool atFoot = false;       // belongs to the foot of its page, and to the group before it
    bool underHeading = false; // goes on under the document's heading
};

// Those whose part is missing for one reason.
struct ReportGap
{
    std::string reason; // in words for the report's readers
    std::string names;  // empty where the title says whose
};

struct ReportDocument
{
    std::string title;
    std::string fileName{}; // of the text form, inside the reports folder
    std::vector<ReportLine> lines{};
    std::vector<LineGroup> groups{}; // of all lines, in their order
    std::string heading{};           // of the columns; stands again where a page begins in the midst of them
    ReportTable table{};
    std::size_t columns = 0; // that its lines need, where they are wider than a report's: its pages have a smaller type then
    std::vector<ReportGap> gaps{};
    bool whole = true; // false: what should follow the last line is not there

    // Of the last thing found missing; 0 when the report is complete.
    [[nodiscard]] std::int32_t Code() const;

    // The gaps in words, "without Ann Lee, Bo Kim: REASON; without Al: REASON"; empty without one.
    [[nodiscard]] std::string Missing() const;

    // Making it: lines go into the group begun last, and what is missing is noted behind the last line. REQUIRES: a group; a line.
    void BeginGroup(bool atFoot = false) { groups.push_back({0, atFoot}); }
    void Add(std::string text);
    void AddRule();

    // Splits the last group: before each of the `count` lines that end `below` lines above the group's end a page may begin, under the
    // heading.
    void SplitBefore(std::size_t count, std::size_t below);

    void Fail(std::int32_t code) { lines.back().code = code; }
    void CutShort(std::int32_t code);
    void AddGap(const std::string& reason, const std::string& whose);
};

// One more than it has line ends.
[[nodiscard]] std::size_t CountLines(const std::string& text);

} // namespace ptk
