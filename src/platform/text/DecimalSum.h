// Sums of amounts as they are shown, exact whatever their size: a single's range goes far beyond what integers hold.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace ptk {

class DecimalSum
{
public:
    // Adds an amount as TwoDecimals writes it: "-1234.50".
    void Add(std::string_view amount);

    // The sum, in the form that TwoDecimals writes.
    [[nodiscard]] std::string Text() const;

private:
    static constexpr std::size_t kDigits = 64; // a single has at most 39 before the point

    std::array<std::int64_t, kDigits> m_digits{}; // from the last decimal up, signed and not carried
};

} // namespace ptk
