// Reads and pairs the lines of a file of punches. Of the database it needs only the employees.
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

// A time record of the file. The end of an open one is the zero date-time.
struct SheetPunch
{
    std::int32_t employee = 0; // EmployeeID
    DateTime start;
    DateTime end;
    std::int64_t line = 0;    // line of the record, or of its clock-in
    std::int64_t outLine = 0; // line of the clock-out; 0 if the record has none of its own

    [[nodiscard]] std::int64_t Lines() const { return outLine == 0 ? 1 : 2; }
};

struct PunchLines
{
    std::vector<SheetPunch> punches;  // in the order of the file
    std::vector<RefusedLine> refused; // in no order
    std::int64_t lines = 0;           // without the heading and blank ones
    std::string startColumn;          // heading of the starts, or of the events' times
};

struct PunchFile
{
    std::string file;            // a path in the platform's own form
    std::optional<int> codePage; // for a file that is not UTF-8; none: the western one
    SheetWords words;
};

// Reads the records of a file; `text` is an answer of ReadSheet. `longestHours`: a clock-out that ends a longer shift is refused. Raises a
// failure without a number, one sentence, if the file is refused as a whole: for its headings, or for a quotation mark that is never
// closed.
[[nodiscard]] PunchLines ReadPunches(std::string_view text, const SheetWords& words, const SheetPeople& people, std::int32_t longestHours,
                                     const GoesOn& goesOn = {});

} // namespace ptk
