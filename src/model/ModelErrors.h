// The error numbers of the model: time cards, time records, people and companies, by the class that sets them.
#pragma once

#include "shell/ShellErrors.h"

#include <cstdint>

namespace ptk {

// Error numbers of CDateRange.
namespace daterange {
inline constexpr std::int32_t NotADate = 801;
inline constexpr std::int32_t EndBeforeStart = 802;
inline constexpr std::int32_t OutOfLimits = 803;
inline constexpr std::int32_t NeverValidated = 804;
inline constexpr std::int32_t NotConvertible = 899;
} // namespace daterange

// Error numbers of CTimeRecord.
namespace timerecord {
inline constexpr std::int32_t TextFailed = 806; // a text form failed
} // namespace timerecord

// Error numbers of CEmployee. Its 803 and that of CDateRange mean different things.
namespace employee {
inline constexpr std::int32_t SaveFailed = 803; // nothing to save in this state
using timerecord::TextFailed;
} // namespace employee

// Error numbers of CCompany.
namespace company {
using listerror::SaveFailed; // nothing to save in this state; deliberately not the employees' number
using timerecord::TextFailed;
} // namespace company

// Error numbers of CTimeRecordListSorter.
namespace recordsorter {
inline constexpr std::int32_t SortFailed = 314;
using listerror::ReadFailed; // there is no list, or an entry of it is empty
} // namespace recordsorter

// Error numbers of CTimeRecordFactory.
namespace recordfactory {
using employee::SaveFailed;    // the database refused a statement
using listerror::CreateFailed; // the list of a period; also: no records in the period
using listerror::DestroyFailed;
using listerror::InsertFailed;
using recordsorter::SortFailed;
inline constexpr std::int32_t SaveListFailed = listerror::SaveFailed;
} // namespace recordfactory

// Error numbers of CTimeCard.
namespace timecard {
inline constexpr std::int32_t FetchFailed = listerror::CreateFailed; // clocking out
inline constexpr std::int32_t NoDatabase = 405;
inline constexpr std::int32_t GenerateFailed = 601;
inline constexpr std::int32_t NoEmployee = 602;
inline constexpr std::int32_t InvalidRange = 603;
inline constexpr std::int32_t CalculationFailed = 604; // no card sets it; the Timecards page and the console have words for it
inline constexpr std::int32_t NoRecords = 605;
inline constexpr std::int32_t NoSuchRecord = 607;
inline constexpr std::int32_t RecordRejected = 608; // by the time editor
inline constexpr std::int32_t TextFailed = 710;
} // namespace timecard

} // namespace ptk
