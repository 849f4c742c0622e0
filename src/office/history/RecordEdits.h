// Finds which records of a card were entered or changed by hand, by whom and when.
#pragma once

#include "store/trail/TrailReader.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace ptk {

class CJetDB;
class CTimeCard;

// Texts by TimeRecordID, for those records that were edited: "Added by Ann Lee on 03/05/2003 06:00 PM" and, on a line of its own, the last
// "Changed by ...".
using RecordEdits = std::unordered_map<std::int64_t, std::string>;

// The edits that the entries hold. Clocking in and out is no edit: a program that names neither itself nor a person adds a record, or sets
// an end that was not set. REQUIRES: entries newest first.
[[nodiscard]] RecordEdits EditsIn(const std::vector<TrailEntry>& entries);

// Reads the edits of the card's records. The cost does not grow with the history. Raises what reading the trail raises. REQUIRES: database
// is not nullptr.
[[nodiscard]] RecordEdits ReadRecordEdits(const std::shared_ptr<CJetDB>& database, const CTimeCard& card);

} // namespace ptk
