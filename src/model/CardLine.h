// One line of a time card.
#pragma once

#include "platform/text/DateTime.h"

#include <memory>
#include <string>

namespace ptk {

class CTimeRecord;

// Times and hours stand as they were when the card answered them, whatever an editor does to the record since. REQUIRES: a record.
struct CardLine
{
    DateTime start;
    DateTime end;                        // zero: still clocked in
    float hours = 0;                     // decimal; deliberately below 0 where the end is before the start, which is paid as 0
    std::shared_ptr<CTimeRecord> record; // whose line it is

    // In the record's own format of times.
    [[nodiscard]] std::string StartText() const;
    [[nodiscard]] std::string EndText() const;

    // Less the break, with two decimals.
    [[nodiscard]] std::string HoursText(float breakHours = 0) const;

    // Start, tab, end, tab, hours.
    void AppendTo(std::string& text, float breakHours) const;
};

} // namespace ptk
