#include "office/card/CardRecords.h"

#include "model/CEmployee.h"
#include "model/check/Punch.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "platform/Required.h"
#include "platform/text/Text.h"
#include "store/RowConflict.h"

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
    auto record = StoredRecord({static_cast<std::int32_t>(punch.id), employeeID, punch.start.value_or(DateTime()),
                                punch.end.value_or(DateTime()), state::Unchanged});
    if (!punch.IsReadable()) {
        record->ForgetAsRead();
    }
    return record;
}

std::shared_ptr<CTimeRecord> RecordToTryAgain(const CTimeRecord& refused, const RowConflict& conflict)
{
    if (conflict.Removed()) {
        return std::make_shared<CTimeRecord>();
    }
    TimeRecordRow row = refused.AsRead().value();
    row.ObjectState = state::Unchanged;
    for (const FieldDifference& field : conflict.differences) {
        if (field.column == "EmployeeID") {
            return nullptr;
        }
        (field.column == "StartTime" ? row.StartTime : row.EndTime) = ParseDateTime(field.present).value_or(DateTime());
    }
    return StoredRecord(row);
}

} // namespace ptk
