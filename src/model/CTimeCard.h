// A time card: one employee's time records of one pay period, their hours, break time and pay, and its text forms.
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

// All cards share one factory: generating one replaces the records of every earlier card. No member raises but BreakAllowance and Lines.
class CTimeCard : public Entity
{
public:
    // The column headings above the shifts in ToStringReport.
    static constexpr const char* kReportHeading = "\tStart Time\t\tEnd Time\t\tHours";

    // REQUIRES: the factory is not nullptr.
    explicit CTimeCard(std::shared_ptr<CTimeRecordFactory> factory);

    void Employee(std::shared_ptr<CEmployee> value) { Set(m_employee, std::move(value)); }
    [[nodiscard]] std::shared_ptr<CEmployee> Employee() const { return m_employee; }
    void StartDate(DateTime value);
    [[nodiscard]] DateTime StartDate() const { return m_range.StartDate(); }

    // The last moment that belongs to the period.
    void EndDate(DateTime value);

    [[nodiscard]] DateTime EndDate() const { return m_range.EndDate(); }

    // The factory's current list; nullptr until a card has been generated.
    [[nodiscard]] std::shared_ptr<CTimeRecordList> TimeRecordList() const;

    // One line for each record of the factory's current list, in its order; none without a list. Raises 91 at an empty entry.
    [[nodiscard]] std::vector<CardLine> Lines() const;

    // The hours of breaks that the text forms take off every line; raises 91 without an employee.
    [[nodiscard]] float BreakAllowance() const;

    [[nodiscard]] float RegularHoursWorked() const { return m_regularHours; }

    // Deliberately the employee's present pay rate, not an amount; 0 without an employee.
    [[nodiscard]] float RegularPay() const;

    [[nodiscard]] float OvertimeHoursWorked() const { return m_overtimeHours; }

    // Deliberately the employee's present overtime pay rate, not an amount; 0 without an employee.
    [[nodiscard]] float OvertimePay() const;

    [[nodiscard]] float TotalPay() const { return m_totalPay; }

    // The hours that automatic deductions took off.
    [[nodiscard]] float TotalBreakTime() const { return m_totalBreakTime; }

    // GenerateTimecard fails without it (405), but reads from the factory's database.
    void PTKDatabase(std::shared_ptr<CJetDB> value) { m_database = std::move(value); }
    [[nodiscard]] const std::shared_ptr<CJetDB>& PTKDatabase() const { return m_database; }

    // Loads the records that start at or after the start date, and end at or before the end date (pass the midnight after the last day) or
    // are still open, and computes the figures. False with 603, 602, 405, 605 or 601, or with no number where the figures cannot be
    // computed; without records the figures stay as they were.
    bool GenerateTimecard(const std::shared_ptr<CEmployee>& theemployee, DateTime thestartdate, DateTime theenddate);

    // Clocks the employee out: gives the first open record that starts on or after the shift date its end, and saves it. False with 301, or
    // with no number when no record is open. A refused save answers true; it shows in LastFailure and in the factory's ErrorNumber.
    bool CloseTimeRecord(const std::shared_ptr<CEmployee>& theemployee, DateTime theshiftdate, DateTime theendtime);

    // The record of the current list with these times; nullptr with 607 when there is none.
    std::shared_ptr<CTimeRecord> GetTimeRecordByKey(DateTime thestarttime, DateTime theendtime);

    // Why the last GenerateTimecard, CloseTimeRecord, Save or SaveTimeRecord failed or stored nothing, in words for the program's users;
    // number 0 and no text when nothing went wrong, which a period without records (605) does not. See CJetDB::LastFailure.
    [[nodiscard]] const Failure& LastFailure() const { return m_lastFailure; }

    // Stores every changed record of the current list, or none of them; the card's state is unchanged afterwards. False with the factory's
    // number for an unexpected failure only: a refused statement answers true and shows in LastFailure and in the factory's ErrorNumber.
    bool Save();

    // Stores one record by its state, and answers as Save does.
    bool SaveTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord);

    // An empty line and the summary. In all three text forms lines end in CR LF; a failure leaves 710, and the text ends where it happened.
    std::string ToString();

    // The form of a report: the employee, the records and the summary; leaves 605 when there are no records.
    std::string ToStringReport();

    // The summary alone, for the accountant's review.
    std::string ToStringReview();

private:
    bool Generate(const std::shared_ptr<CEmployee>& theemployee, DateTime thestartdate, DateTime theenddate);
    bool Calculate();
    bool CloseFirstOpen(CTimeRecordList& list, DateTime theendtime);
    void AppendSummary(std::string& text) const;
    void AppendLines(std::string& text);
    void Begin();

    // Sets the number; always false.
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
