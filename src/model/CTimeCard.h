// The pay period of one employee: its time records, hours, break time and pay, and their text forms.
#pragma once

#include "model/CardLine.h"
#include "model/CDateRange.h"
#include "model/Entity.h"
#include "model/ModelErrors.h"
#include "platform/Failure.h"
#include "platform/text/DateTime.h"

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
    // The line above the shifts in the report's form.
    static constexpr const char* kReportHeading = "\tStart Time\t\tEnd Time\t\tHours";

    // REQUIRES: not nullptr.
    explicit CTimeCard(std::shared_ptr<CTimeRecordFactory> factory);

    void Employee(std::shared_ptr<CEmployee> value) { Set(m_employee, std::move(value)); }
    [[nodiscard]] std::shared_ptr<CEmployee> Employee() const { return m_employee; }
    void StartDate(DateTime value);
    [[nodiscard]] DateTime StartDate() const { return m_range.StartDate(); }

    // The last moment that belongs to the period.
    void EndDate(DateTime value);

    [[nodiscard]] DateTime EndDate() const { return m_range.EndDate(); }

    // The factory's current list.
    [[nodiscard]] std::shared_ptr<CTimeRecordList> TimeRecordList() const;

    // Of that list, in its order; none without one.
    [[nodiscard]] std::vector<CardLine> Lines() const;

    // Hours that the text forms take off every line; raises 91 without an employee.
    [[nodiscard]] float BreakAllowance() const;

    [[nodiscard]] float RegularHoursWorked() const { return m_regularHours; }

    // Deliberately the employee's pay rate of now, not an amount; 0 without an employee.
    [[nodiscard]] float RegularPay() const;

    [[nodiscard]] float OvertimeHoursWorked() const { return m_overtimeHours; }

    // Deliberately the employee's overtime pay rate of now, not an amount; 0 without an employee.
    [[nodiscard]] float OvertimePay() const;

    [[nodiscard]] float TotalPay() const { return m_totalPay; }

    // Hours taken off automatically.
    [[nodiscard]] float TotalBreakTime() const { return m_totalBreakTime; }

    // Must be set for GenerateTimecard.
    void PTKDatabase(std::shared_ptr<CJetDB> value) { m_database = std::move(value); }
    [[nodiscard]] const std::shared_ptr<CJetDB>& PTKDatabase() const { return m_database; }

    // Loads the records that start at or after the start and end at or before the end (pass the midnight after the last day), and those
    // still open, and computes the figures. False with 603, 602, 405, 605 or 601; without records the figures stay as they were.
    bool GenerateTimecard(const std::shared_ptr<CEmployee>& theemployee, DateTime thestartdate, DateTime theenddate);

    // Clocks the employee out: ends and saves the first record still open that starts on or after the shift date. False with 301, or with
    // no number when none is open. A refused save answers true; it shows in the factory's ErrorNumber only.
    bool CloseTimeRecord(const std::shared_ptr<CEmployee>& theemployee, DateTime theshiftdate, DateTime theendtime);

    // nullptr with 607.
    std::shared_ptr<CTimeRecord> GetTimeRecordByKey(DateTime thestarttime, DateTime theendtime);

    // Why the last GenerateTimecard, CloseTimeRecord, Save or SaveTimeRecord failed or stored nothing, in words for the program's users;
    // number 0 and no text when nothing went wrong, which a period without records (605) does not. See CJetDB::LastFailure.
    [[nodiscard]] const Failure& LastFailure() const { return m_lastFailure; }

    // False with the factory's number, for an unexpected failure only: a refused statement shows in the factory's ErrorNumber alone.
    // Every changed record of the current list, or none of them; the card is unchanged afterwards.
    bool Save();

    bool SaveTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord);

    // Lines end in CR LF. With 710 what could be built. An empty line and the summary
    std::string ToString();

    // The employee, the records and the summary; 605 when there are no records.
    std::string ToStringReport();

    // The summary.
    std::string ToStringReview();

private:
    bool Generate(const std::shared_ptr<CEmployee>& theemployee, DateTime thestartdate, DateTime theenddate);
    bool Calculate();
    bool CloseFirstOpen(CTimeRecordList& list, DateTime theendtime);
    void AppendSummary(std::string& text) const;
    void AppendLines(std::string& text);
    void Begin();

    // Always false.
    bool Fail(std::int32_t errorNumber);
    bool Fail(std::int32_t errorNumber, const Failure& reason);

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
