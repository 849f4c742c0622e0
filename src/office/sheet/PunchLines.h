// The lines of a file of punches, read and paired, before anything is asked of the database but who is who.
#pragma once

#include "office/sheet/SheetColumns.h"
#include "platform/GoesOn.h"
#include "platform/text/DateTime.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

class SheetPeople;

struct RefusedLine
{
    std::int64_t line = 0; // of the file on which the record begins, the first being 1
    std::string reason;    // begins with the column's name
};

// A time record that the file holds. An open one has the zero date-time as its end.
struct SheetPunch
{
    std::int32_t employee = 0; // EmployeeID
    DateTime start;
    DateTime end;
    std::int64_t line = 0;    // where it stands, or its first event
    std::int64_t outLine = 0; // of the event that ended it; 0 where there is none

    [[nodiscard]] std::int64_t Lines() const { return outLine == 0 ? 1 : 2; }
};

struct PunchLines
{
    std::vector<SheetPunch> punches;  // in the order of the file
    std::vector<RefusedLine> refused; // in no order
    std::int64_t lines = 0;           // without the heading and blank ones
    std::string startColumn;          // its heading, or that of the events' times
};

// Every thousand lines or records, `done` of them; false ends the work with a failure without a number.
void AskWhetherToGoOn(const GoesOn& goesOn, std::int64_t done);

struct PunchFile
{
    std::string file;            // a path in the platform's own form
    std::optional<int> codePage; // of a file that is no UTF-8; else the western one
    SheetWords words;
};

// The file's text as UTF-8, without a byte order mark. Raises failures without a number, one sentence each, for a file that is no text, and
// those of opening and reading it.
[[nodiscard]] std::string ReadSheet(const PunchFile& file);

// `text` as ReadSheet answers it. `longestHours`: an event that ends a longer shift is refused. Raises a failure without a number, one
// sentence, for a file that is refused as a whole: its headings, a quotation mark that is never closed.
[[nodiscard]] PunchLines ReadPunches(std::string_view text, const SheetWords& words, const SheetPeople& people, std::int32_t longestHours,
                                     const GoesOn& goesOn = {});

} // namespace ptk
