// The system options as the options page shows and takes them.
#pragma once

#include "platform/text/DateTime.h"
#include "store/CheckLimits.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ptk {

class CSystemOptions;

struct OptionTexts
{
    std::string periodLength;
    std::string autoShiftStart;
    std::string autoShiftEnd;

    // Calls `visit` with a pointer to each member.
    template <typename Visit>
    static void ForEachField(Visit visit)
    {
        for (std::string OptionTexts::*text : {&OptionTexts::periodLength, &OptionTexts::autoShiftStart, &OptionTexts::autoShiftEnd}) {
            visit(text);
        }
    }
};

[[nodiscard]] OptionTexts ShowOptions(const CSystemOptions& options);

// Takes the texts over one by one and writes the options to the database. The first text that cannot be read ends this with false: that
// option is then 0 in memory, those before it have their new values, and nothing is written. False also if the writing fails. Raises
// Failure 6 for a period length beyond 16 bits.
[[nodiscard]] bool StoreOptions(CSystemOptions& options, const OptionTexts& texts);

// What a period length typed as this text means from today on: "A period has 15 days, for example 03/05/2003 - 03/19/2003". Empty for a
// text that is no length.
[[nodiscard]] std::string PeriodExample(const std::string& periodLength, DateTime today);

// The limits of the check of time cards, as the options page shows and takes them.
struct LimitTexts
{
    std::string longShiftHours;
    std::int32_t firstWeekday = 0; // 0 Sunday to 6 Saturday
    bool showNotices = true;

    bool operator==(const LimitTexts&) const = default;

    template <typename Visit>
    static void ForEachField(Visit visit)
    {
        visit(&LimitTexts::longShiftHours);
        visit(&LimitTexts::firstWeekday);
        visit(&LimitTexts::showNotices);
    }
};

[[nodiscard]] LimitTexts ShowLimits(const CheckLimits& limits);

// The limits; nothing if the hours are no whole number from 1 to 999.
[[nodiscard]] std::optional<CheckLimits> ReadLimits(const LimitTexts& texts);

// Why the limits cannot be stored; empty if they can.
[[nodiscard]] std::string LimitRefusal(const LimitTexts& texts);

} // namespace ptk
