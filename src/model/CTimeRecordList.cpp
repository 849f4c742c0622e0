#include "model/CTimeRecordList.h"

#include "platform/Failure.h"

namespace ptk {

bool CTimeRecordList::AddNew(const std::shared_ptr<CTimeRecord>& thisvalue)
{
    if (thisvalue == nullptr) {
        ErrorNumber(listerror::InsertFailed);
        return false;
    }
    if (!InsertAt(thisvalue, Count() + 1)) {
        return false;
    }
    thisvalue->ObjectState(state::New);
    return true;
}

bool CTimeRecordList::Insert(std::shared_ptr<CTimeRecord> thisvalue, std::int32_t thisindex)
{
    return InsertAt(std::move(thisvalue), thisindex);
}

bool CTimeRecordList::Remove(std::int32_t thisindex)
{
    return RemoveAt(thisindex).has_value();
}

bool CTimeRecordList::Move(std::int32_t fromHere, std::int32_t toHere)
{
    const auto moved = Item(fromHere);
    if (moved == nullptr || Remove(fromHere)) {
        return false;
    }
    return Insert(moved, toHere);
}

CTimeRecord& CTimeRecordList::RecordAt(std::int32_t position) const
{
    if (!Holds(position)) {
        throw Failure(failure::SubscriptOutOfRange);
    }
    const auto& record = Entries()[static_cast<std::size_t>(position) - 1];
    if (record == nullptr) {
        throw Failure(failure::ObjectNotSet);
    }
    return *record;
}

} // namespace ptk
