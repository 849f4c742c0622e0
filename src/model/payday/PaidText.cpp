#include "model/payday/PaidText.h"

#include "model/payday/Closing.h"
#include "platform/text/DayText.h"

#include <fmt/format.h>

namespace ptk {

std::string PaidText(const Closing& closing)
{
    const std::string at = closing.paidAt ? " on " + MomentText(*closing.paidAt) : "";
    return "Paid" + at + (closing.paidBy.empty() ? "" : " by " + closing.paidBy);
}

std::string PaidFigures(const Closing& closing)
{
    return fmt::format("{} + {} hours, {}", closing.regular, closing.overtime, closing.gross);
}

} // namespace ptk
