// The register of error numbers: every number that a class of the program leaves behind for a failure, by the class that sets it. The
// numbers are old and shared: what tells two uses of one number apart is whom one asks. A number that means the same at two classes is
// defined at one of them and only named at the other. Failures of the platform and of the database engine carry numbers of their own
// (platform/Failure.h).
#pragma once

#include <cstdint>

namespace ptk {

// Of every keyed list. No operation raises; it answers false or an empty entry and leaves one of these.
namespace listerror {
inline constexpr std::int32_t CreateFailed = 301;
inline constexpr std::int32_t DestroyFailed = 302;
inline constexpr std::int32_t InsertFailed = 312;
inline constexpr std::int32_t RemoveFailed = 313;
inline constexpr std::int32_t SaveFailed = 321;
inline constexpr std::int32_t ListEmpty = 331; // weeding a list without entries
inline constexpr std::int32_t ReadFailed = 341;
inline constexpr std::int32_t NoSuchPosition = 351; // removing outside 1 to Count
} // namespace listerror

// Of CFile; any other is the platform's own failure number.
namespace fileerror {
inline constexpr std::int32_t NotOpen = 503;   // or no file number was free
inline constexpr std::int32_t WriteOnly = 504; // read attempted in mode 1 or 2
inline constexpr std::int32_t ReadOnly = 505;  // write attempted in mode 0
inline constexpr std::int32_t NotClosed = 506; // or it could not take its place
} // namespace fileerror

// Of CDocLauncher. Any other refusal of the shell, and a success, leave ErrorNumber as it was.
namespace docerror {
inline constexpr std::int32_t NoDocumentName = 901;
inline constexpr std::int32_t DocumentNotFound = 902;
inline constexpr std::int32_t NoParentWindow = 911;
} // namespace docerror

// Of CJetDB. A failed open leaves the engine's own number instead of one of these. Why it was is LastFailure's to tell.
namespace jetdb {
inline constexpr std::int32_t NoDatabase = 403;                               // no handle, no name, or an operation found no open database
inline constexpr std::int32_t NoSql = 406;                                    // neither an argument nor a stored statement
inline constexpr std::int32_t StatementFailed = 407;                          // a select or action failed
inline constexpr std::int32_t ListingFailed = 411;                            // a listing stored query failed
inline constexpr std::int32_t InsertFailed = 412;                             // an insert through a stored query failed
inline constexpr std::int32_t UpdateFailed = 413;                             // an update through a stored query failed
inline constexpr std::int32_t RowChanged = 414;                               // only as a reason: the row is not as it was read
inline constexpr std::int32_t NegativeCount = 421;                            // a listing reported a negative row count
inline constexpr std::int32_t WorkingReferenceLost = listerror::InsertFailed; // a loaded company did not arrive in its list
} // namespace jetdb

// Of CTimeRecSQLConverter: the text of a statement could not be made.
namespace sqlerror {
inline constexpr std::int32_t InsertFailed = 810;
inline constexpr std::int32_t UpdateFailed = 811;
inline constexpr std::int32_t DeleteFailed = 812;
inline constexpr std::int32_t FetchFailed = 813;
} // namespace sqlerror

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

// Of the reports.
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

// Of the main window.
namespace windowerror {
inline constexpr std::int32_t NoController = 211;
inline constexpr std::int32_t FillListsFailed = 221;
inline constexpr std::int32_t ShowPageFailed = 281;
inline constexpr std::int32_t ClearFieldsFailed = 283;
} // namespace windowerror

// What a number means, in a few words for the log and the console; "the operation failed" for one that stands here nowhere.
[[nodiscard]] const char* ErrorText(std::int32_t number);

} // namespace ptk
