// Storing what was done to the records of a time card, so that nothing is stored twice and nothing goes unnoticed.
#pragma once

#include <cstdint>
#include <memory>

namespace ptk {

class CTimeCard;
class CTimeRecord;
class CTimeRecordFactory;
struct Punch;
struct RowConflict;

// All of these are false when the database refused a statement, too, which the card itself answers true to. They may raise failures.

// New or changed, as the record of the card's employee.
[[nodiscard]] bool StoreRecord(CTimeCard& card, CTimeRecordFactory& factory, const std::shared_ptr<CTimeRecord>& record);

// A record that could not be deleted stays as it was, so that it does not go with the next save of the whole card.
[[nodiscard]] bool StoreDeletion(CTimeCard& card, CTimeRecordFactory& factory, const std::shared_ptr<CTimeRecord>& record);

// Every new or changed record of the card's list, or, where one is refused, none of them. The new ones then leave the list, so that they do
// not go with the next save of the whole card.
[[nodiscard]] bool StoreCard(CTimeCard& card, CTimeRecordFactory& factory);

// A stored record as the check read it, to be edited; a time that cannot be read is not set in it, so that storing it mends the row,
// whatever stands there by then. nullptr for a key that no time record can have.
[[nodiscard]] std::shared_ptr<CTimeRecord> RecordToEdit(const Punch& punch, std::int32_t employeeID);

// What a refused record is to be edited as once more: as it is stored now, a removed one as a new record. nullptr for one that somebody
// else gave to another employee. REQUIRES: it was read before.
[[nodiscard]] std::shared_ptr<CTimeRecord> RecordToTryAgain(const CTimeRecord& refused, const RowConflict& conflict);

} // namespace ptk
