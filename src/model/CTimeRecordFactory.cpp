#include "model/CTimeRecordFactory.h"

#include "model/CTimeRecordList.h"
#include "model/CTimeRecordListSorter.h"
#include "platform/Failure.h"
#include "store/CJetDB.h"
#include "store/CTimeRecSQLConverter.h"
#include "store/engine/RecordSet.h"

namespace ptk {

namespace {

constexpr std::int16_t kAscending = 1;

// Reads one row after the other, its columns found once.
class RecordReader
{
public:
    explicit RecordReader(RecordSet& rows)
        : m_rows(rows), m_id(rows.Column("TimeRecordID")), m_employee(rows.Column("EmployeeID")), m_start(rows.Column("StartTime")),
          m_end(rows.Column("EndTime"))
    {
    }

    // The current row as an unchanged record. What is missing, zero or no key keeps the record's default.
    std::shared_ptr<CTimeRecord> Read() const
    {
        auto record = std::make_shared<CTimeRecord>();
        if (const std::int32_t id = KeyAt(m_id); id > 0) {
            record->TimeRecordID(id);
        }
        if (const std::int32_t id = KeyAt(m_employee); id > 0) {
            record->EmployeeID(id);
        }
        if (const DateTime time = TimeAt(m_start); !time.IsZero()) {
            record->StartTime(time);
        }
        if (const DateTime time = TimeAt(m_end); !time.IsZero()) {
            record->EndTime(time);
        }
        record->ObjectState(state::Unchanged); // last, since filling marks it changed
        return record;
    }

private:
    std::int32_t KeyAt(std::size_t column) const { return m_rows.IsNull(column) ? 0 : m_rows.Int32At(column); }
    DateTime TimeAt(std::size_t column) const { return m_rows.IsNull(column) ? DateTime() : m_rows.DateTimeAt(column); }

    RecordSet& m_rows;
    std::size_t m_id;
    std::size_t m_employee;
    std::size_t m_start;
    std::size_t m_end;
};

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
    return true;
}

bool CTimeRecordFactory::BuildList(std::int32_t theemployeeid, DateTime thestarttime, DateTime theendtime)
{
    ResetError();
    try {
        RenewList();
        Load(theemployeeid, thestarttime, theendtime);
        SortTimeRecordList();
        return true;
    } catch (...) {
        // Also the way of an empty period: the exclusive hold must not outlive it, or no other program gets at the file.
        if (m_database != nullptr) {
            m_database->CloseDB();
        }
        return Fail(recordfactory::BuildFailed);
    }
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

void CTimeRecordFactory::Load(std::int32_t theemployeeid, DateTime thestarttime, DateTime theendtime)
{
    if (m_database == nullptr) {
        throw Failure(failure::ObjectNotSet);
    }
    if (!m_database->OpenDB()) {
        return;
    }
    const auto rows = m_database->ExecuteSelect(CTimeRecSQLConverter().BuildFetchSQL(theemployeeid, thestarttime, theendtime));
    if (rows != nullptr) {
        InsertRows(*rows);
    }
    m_database->CloseDB();
}

void CTimeRecordFactory::InsertRows(RecordSet& rows)
{
    rows.MoveFirst();
    const std::int32_t count = rows.RecordCount();
    const RecordReader reader(rows);
    m_list->Reserve(count);
    for (std::int32_t i = 1; i <= count; ++i) {
        if (!m_list->Insert(reader.Read(), i)) {
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
    try {
        if (m_database != nullptr && thetimerecord != nullptr && !m_database->ExecuteAction(thetimerecord->ToSQL())) {
            m_errorNumber = recordfactory::SaveFailed;
        }
        return true;
    } catch (...) {
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
        for (std::int32_t i = 1; i <= m_list->Count(); ++i) {
            if (NeedsSaving(m_list->RecordAt(i))) {
                Save(m_list->Item(i));
            }
        }
        return true;
    } catch (...) {
        return Fail(recordfactory::SaveListFailed);
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
