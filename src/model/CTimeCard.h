// The pay period of one employee: its time records, hours, break time and pay, and their text forms.
#pragma once

#include "model/CardLine.h"
#include "model/CDateRange.h"
#include "model/Entity.h"
#include "platform/DateTime.h"
#include "platform/ErrorNumbers.h"
#include "platform/Failure.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace ptk {

class CEmployee;
class CJetDB;
class CTimeRecordFactory;
class CTimeRecordList;

// All cards work through the one factory: generating a card replaces the records of every card generated before. No member raises.
class CTimeCard : public Entity
{
public:
    explicit CTimeCard(std::shared_ptr<CTimeRecordFactory> factory); // REQUIRES: not nullptr

    void Employee(std::shared_ptr<CEmployee> value) { Set(m_employee, std::move(value)); }
    std::shared_ptr<CEmployee> Employee() const { return m_employee; }
    void StartDate(DateTime value);
    DateTime StartDate() const { return m_range.StartDate(); }
    void EndDate(DateTime value); // the last moment that belongs to the period
    DateTime EndDate() const { return m_range.EndDate(); }
    std::shared_ptr<CTimeRecordList> TimeRecordList() const; // the factory's current list
    std::vector<CardLine> Lines() const;                     // of that list, in its order; none without one
    float BreakAllowance() const;                            // hours that the text forms take off every line; raises 91 without an employee
    float RegularHoursWorked() const { return m_regularHours; }
    float RegularPay() const; // deliberately the employee's pay rate of now, not an amount; 0 without an employee
    float OvertimeHoursWorked() const { return m_overtimeHours; }
    float OvertimePay() const; // likewise the overtime rate
    float TotalPay() const { return m_totalPay; }
    float TotalBreakTime() const { return m_totalBreakTime; }                          // hours taken off automatically
    void PTKDatabase(std::shared_ptr<CJetDB> value) { m_database = std::move(value); } // must be set for GenerateTimecard

    // Loads the records that start at or after the start and end at or before the end (pass the midnight after the last day), and those
    // still open, and computes the figures. False with 603, 602, 405, 605 or 601; without records the figures stay as they were.
    bool GenerateTimecard(const std::shared_ptr<CEmployee>& theemployee, DateTime thestartdate, DateTime theenddate);

    // Clocks the employee out: ends and saves the first record still open that starts on or after the shift date. False with 301, or with
    // no number when none is open. A refused save answers true; it shows in the factory's ErrorNumber only.
    bool CloseTimeRecord(const std::shared_ptr<CEmployee>& theemployee, DateTime theshiftdate, DateTime theendtime);

    std::shared_ptr<CTimeRecord> GetTimeRecordByKey(DateTime thestarttime, DateTime theendtime); // nullptr with 607

    // Why the last GenerateTimecard, CloseTimeRecord, Save or SaveTimeRecord failed or stored nothing, in words for the program's users;
    // number 0 and no text when nothing went wrong, which a period without records (605) does not. See CJetDB::LastFailure.
    const Failure& LastFailure() const { return m_lastFailure; }

    // False with the factory's number, for an unexpected failure only: a refused statement shows in the factory's ErrorNumber alone.
    bool Save(); // every changed record of the current list, or none of them; the card is unchanged afterwards
    bool SaveTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord);

    // Lines end in CR LF. With 710 what could be built.
    std::string ToString();       // an empty line and the summary
    std::string ToStringReport(); // the employee, the records and the summary; 605 when there are no records
    std::string ToStringReview(); // the summary

private:
    bool Generate(const std::shared_ptr<CEmployee>& theemployee, DateTime thestartdate, DateTime theenddate);
    bool Calculate();
    bool CloseFirstOpen(CTimeRecordList& list, DateTime theendtime);
    void AppendSummary(std::string& text) const;
    void AppendLines(std::string& text);
    void Begin();
    bool Fail(std::int32_t errorNumber); // always false

    std::shared_ptr<CEmployee> m_employee;
    CDateRange m_range;
    std::shared_ptr<CTimeRecordFactory> m_factory;
    std::shared_ptr<CJetDB> m_database;
    float m_regularHours = 0;
    float m_overtimeHours = 0;
    float m_totalBreakTime = 0;
    float m_totalPay = 0;
    Failure m_lastFailure{0, "", ""};
};

} // namespace ptk
