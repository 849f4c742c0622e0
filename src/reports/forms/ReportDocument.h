// The content of a report. It is made once and then rendered: as text for its file and its viewer, as pages or as data.
#pragma once

#include "platform/text/Value.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ptk {

// The type of a column's values.
enum class CellType
{
    Text,        // text
    WholeNumber, // 32-bit integers
    Hours,       // singles, decimal hours
    Money,       // singles, dollars, told to the cent
    Rate,        // singles, dollars per hour with all their decimals
    Date,        // date-times at midnight
    DateTime,    // date-times
    Boolean,     // booleans
};

struct ReportColumn
{
    const char* name;
    CellType type;
};

using ReportRow = std::vector<Value>; // one value for each column; null where there is none

// The report's content as data. It never holds a password, and the social security number only in the employee records.
struct ReportTable
{
    std::span<const ReportColumn> columns{}; // REQUIRES: they live until the program ends
    std::vector<ReportRow> rows{};
};

struct ReportLine
{
    std::string text;      // without its line end, CR LF; may hold line ends of its own
    std::int32_t code = 0; // the number of what is missing after this line; 0: nothing
};

// Lines that belong together: a page ends inside a group only where no page can hold the whole group.
struct LineGroup
{
    std::size_t lines = 0;     // how many, counting the line ends inside them, too
    bool atFoot = false;       // belongs to the foot of its page, and to the group before it
    bool underHeading = false; // stands under the document's heading, which a new page repeats
};

// The people whose part of the report is missing for one reason.
struct ReportGap
{
    std::string reason; // in words for the report's readers
    std::string names;  // empty where the report's title names the employee
};

struct ReportDocument
{
    std::string title;
    std::string fileName{}; // the name of the text file in the reports folder
    std::vector<ReportLine> lines{};
    std::vector<LineGroup> groups{}; // all lines belong to these, in their order
    std::string heading{};           // of the columns; repeated where a page begins in the midst of them
    ReportTable table{};
    std::size_t columns = 0; // the columns that lines wider than a report's need: the pages get a smaller type then; else 0
    std::vector<ReportGap> gaps{};
    bool whole = true; // false: the document ends too early

    // The number of the last thing that is missing; 0 when the report is complete.
    [[nodiscard]] std::int32_t Code() const;

    // The gaps in words, "without Ann Lee, Bo Kim: REASON; without Al: REASON"; empty without one.
    [[nodiscard]] std::string Missing() const;

    // The members below make the document. Lines go into the group begun last; Fail and CutShort note a number after the last line.
    // REQUIRES: a group was begun; a line was added.
    void BeginGroup(bool atFoot = false) { groups.push_back({0, atFoot}); }
    void Add(std::string text);
    void AddRule();

    // Splits the last group, so that a page may begin before each of `count` of its lines, under the heading. The last of these lines has
    // `below` lines of the group after it.
    void SplitBefore(std::size_t count, std::size_t below);

    void Fail(std::int32_t code) { lines.back().code = code; }
    void CutShort(std::int32_t code);
    void AddGap(const std::string& reason, const std::string& whose);
};

// How many lines a text has: one more than line ends.
[[nodiscard]] std::size_t CountLines(const std::string& text);

} // namespace ptk
