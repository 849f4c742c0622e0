// Loads the time records of one employee and period into the one current list of the program, and writes changed records back.
#pragma once

#include "model/ModelErrors.h"
#include "platform/Failure.h"
#include "platform/text/DateTime.h"
#include "store/CJetDB.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>

namespace ptk {

class CTimeRecord;
class CTimeRecordList;
class RecordSet;

// The program has exactly one, which all time cards share. No member raises.
class CTimeRecordFactory
{
public:
    // nullptr is ignored.
    void PTKDatabase(std::shared_ptr<CJetDB> value);

    [[nodiscard]] const std::shared_ptr<CJetDB>& PTKDatabase() const { return m_database; }

    // nullptr until the first BuildList.
    [[nodiscard]] std::shared_ptr<CTimeRecordList> TimeRecordList() const { return m_list; }

    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }

    // Always true.
    bool ResetError();

    // Why the last BuildList, Save or SaveList did not do what it should, in words for the program's users; number 0 and no text when it
    // did, a period without records included. See CJetDB::LastFailure.
    [[nodiscard]] const Failure& LastFailure() const { return m_refusal.failure; }

    // The row that somebody else had changed or removed since it was read, where that was why the last Save or SaveList was refused.
    [[nodiscard]] const std::optional<RowConflict>& Conflict() const { return m_refusal.conflict; }

    // Replaces the contents of the current list, the same list object. Bounds as CTimeRecSQLConverter::BuildFetchSQL takes them. False with
    // 301 for a period without records or a failure, the list then holding what was read; a database that cannot be opened gives true and
    // an empty list, deliberately. The database is closed afterwards.
    bool BuildList(std::int32_t theemployeeid, DateTime thestarttime, DateTime theendtime);

    // Empties and drops the current list; false with 302.
    bool DestroyList();

    // Writes one record by its state, which stays as it is: saving a new record twice stores it twice, deliberately. A refused statement
    // answers true and leaves 803; an error number of before is not cleared.
    bool Save(const std::shared_ptr<CTimeRecord>& thetimerecord);

    // All that need it, in one transaction: none is stored when one was refused (803); false only with 321.
    bool SaveList();

    // Always nullptr.
    std::shared_ptr<CTimeRecordList> CloneTimeRecordList();

    // nullptr, with 0 when there is none.
    std::shared_ptr<CTimeRecord> GetTimeRecordByKey(DateTime thestarttime, DateTime theendtime);

    // False with 314.
    bool SortTimeRecordList();

private:
    void RenewList();
    // False for a period without records; true, with an empty list, also where the database could not be read, deliberately.
    bool Load(std::int32_t theemployeeid, DateTime thestarttime, DateTime theendtime);
    void InsertRows(RecordSet& rows);
    [[nodiscard]] static TimeRecordWrite WriteOf(const CTimeRecord& record);
    static void Stored(CTimeRecord& record);
    void TakeAnswer(bool stored, std::span<CTimeRecord* const> records);
    void ForgetFailure();

    // Always false.
    bool Fail(std::int32_t errorNumber);
    void Fail(std::int32_t errorNumber, const Failure& reason);

    std::shared_ptr<CJetDB> m_database;
    std::shared_ptr<CTimeRecordList> m_list;
    std::int32_t m_errorNumber = 0;
    Refusal m_refusal;
};

} // namespace ptk
