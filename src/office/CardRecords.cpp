#include "office/CardRecords.h"

#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "model/Punch.h"
#include "platform/Required.h"

#include <limits>

namespace ptk {

namespace {

bool Save(CTimeCard& card, CTimeRecordFactory& factory, const std::shared_ptr<CTimeRecord>& record)
{
    factory.ResetError();
    return card.SaveTimeRecord(record) && factory.ErrorNumber() == 0;
}

void DropNewRecords(CTimeRecordList& records)
{
    for (std::int32_t i = records.Count(); i >= 1; --i) {
        if (records.RecordAt(i).ObjectState() == state::New) {
            records.Remove(i);
        }
    }
}

} // namespace

bool StoreRecord(CTimeCard& card, CTimeRecordFactory& factory, const std::shared_ptr<CTimeRecord>& record)
{
    Required(record)->EmployeeID(Required(card.Employee())->EmployeeID());
    return Save(card, factory, record);
}

bool StoreDeletion(CTimeCard& card, CTimeRecordFactory& factory, const std::shared_ptr<CTimeRecord>& record)
{
    const std::int32_t before = Required(record)->ObjectState();
    record->ObjectState(state::Deleted);
    const bool stored = Save(card, factory, record);
    if (!stored) {
        record->ObjectState(before);
    }
    return stored;
}

bool StoreCard(CTimeCard& card, CTimeRecordFactory& factory)
{
    const bool stored = card.Save() && factory.ErrorNumber() == 0;
    if (!stored) {
        DropNewRecords(*Required(card.TimeRecordList()));
    }
    return stored;
}

std::shared_ptr<CTimeRecord> RecordToEdit(const Punch& punch, std::int32_t employeeID)
{
    if (punch.id < 0 || punch.id > std::numeric_limits<std::int32_t>::max()) {
        return nullptr;
    }
    auto record = std::make_shared<CTimeRecord>();
    record->TimeRecordID(static_cast<std::int32_t>(punch.id));
    record->EmployeeID(employeeID);
    record->StartTime(punch.start.value_or(DateTime()));
    record->EndTime(punch.end.value_or(DateTime()));
    record->ObjectState(state::Unchanged); // last, since filling marks it changed
    if (punch.IsReadable()) {
        record->KeepAsRead();
    }
    return record;
}

std::shared_ptr<CTimeRecord> RecordOnCard(const CTimeCard& card, std::int32_t timeRecordID)
{
    const auto records = card.TimeRecordList();
    for (std::int32_t i = 1; records != nullptr && i <= records->Count(); ++i) {
        if (records->RecordAt(i).TimeRecordID() == timeRecordID) {
            return records->Item(i);
        }
    }
    return nullptr;
}

} // namespace ptk
