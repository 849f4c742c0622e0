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

    // With a pointer to each member.
    template <typename Visit>
    static void ForEachField(Visit visit)
    {
        for (std::string OptionTexts::*text : {&OptionTexts::periodLength, &OptionTexts::autoShiftStart, &OptionTexts::autoShiftEnd}) {
            visit(text);
        }
    }
};

[[nodiscard]] OptionTexts ShowOptions(const CSystemOptions& options);

// Takes the texts over one by one and writes the options to the database. The first text that is none stops it with false: that option is
// then 0 in memory, those before it keep what was typed, and nothing is written. False also when the writing fails.
// Raises Failure 6 for a period length beyond 16 bits.
[[nodiscard]] bool StoreOptions(CSystemOptions& options, const OptionTexts& texts);

// What a period length typed as this text means from today on: "A period has 15 days, for example 03/05/2003 - 03/19/2003". Empty for a
// text that is no length.
[[nodiscard]] std::string PeriodExample(const std::string& periodLength, DateTime today);

// The limits of the check of time cards, likewise.
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

// Nothing where the hours are no whole number from 1 to 999.
[[nodiscard]] std::optional<CheckLimits> ReadLimits(const LimitTexts& texts);

// Why they cannot be stored; empty when they can.
[[nodiscard]] std::string LimitRefusal(const LimitTexts& texts);

} // namespace ptk
