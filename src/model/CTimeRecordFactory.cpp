#include "model/CTimeRecordFactory.h"

#include "model/CTimeRecordList.h"
#include "model/CTimeRecordListSorter.h"
#include "platform/Failure.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "store/CJetDB.h"
#include "store/CTimeRecSQLConverter.h"
#include "store/engine/EngineWords.h"
#include "store/engine/RecordSet.h"
#include "store/rows/RowReader.h"

#include <array>
#include <vector>

namespace ptk {

namespace {

constexpr std::int16_t kAscending = 1;

bool NeedsSaving(const CTimeRecord& record)
{
    return record.ObjectState() != state::Unchanged && record.ObjectState() != state::NothingToDo;
}

} // namespace

void CTimeRecordFactory::PTKDatabase(std::shared_ptr<CJetDB> value)
{
    if (value != nullptr) {
        m_database = std::move(value);
    }
}

bool CTimeRecordFactory::ResetError()
{
    m_errorNumber = 0;
    ForgetFailure();
    return true;
}

bool CTimeRecordFactory::BuildList(std::int32_t theemployeeid, DateTime thestarttime, DateTime theendtime)
{
    ResetError();
    const auto build = [&] {
        RenewList();
        const bool found = Load(theemployeeid, thestarttime, theendtime);
        SortTimeRecordList();
        return found;
    };
    // The file must not stay held after a failure, or no other program could open it.
    const auto giveUp = [&](const Failure& reason) {
        m_refusal.failure = reason;
        if (m_database != nullptr) {
            m_database->CloseDB();
        }
    };
    return Succeeds(build, giveUp) || Fail(recordfactory::CreateFailed);
}

void CTimeRecordFactory::RenewList()
{
    if (m_list == nullptr) {
        m_list = std::make_shared<CTimeRecordList>();
        return;
    }
    m_list->Destroy();
    m_list->Create();
}

bool CTimeRecordFactory::Load(std::int32_t theemployeeid, DateTime thestarttime, DateTime theendtime)
{
    if (!Required(m_database)->OpenDB()) {
        m_refusal.failure = m_database->LastFailure();
        return true;
    }
    const auto rows = m_database->ExecuteSelect(WholeFetch({theemployeeid, thestarttime, theendtime, m_database->Words().thenByKey}));
    if (rows != nullptr) {
        InsertRows(*rows);
    } else {
        m_refusal.failure = m_database->LastFailure();
    }
    m_database->CloseDB();
    return rows == nullptr || rows->RecordCount() > 0;
}

void CTimeRecordFactory::InsertRows(RecordSet& rows)
{
    const std::int32_t count = rows.RecordCount();
    RowReader reader(rows, TimeRecordTable());
    m_list->Reserve(count);
    for (std::int32_t i = 1; i <= count; ++i) {
        if (!m_list->Insert(StoredRecord(reader.ReadTimeRecord()), i)) {
            m_errorNumber = recordfactory::InsertFailed;
        }
        rows.MoveNext();
    }
}

bool CTimeRecordFactory::DestroyList()
{
    ResetError();
    if (m_list == nullptr || !m_list->Destroy()) {
        return Fail(recordfactory::DestroyFailed);
    }
    m_list.reset();
    return true;
}

void CTimeRecordFactory::ForgetFailure()
{
    m_refusal = {};
}

// Notes the stored row for the next save. There is none to note for a new record, whose number is not known, and for a deleted one.
void CTimeRecordFactory::Stored(CTimeRecord& record)
{
    if (record.ObjectState() == state::Changed) {
        record.KeepAsRead();
    } else {
        record.ForgetAsRead();
    }
}

bool CTimeRecordFactory::Save(const std::shared_ptr<CTimeRecord>& thetimerecord)
{
    ForgetFailure();
    const auto save = [&] {
        if (m_database != nullptr && thetimerecord != nullptr) {
            const TimeRecordWrite write = WriteOf(*thetimerecord);
            const bool stored = write.asRead ? m_database->SaveTimeRecords({&write, 1}) : m_database->ExecuteAction(write.statement);
            TakeAnswer(stored, std::array{thetimerecord.get()});
        }
    };
    return Succeeds(save, [&](const Failure& reason) { Fail(recordfactory::SaveFailed, reason); });
}

bool CTimeRecordFactory::SaveList()
{
    ResetError();
    const auto save = [&] {
        std::vector<CTimeRecord*> records;
        std::vector<TimeRecordWrite> writes;
        for (std::int32_t i = 1; i <= Required(m_list)->Count(); ++i) {
            if (CTimeRecord& record = m_list->RecordAt(i); NeedsSaving(record)) {
                records.push_back(&record);
                writes.push_back(WriteOf(record));
            }
        }
        if (m_database != nullptr) {
            TakeAnswer(m_database->SaveTimeRecords(writes), records);
        }
    };
    return Succeeds(save, [&](const Failure& reason) { Fail(recordfactory::SaveListFailed, reason); });
}

// Only a record that is not new and kept its number is the row that was read; for others no row is compared.
TimeRecordWrite CTimeRecordFactory::WriteOf(const CTimeRecord& record)
{
    TimeRecordWrite write{WholeStatement(record.Row()), record.AsRead()};
    const bool sameRow = write.asRead && write.asRead->TimeRecordID == record.TimeRecordID() && record.ObjectState() != state::New;
    if (!sameRow || write.statement.empty()) {
        write.asRead.reset();
    }
    return write;
}

void CTimeRecordFactory::TakeAnswer(bool stored, std::span<CTimeRecord* const> records)
{
    if (!stored) {
        m_errorNumber = recordfactory::SaveFailed;
        m_refusal = m_database->LastRefusal();
        return;
    }
    for (CTimeRecord* record : records) {
        Stored(*record);
    }
}

std::shared_ptr<CTimeRecordList> CTimeRecordFactory::CloneTimeRecordList()
{
    return nullptr;
}

std::shared_ptr<CTimeRecord> CTimeRecordFactory::GetTimeRecordByKey(DateTime thestarttime, DateTime theendtime)
{
    CTimeRecordListSorter sorter(m_list);
    auto record = sorter.GetTimeRecordByKey(thestarttime, theendtime);
    if (record == nullptr) {
        m_errorNumber = sorter.ErrorNumber();
    }
    return record;
}

bool CTimeRecordFactory::SortTimeRecordList()
{
    return CTimeRecordListSorter(m_list).Sort(kAscending) || Fail(recordfactory::SortFailed);
}

void CTimeRecordFactory::Fail(std::int32_t errorNumber, const Failure& reason)
{
    m_refusal.failure = reason;
    m_errorNumber = errorNumber;
}

bool CTimeRecordFactory::Fail(std::int32_t errorNumber)
{
    m_errorNumber = errorNumber;
    return false;
}

} // namespace ptk
