// One line of a time card.
#pragma once

#include "platform/text/DateTime.h"

#include <memory>
#include <string>

namespace ptk {

class CTimeRecord;

// Times and hours stay as they were when the card was asked for its lines, whatever an editor does to the record later. REQUIRES: a record.
struct CardLine
{
    DateTime start;
    DateTime end;                        // zero: still clocked in
    float hours = 0;                     // decimal; deliberately below 0 where the end is before the start, which is paid as 0
    std::shared_ptr<CTimeRecord> record; // whose line it is

    // Start and end in the record's own date-time format.
    [[nodiscard]] std::string StartText() const;
    [[nodiscard]] std::string EndText() const;

    // The hours less the break, with two decimals.
    [[nodiscard]] std::string HoursText(float breakHours = 0) const;

    // Appends start, tab, end, tab and the hours less the break.
    void AppendTo(std::string& text, float breakHours) const;
};

} // namespace ptk
