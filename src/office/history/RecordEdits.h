// Which records of a card were entered or changed by hand, by whom and when.
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

// By TimeRecordID, of those of which there is anything to say: "Added by Ann Lee on 03/05/2003 06:00 PM" and, in a line of its own, the
// last "Changed by ...".
using RecordEdits = std::unordered_map<std::int64_t, std::string>;

// Clocking in and out is neither: another program adds a record, and puts an end where there was none. REQUIRES: entries newest first.
[[nodiscard]] RecordEdits EditsIn(const std::vector<TrailEntry>& entries);

// Of the card's records; what it reads does not grow with the history. Raises what reading the trail raises. REQUIRES: database is not
// nullptr.
[[nodiscard]] RecordEdits ReadRecordEdits(const std::shared_ptr<CJetDB>& database, const CTimeCard& card);

} // namespace ptk
