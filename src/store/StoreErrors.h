// The error numbers of the database and its statements, by the class that sets them.
#pragma once

#include "shell/ShellErrors.h"

#include <cstdint>

namespace ptk {

// The error numbers of CJetDB. A failed open leaves the engine's own number instead of one of these. CJetDB::LastFailure tells the reason.
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

// The error numbers of CTimeRecSQLConverter: the text of a statement could not be made.
namespace sqlerror {
inline constexpr std::int32_t InsertFailed = 810;
inline constexpr std::int32_t UpdateFailed = 811;
inline constexpr std::int32_t DeleteFailed = 812;
inline constexpr std::int32_t FetchFailed = 813;
} // namespace sqlerror

} // namespace ptk
