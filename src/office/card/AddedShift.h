// One shift for several people on one day that nobody clocked, for instance because a terminal was dead: its boxes, and a forecast.
#pragma once

#include "office/card/FillPlan.h"
#include "platform/text/TypedTime.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace ptk {

class CEmployee;
class CJetDB;

// The contents of the boxes for the shift.
struct AddedShift
{
    std::optional<DateTime> day; // midnight; none: the box holds no date
    TypedMoment start;           // times of the day
    TypedMoment end;

    // The shift; nothing unless all three boxes can be read. An end before the start lies on the next day. Equal start and end give no
    // shift.
    [[nodiscard]] std::optional<Shift> Read() const;
};

// The EmployeeIDs of those with a record that starts on that day; nothing if that could not be read. REQUIRES: database is not nullptr.
[[nodiscard]] std::optional<std::set<std::int64_t>> WithRecordsOn(const std::shared_ptr<CJetDB>& database, DateTime day);

// Says what saving will do, or which entry is missing. `taken` is the answer of WithRecordsOn. A shift of more than `longShiftHours` hours
// is pointed out.
[[nodiscard]] std::string AddedShiftForecast(const AddedShift& shift, const std::vector<std::shared_ptr<CEmployee>>& people,
                                             const std::optional<std::set<std::int64_t>>& taken, std::int32_t longShiftHours);

} // namespace ptk
