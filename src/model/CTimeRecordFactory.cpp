#include "model/CTimeRecordFactory.h"

#include "model/CTimeRecordList.h"
#include "model/CTimeRecordListSorter.h"
#include "platform/Failure.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "store/CJetDB.h"
#include "store/CTimeRecSQLConverter.h"
#include "store/engine/RecordSet.h"
#include "store/RowReader.h"

namespace ptk {

namespace {

constexpr std::int16_t kAscending = 1;

std::shared_ptr<CTimeRecord> RecordOf(const TimeRecordRow& row)
{
    auto record = std::make_shared<CTimeRecord>();
    record->TimeRecordID(row.TimeRecordID);
    record->EmployeeID(row.EmployeeID);
    record->StartTime(row.StartTime);
    record->EndTime(row.EndTime);
    record->ObjectState(row.ObjectState); // last, since filling marks it changed
    return record;
}

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
    m_lastFailure = Failure(0, "", "");
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
    // The hold must not outlive a failure, or no other program gets at the file.
    const auto giveUp = [&](const Failure& reason) {
        m_lastFailure = reason;
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
        m_lastFailure = m_database->LastFailure();
        return true;
    }
    const auto rows = m_database->ExecuteSelect(CTimeRecSQLConverter().BuildFetchSQL(theemployeeid, thestarttime, theendtime));
    if (rows != nullptr) {
        InsertRows(*rows);
    } else {
        m_lastFailure = m_database->LastFailure();
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
        if (!m_list->Insert(RecordOf(reader.ReadTimeRecord()), i)) {
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

bool CTimeRecordFactory::Save(const std::shared_ptr<CTimeRecord>& thetimerecord)
{
    m_lastFailure = Failure(0, "", "");
    try {
        if (m_database != nullptr && thetimerecord != nullptr) {
            TakeAnswer(m_database->ExecuteAction(thetimerecord->ToSQL()));
        }
        return true;
    } catch (...) {
        m_lastFailure = CurrentFailure();
        return Fail(recordfactory::SaveFailed);
    }
}

bool CTimeRecordFactory::SaveList()
{
    ResetError();
    try {
        if (m_list == nullptr) {
            throw Failure(failure::ObjectNotSet);
        }
        std::vector<std::string> statements;
        for (std::int32_t i = 1; i <= m_list->Count(); ++i) {
            if (NeedsSaving(m_list->RecordAt(i))) {
                statements.push_back(m_list->RecordAt(i).ToSQL());
            }
        }
        if (m_database != nullptr) {
            TakeAnswer(m_database->ExecuteActions(statements));
        }
        return true;
    } catch (...) {
        m_lastFailure = CurrentFailure();
        return Fail(recordfactory::SaveListFailed);
    }
}

void CTimeRecordFactory::TakeAnswer(bool stored)
{
    if (!stored) {
        m_errorNumber = recordfactory::SaveFailed;
        m_lastFailure = m_database->LastFailure();
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

bool CTimeRecordFactory::Fail(std::int32_t errorNumber)
{
    m_errorNumber = errorNumber;
    return false;
}

} // namespace ptk
