// Storing what was done to the records of a time card, so that nothing is stored twice and nothing goes unnoticed.
#pragma once

#include <memory>

namespace ptk {

class CTimeCard;
class CTimeRecord;
class CTimeRecordFactory;

// All of these are false when the database refused a statement, too, which the card itself answers true to. They may raise failures.

// New or changed, as the record of the card's employee.
bool StoreRecord(CTimeCard& card, CTimeRecordFactory& factory, const std::shared_ptr<CTimeRecord>& record);

// A record that could not be deleted stays as it was, so that it does not go with the next save of the whole card.
bool StoreDeletion(CTimeCard& card, CTimeRecordFactory& factory, const std::shared_ptr<CTimeRecord>& record);

// Every new or changed record of the card's list, or, where one is refused, none of them. The new ones then leave the list, so that they do
// not go with the next save of the whole card.
bool StoreCard(CTimeCard& card, CTimeRecordFactory& factory);

} // namespace ptk
