// The error numbers of the main window.
#pragma once

#include <cstdint>

namespace ptk {

namespace windowerror {
inline constexpr std::int32_t NoController = 211;
inline constexpr std::int32_t FillListsFailed = 221;
inline constexpr std::int32_t ShowPageFailed = 281;
inline constexpr std::int32_t ClearFieldsFailed = 283;
} // namespace windowerror

} // namespace ptk
