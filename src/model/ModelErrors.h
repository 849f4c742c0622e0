// The error numbers of time cards and what they are made of, by the class that sets them.
#pragma once

#include "shell/ShellErrors.h"

#include <cstdint>

namespace ptk {

// Of CDateRange.
namespace daterange {
inline constexpr std::int32_t NotADate = 801;
inline constexpr std::int32_t EndBeforeStart = 802;
inline constexpr std::int32_t OutOfLimits = 803;
inline constexpr std::int32_t NeverValidated = 804;
inline constexpr std::int32_t NotConvertible = 899;
} // namespace daterange

// Of CTimeRecord.
namespace timerecord {
inline constexpr std::int32_t TextFailed = 806; // a text form failed
} // namespace timerecord

// Of CEmployee. Its 803 is not the date range's.
namespace employee {
inline constexpr std::int32_t SaveFailed = 803; // nothing to save in this state
using timerecord::TextFailed;
} // namespace employee

// Of CCompany.
namespace company {
using listerror::SaveFailed; // nothing to save in this state; deliberately not the employees' number
using timerecord::TextFailed;
} // namespace company

// Of CTimeRecordListSorter.
namespace recordsorter {
inline constexpr std::int32_t SortFailed = 314;
using listerror::ReadFailed; // nothing was found to compare; also: there is no list
} // namespace recordsorter

// Of CTimeRecordFactory.
namespace recordfactory {
using employee::SaveFailed;    // the database refused a statement
using listerror::CreateFailed; // the list of a period; also: no records in the period
using listerror::DestroyFailed;
using listerror::InsertFailed;
using recordsorter::SortFailed;
inline constexpr std::int32_t SaveListFailed = listerror::SaveFailed;
} // namespace recordfactory

// Of CTimeCard.
namespace timecard {
inline constexpr std::int32_t FetchFailed = listerror::CreateFailed; // clocking out
inline constexpr std::int32_t NoDatabase = 405;
inline constexpr std::int32_t GenerateFailed = 601;
inline constexpr std::int32_t NoEmployee = 602;
inline constexpr std::int32_t InvalidRange = 603;
inline constexpr std::int32_t CalculationFailed = 604; // told by the Timecards page; no card sets it
inline constexpr std::int32_t NoRecords = 605;
inline constexpr std::int32_t NoSuchRecord = 607;
inline constexpr std::int32_t RecordRejected = 608; // by the time editor
inline constexpr std::int32_t TextFailed = 710;
} // namespace timecard

} // namespace ptk
