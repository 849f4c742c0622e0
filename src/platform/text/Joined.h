// Joins several texts or whole numbers in one text.
#pragma once

#include <string>
#include <string_view>
#include <type_traits>

namespace ptk {

// The items as one text: "41, 42" for {41, 42} with ", " between; empty for no items.
template <typename Items>
[[nodiscard]] std::string Joined(const Items& items, std::string_view between)
{
    std::string all;
    bool isFirst = true;
    for (const auto& item : items) {
        all += isFirst ? std::string_view() : between;
        isFirst = false;
        if constexpr (std::is_integral_v<std::decay_t<decltype(item)>>) {
            all += std::to_string(item);
        } else {
            all += item;
        }
    }
    return all;
}

} // namespace ptk
