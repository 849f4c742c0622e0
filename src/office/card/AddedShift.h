// A shift that several people have on one day and nobody clocked, because a terminal was dead for instance: what its boxes come to, and
// what is told of it beforehand.
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

// As the boxes answer them.
struct AddedShift
{
    std::optional<DateTime> day; // midnight; none: the box holds no date
    TypedMoment start;           // times of the day
    TypedMoment end;

    // Nothing unless all three can be read. An end that is not after the start lies on the next day; where both are the same there is no
    // shift.
    [[nodiscard]] std::optional<Shift> Read() const;
};

// Who has a record that starts on that day; nothing where that could not be read. REQUIRES: not nullptr.
[[nodiscard]] std::optional<std::set<std::int64_t>> WithRecordsOn(const std::shared_ptr<CJetDB>& database, DateTime day);

// What saving will do, or what is missing, in sentences. `taken`: see WithRecordsOn. longShiftHours: a longer one is told.
[[nodiscard]] std::string AddedShiftForecast(const AddedShift& shift, const std::vector<std::shared_ptr<CEmployee>>& people,
                                             const std::optional<std::set<std::int64_t>>& taken, std::int32_t longShiftHours);

} // namespace ptk
