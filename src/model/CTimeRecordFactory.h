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

// The program has exactly one factory, which all time cards share. No member raises.
class CTimeRecordFactory
{
public:
    // nullptr is ignored.
    void PTKDatabase(std::shared_ptr<CJetDB> value);

    [[nodiscard]] const std::shared_ptr<CJetDB>& PTKDatabase() const { return m_database; }

    // nullptr until the first BuildList.
    [[nodiscard]] std::shared_ptr<CTimeRecordList> TimeRecordList() const { return m_list; }

    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }

    // Clears ErrorNumber, LastFailure and Conflict; always true.
    bool ResetError();

    // Why the last BuildList, Save or SaveList failed, in words for the program's users; number 0 and no text when it did not, and for a
    // period without records. See CJetDB::LastFailure.
    [[nodiscard]] const Failure& LastFailure() const { return m_refusal.failure; }

    // The row that somebody else changed or removed after it was read, where the last Save or SaveList was refused for that reason.
    [[nodiscard]] const std::optional<RowConflict>& Conflict() const { return m_refusal.conflict; }

    // Fills the current list anew, which stays the same object, with an employee's records of a period; the bounds are those of
    // CTimeRecSQLConverter::BuildFetchSQL. False with 301 for a period without records or a failure, the list then holding what was read; a
    // database that cannot be opened or asked gives true and an empty list, deliberately. The database is closed afterwards.
    bool BuildList(std::int32_t theemployeeid, DateTime thestarttime, DateTime theendtime);

    // Empties and drops the current list; false with 302.
    bool DestroyList();

    // Writes one record by its state, which stays as it is: saving a new record twice stores it twice, deliberately. A refused statement
    // answers true and leaves 803, an unexpected failure answers false with 803; an earlier error number is not cleared.
    bool Save(const std::shared_ptr<CTimeRecord>& thetimerecord);

    // Stores all records of the current list that need it, in one transaction: none is stored when one is refused, which answers true with
    // 803. False only with 321.
    bool SaveList();

    // Always nullptr.
    std::shared_ptr<CTimeRecordList> CloneTimeRecordList();

    // The first record of the current list with these times. nullptr with 0 when there is none, with 341 when the list cannot be read.
    std::shared_ptr<CTimeRecord> GetTimeRecordByKey(DateTime thestarttime, DateTime theendtime);

    // Sorts the current list as CTimeRecordListSorter::Sort does; false with 314.
    bool SortTimeRecordList();

private:
    void RenewList();
    // False for a period without records; deliberately true, with an empty list, where the database could not be opened or asked.
    bool Load(std::int32_t theemployeeid, DateTime thestarttime, DateTime theendtime);
    void InsertRows(RecordSet& rows);
    [[nodiscard]] static TimeRecordWrite WriteOf(const CTimeRecord& record);
    static void Stored(CTimeRecord& record);
    void TakeAnswer(bool stored, std::span<CTimeRecord* const> records);
    void ForgetFailure();

    // Sets the number; always false.
    bool Fail(std::int32_t errorNumber);
    void Fail(std::int32_t errorNumber, const Failure& reason);

    std::shared_ptr<CJetDB> m_database;
    std::shared_ptr<CTimeRecordList> m_list;
    std::int32_t m_errorNumber = 0;
    Refusal m_refusal;
};

} // namespace ptk
