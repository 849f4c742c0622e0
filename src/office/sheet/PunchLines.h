// The lines of a file of punches, read and paired, before anything is asked of the database but who is who.
#pragma once

#include "office/sheet/SheetColumns.h"
#include "office/sheet/SheetFile.h"
#include "platform/text/DateTime.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

class SheetPeople;

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

struct PunchFile
{
    std::string file;            // a path in the platform's own form
    std::optional<int> codePage; // of a file that is no UTF-8; else the western one
    SheetWords words;
};

// `text` as ReadSheet answers it. `longestHours`: an event that ends a longer shift is refused. Raises a failure without a number, one
// sentence, for a file that is refused as a whole: its headings, a quotation mark that is never closed.
[[nodiscard]] PunchLines ReadPunches(std::string_view text, const SheetWords& words, const SheetPeople& people, std::int32_t longestHours,
                                     const GoesOn& goesOn = {});

} // namespace ptk
