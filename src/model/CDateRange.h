// A range of dates with limits, which can be checked, counted, and written as one line of text.
#pragma once

#include "platform/DateTime.h"
#include "platform/ErrorNumbers.h"
#include "platform/Value.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace ptk {

// Both ends and both limits are inclusive and compared with their times of day.
class CDateRange
{
public:
    CDateRange();

    void MinDate(DateTime value) { m_minDate = value; }
    DateTime MinDate() const { return m_minDate; } // at first 1/1/1900
    void MaxDate(DateTime value) { m_maxDate = value; }
    DateTime MaxDate() const { return m_maxDate; } // at first 12/31/2100
    void StartDate(DateTime value);                // validates the range, with its error numbers
    DateTime StartDate() const { return m_startDate; }
    void EndDate(DateTime value); // validates the range, with its error numbers
    DateTime EndDate() const { return m_endDate; }
    std::int32_t DayCount() const; // day boundaries from start to end, 0 for one day; -1 unless validated
    bool ValidRange() const { return m_validRange; }
    void EnforceFormat(bool value) { m_enforceFormat = value; }
    bool EnforceFormat() const { return m_enforceFormat; } // whether ToString uses FormatString or the general text
    void FormatString(std::string value) { m_formatString = std::move(value); }
    std::string FormatString() const { return m_formatString; }
    std::int32_t ErrorNumber() const { return m_errorNumber; }

    // Stores and checks. False, storing nothing, only with 899; a range out of limits (803) or reversed (802) is deliberately valid and
    // true all the same: whoever cares reads ErrorNumber.
    bool ValidateRange(const Value& thestart, const Value& theend);
    bool CheckDateInclusion(const Value& checkthisdate);       // false with 804, 801, 803, or with no number when it lies outside
    bool SetRange(DateTime thestartdate, DateTime theenddate); // stores without checking; always true

    // Reads start "+" end. Always true, deliberately: a text that is no range leaves a zero, invalid one (801 when a half is no date).
    bool SetRangeString(const std::string& therange);
    std::string ToString() const; // 01/05/2003+01/11/2003

private:
    bool WithinLimits(DateTime date) const { return date >= m_minDate && date <= m_maxDate; }
    std::string DateText(DateTime date) const;
    bool Parse(const std::string& range);
    std::optional<DateTime> ParseHalf(const std::string& text);
    bool Fail(std::int32_t errorNumber); // always false

    DateTime m_minDate;
    DateTime m_maxDate;
    DateTime m_startDate;
    DateTime m_endDate;
    bool m_validRange = false;
    bool m_enforceFormat = true;
    std::string m_formatString = "mm/dd/yyyy";
    std::int32_t m_errorNumber = 0;
};

} // namespace ptk
