// One clock-in and clock-out of one employee.
#pragma once

#include "model/Entity.h"
#include "model/ModelErrors.h"
#include "platform/text/DateTime.h"
#include "store/rows/Rows.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace ptk {

class CTimeRecordFactory;

// Minutes as decimal hours, rounded to single precision.
[[nodiscard]] float HoursOf(std::int64_t minutes);

class CTimeRecord : public Entity
{
public:
    // Remembers the factory without keeping it alive; nullptr is ignored.
    void TimeRecordFactory(const std::shared_ptr<CTimeRecordFactory>& value);

    [[nodiscard]] std::shared_ptr<CTimeRecordFactory> TimeRecordFactory() const { return m_factory.lock(); }

    void TimeRecordID(std::int32_t value) { SetKey(m_timeRecordID, value); }

    // -1 = not stored yet.
    [[nodiscard]] std::int32_t TimeRecordID() const { return m_timeRecordID; }

    void EmployeeID(std::int32_t value) { Set(m_employeeID, value); }
    [[nodiscard]] std::int32_t EmployeeID() const { return m_employeeID; }

    // Setting the start or the end recalculates the hours as soon as both are set (not zero).
    void StartTime(DateTime value);
    [[nodiscard]] DateTime StartTime() const { return m_startTime; }
    void EndTime(DateTime value);

    // Zero while the employee is still clocked in.
    [[nodiscard]] DateTime EndTime() const { return m_endTime; }

    // Decimal hours. Where the end is before the start, the stored number is negative and this answers 0; the text form shows the stored
    // number, deliberately.
    void HoursWorked(float value) { Set(m_hoursWorked, value); }
    [[nodiscard]] float HoursWorked() const { return m_hoursWorked > 0 ? m_hoursWorked : 0; }

    // Decimal hours, negative where the end is before the start.
    [[nodiscard]] float StoredHours() const { return m_hoursWorked; }

    // Whether the text forms use FormatString or the general date-time text.
    void EnforceFormat(bool value) { m_enforceFormat = value; }
    [[nodiscard]] bool EnforceFormat() const { return m_enforceFormat; }
    void FormatString(std::string value) { m_formatString = std::move(value); }
    [[nodiscard]] std::string FormatString() const { return m_formatString.value_or(kDefaultFormat); }

    // Sets the hours to the minute boundaries between start and end; does not mark the record as changed.
    float CalculateHoursWorked();

    // The statement that stores the record, by its state; empty when there is nothing to store. See CTimeRecSQLConverter.
    [[nodiscard]] std::string ToSQL() const;

    // One line without a line end: start, tab, end, tab, hours less `breakHours` with two decimals. A failure leaves 806,
    // and the text ends where it happened.
    std::string ToString(float breakHours);

    // One line without a line end: start, tab, end. A failure leaves 806, and the text ends where it happened.
    std::string ToStringReport();

    // The row as the record was read or last stored; nothing for a new or deleted record. A save goes through only where the stored row is
    // still this one.
    [[nodiscard]] const std::optional<TimeRecordRow>& AsRead() const { return m_asRead; }

    // Notes that the stored row is now as this record is.
    void KeepAsRead() { m_asRead = Row(); }

    void ForgetAsRead() { m_asRead.reset(); }

    // Appends a time in this record's format; may raise failures.
    void AppendTime(std::string& text, DateTime time) const;

    [[nodiscard]] TimeRecordRow Row() const { return {m_timeRecordID, m_employeeID, m_startTime, m_endTime, ObjectState()}; }

private:
    void SetTime(DateTime& time, DateTime value);
    void AppendTimes(std::string& text) const;

    static constexpr const char* kDefaultFormat = "mm/dd/yyyy hh:mm AM/PM";

    std::weak_ptr<CTimeRecordFactory> m_factory;
    std::optional<std::string> m_formatString; // none: the default, which is not copied since every record would pay an allocation
    std::optional<TimeRecordRow> m_asRead;
    DateTime m_startTime;
    DateTime m_endTime;
    std::int32_t m_timeRecordID = -1;
    std::int32_t m_employeeID = 0;
    float m_hoursWorked = 0;
    bool m_enforceFormat = true;
};

// The record of a stored row, in the row's state.
[[nodiscard]] std::shared_ptr<CTimeRecord> StoredRecord(const TimeRecordRow& row);

} // namespace ptk
