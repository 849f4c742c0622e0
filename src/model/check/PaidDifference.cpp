#include "model/check/PaidDifference.h"

#include "platform/Succeeds.h"
#include "platform/text/DecimalSum.h"
#include "platform/text/Text.h"

#include <cmath>

namespace ptk {

namespace {

constexpr auto kNoDifference = "+0.00";
constexpr std::size_t kLongestFigure = 42; // characters of a figure that is added digit by digit; only another tool stores longer ones
constexpr double kMinutesAnHour = 60.0;

bool HasTwoDecimals(const std::string& figure)
{
    const std::string digits = figure.starts_with('-') ? figure.substr(1) : figure;
    return digits.size() > 3 && digits.size() < kLongestFigure && digits.find_first_not_of("0123456789") == digits.size() - 3 &&
           digits[digits.size() - 3] == '.' && digits.find_last_not_of("0123456789") == digits.size() - 3;
}

// A paid figure with two decimals: as the program wrote it, or made of a number that another tool wrote. None of anything else.
std::optional<std::string> Figure(const std::string& paid)
{
    if (HasTwoDecimals(paid)) {
        return paid;
    }
    std::optional<std::string> figure;
    Succeeds([&] { figure = TwoDecimals(ToSingle(paid)); });
    return figure;
}

std::string Less(const std::string& now, const std::string& paid)
{
    DecimalSum difference;
    difference.Add(now);
    difference.Add(paid.starts_with('-') ? paid.substr(1) : '-' + paid);
    const std::string text = difference.Text();
    return text.starts_with('-') ? text : '+' + text;
}

} // namespace

std::int64_t PaidDifference::Minutes() const
{
    return regular && overtime ? std::llround((ToDouble(*regular) + ToDouble(*overtime)) * kMinutesAnHour) : 0;
}

std::optional<PaidDifference> DifferenceOf(const Closing& paid, const std::optional<CardFigures>& now)
{
    const auto regular = Figure(paid.regular);
    const auto overtime = Figure(paid.overtime);
    const auto gross = Figure(paid.gross);
    if (!now || !regular || !overtime || !gross) {
        return PaidDifference{};
    }
    PaidDifference difference{Less(now->regular, *regular), Less(now->overtime, *overtime), Less(now->gross, *gross)};
    return difference == PaidDifference{kNoDifference, kNoDifference, kNoDifference} ? std::nullopt : std::optional(std::move(difference));
}

} // namespace ptk
