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
    // The list keeps the database but does not use it.
    void PTKDatabase(std::shared_ptr<CJetDB> value) { m_database = std::move(value); }

    // Appends the record and sets its state to new; false with 312.
    bool AddNew(const std::shared_ptr<CTimeRecord>& thisvalue);

    // Inserts the record, whose state stays as it is; false with 312.
    bool Insert(std::shared_ptr<CTimeRecord> thisvalue, std::int32_t thisindex);

    // False with 351 or 313.
    bool Remove(std::int32_t thisindex);

    // Deliberately loses the record and answers false: it is put back at `toHere` only when taking it out failed.
    bool Move(std::int32_t fromHere, std::int32_t toHere);

    // For walks through the list: raises Failure 9 outside 1 to Count and 91 for an empty entry; leaves ErrorNumber alone.
    [[nodiscard]] CTimeRecord& RecordAt(std::int32_t position) const;

    using KeyedStore::Entries;
    using KeyedStore::Reserve;

private:
    std::shared_ptr<CJetDB> m_database;
};

} // namespace ptk
