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

// Decimal hours, rounded to single.
[[nodiscard]] float HoursOf(std::int64_t minutes);

class CTimeRecord : public Entity
{
public:
    // nullptr is ignored; not kept alive.
    void TimeRecordFactory(const std::shared_ptr<CTimeRecordFactory>& value);

    [[nodiscard]] std::shared_ptr<CTimeRecordFactory> TimeRecordFactory() const { return m_factory.lock(); }

    void TimeRecordID(std::int32_t value) { SetKey(m_timeRecordID, value); }

    // -1 = not stored yet.
    [[nodiscard]] std::int32_t TimeRecordID() const { return m_timeRecordID; }

    void EmployeeID(std::int32_t value) { Set(m_employeeID, value); }
    [[nodiscard]] std::int32_t EmployeeID() const { return m_employeeID; }

    // Setting either recalculates the hours as soon as both are known (not zero).
    void StartTime(DateTime value);
    [[nodiscard]] DateTime StartTime() const { return m_startTime; }
    void EndTime(DateTime value);

    // Zero = still clocked in.
    [[nodiscard]] DateTime EndTime() const { return m_endTime; }

    // Decimal hours. An end before the start is stored as a negative number but read as 0; the text form shows it as it is, deliberately.
    void HoursWorked(float value) { Set(m_hoursWorked, value); }
    [[nodiscard]] float HoursWorked() const { return m_hoursWorked > 0 ? m_hoursWorked : 0; }

    // Negative as they are.
    [[nodiscard]] float StoredHours() const { return m_hoursWorked; }

    // Whether the text forms use FormatString or the general date-time text.
    void EnforceFormat(bool value) { m_enforceFormat = value; }
    [[nodiscard]] bool EnforceFormat() const { return m_enforceFormat; }
    void FormatString(std::string value) { m_formatString = std::move(value); }
    [[nodiscard]] std::string FormatString() const { return m_formatString.value_or(kDefaultFormat); }

    // From the minute boundaries crossed; marks nothing.
    float CalculateHoursWorked();

    // The statement that stores the record, by its state; empty when there is nothing to store. See CTimeRecSQLConverter.
    [[nodiscard]] std::string ToSQL() const;

    // One line without a line end: start, tab, end, tab, hours less `breakHours` with two decimals. With 806 what could be built.
    std::string ToString(float breakHours);

    // One line without a line end: start, tab, end. With 806 what could be built.
    std::string ToStringReport();

    // What the database had when the record was read or last stored there; nothing for one that never was. It holds a save to that row.
    [[nodiscard]] const std::optional<TimeRecordRow>& AsRead() const { return m_asRead; }

    // The database has it as it is now.
    void KeepAsRead() { m_asRead = Row(); }

    void ForgetAsRead() { m_asRead.reset(); }

    // In this record's format; may raise failures.
    void AppendTime(std::string& text, DateTime time) const;

    [[nodiscard]] TimeRecordRow Row() const { return {m_timeRecordID, m_employeeID, m_startTime, m_endTime, ObjectState()}; }

private:
    void SetTime(DateTime& time, DateTime value);
    void AppendTimes(std::string& text) const;

    static constexpr const char* kDefaultFormat = "mm/dd/yyyy hh:mm AM/PM";

    std::weak_ptr<CTimeRecordFactory> m_factory;
    std::optional<std::string> m_formatString; // none = the default, which would cost every record an allocation
    std::optional<TimeRecordRow> m_asRead;
    DateTime m_startTime;
    DateTime m_endTime;
    std::int32_t m_timeRecordID = -1;
    std::int32_t m_employeeID = 0;
    float m_hoursWorked = 0;
    bool m_enforceFormat = true;
};

// A record as the database has it.
[[nodiscard]] std::shared_ptr<CTimeRecord> StoredRecord(const TimeRecordRow& row);

} // namespace ptk
