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

// The functions that store are also false when the database refused a statement; the card itself is true then. They may raise failures.

// Stores a new or changed record, as a record of the card's employee.
[[nodiscard]] bool StoreRecord(CTimeCard& card, CTimeRecordFactory& factory, const std::shared_ptr<CTimeRecord>& record);

// Deletes the record. If that fails, the record keeps its former state, so that the next save of the whole card does not delete it.
[[nodiscard]] bool StoreDeletion(CTimeCard& card, CTimeRecordFactory& factory, const std::shared_ptr<CTimeRecord>& record);

// Stores every new or changed record of the card's list, or none of them if one is refused. The new ones then leave the list, so that the
// next save of the whole card does not store them.
[[nodiscard]] bool StoreCard(CTimeCard& card, CTimeRecordFactory& factory);

// A stored record as the check read it, to be edited. A time that cannot be read is left unset; storing such a record mends the row,
// whatever the row holds by then. nullptr for a key that no time record can have.
[[nodiscard]] std::shared_ptr<CTimeRecord> RecordToEdit(const Punch& punch, std::int32_t employeeID);

// The record to edit again after a refused save: as it is stored now, or a new one if the stored one was removed. nullptr if somebody else
// gave it to another employee. REQUIRES: the refused record was read from the database.
[[nodiscard]] std::shared_ptr<CTimeRecord> RecordToTryAgain(const CTimeRecord& refused, const RowConflict& conflict);

} // namespace ptk
