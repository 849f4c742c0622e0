// The error numbers of the reports.
#pragma once

#include "model/ModelErrors.h"

#include <cstdint>

namespace ptk {

// Error numbers of the reports, some of them shared with files, lists and time cards.
namespace report {
using fileerror::NotClosed;
using fileerror::NotOpen;
using listerror::ListEmpty; // a review without a list of employees
using timecard::InvalidRange;
using timecard::NoEmployee;
using timecard::NoRecords;
inline constexpr std::int32_t NoViewer = 701;
inline constexpr std::int32_t LineNotWritten = 702;
inline constexpr std::int32_t LineNotShown = 703;
inline constexpr std::int32_t NoPhoneBookList = 704;
inline constexpr std::int32_t NoEmployeeList = 705;
inline constexpr std::int32_t NoTimeCard = 706;
inline constexpr std::int32_t NotGenerated = timecard::TextFailed; // a time card or another part of the body
inline constexpr std::int32_t Cancelled = 711;                     // stopped by the user; the report's last line says so
} // namespace report

} // namespace ptk
