// The time records of one card, in order.
#pragma once

#include "model/CTimeRecord.h"
#include "shell/KeyedList.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace ptk {

class CJetDB;

class CTimeRecordList final : public KeyedStore<std::shared_ptr<CTimeRecord>>
{
public:
    void PTKDatabase(std::shared_ptr<CJetDB> value) { m_database = std::move(value); } // kept, not used by the list

    bool AddNew(const std::shared_ptr<CTimeRecord>& thisvalue);                  // appends it as new; false with 312
    bool Insert(std::shared_ptr<CTimeRecord> thisvalue, std::int32_t thisindex); // false with 312; the record's state stays
    bool Remove(std::int32_t thisindex);                                         // false with 351 or 313

    // Deliberately loses the record and answers false: it is put back at `toHere` only when taking it out failed.
    bool Move(std::int32_t fromHere, std::int32_t toHere);

    // For walks: raises Failure 9 outside 1 to Count and 91 for an empty entry; leaves ErrorNumber alone.
    CTimeRecord& RecordAt(std::int32_t position) const;

    using KeyedStore::Entries;
    using KeyedStore::Reserve;

private:
    std::shared_ptr<CJetDB> m_database;
};

} // namespace ptk
