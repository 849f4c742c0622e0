// A range of dates with limits, which can be checked, counted, and written as one line of text.
#pragma once

#include "model/ModelErrors.h"
#include "platform/text/DateTime.h"
#include "platform/text/Value.h"

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

    // At first 1/1/1900.
    [[nodiscard]] DateTime MinDate() const { return m_minDate; }

    void MaxDate(DateTime value) { m_maxDate = value; }

    // At first 12/31/2100.
    [[nodiscard]] DateTime MaxDate() const { return m_maxDate; }

    // Validates the range, with its error numbers.
    void StartDate(DateTime value);

    [[nodiscard]] DateTime StartDate() const { return m_startDate; }

    // Validates the range, with its error numbers.
    void EndDate(DateTime value);

    [[nodiscard]] DateTime EndDate() const { return m_endDate; }

    // Day boundaries from start to end, 0 for one day; -1 unless validated.
    [[nodiscard]] std::int32_t DayCount() const;

    [[nodiscard]] bool ValidRange() const { return m_validRange; }
    void EnforceFormat(bool value) { m_enforceFormat = value; }

    // Whether ToString uses FormatString or the general text.
    [[nodiscard]] bool EnforceFormat() const { return m_enforceFormat; }

    void FormatString(std::string value) { m_formatString = std::move(value); }
    [[nodiscard]] std::string FormatString() const { return m_formatString; }
    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }

    // Stores and checks. False, storing nothing, only with 899; a range out of limits (803) or reversed (802) is deliberately valid and
    // true all the same: whoever cares reads ErrorNumber.
    bool ValidateRange(const Value& thestart, const Value& theend);

    // False with 804, 801, 803, or with no number when it lies outside.
    bool CheckDateInclusion(const Value& checkthisdate);

    // Stores without checking; always true.
    bool SetRange(DateTime thestartdate, DateTime theenddate);

    // Reads start "+" end. Always true, deliberately: a text that is no range leaves a zero, invalid one (801 when a half is no date).
    bool SetRangeString(const std::string& therange);

    // 01/05/2003+01/11/2003.
    [[nodiscard]] std::string ToString() const;

private:
    [[nodiscard]] bool WithinLimits(DateTime date) const { return date >= m_minDate && date <= m_maxDate; }
    [[nodiscard]] std::string DateText(DateTime date) const;
    bool Parse(const std::string& range);
    std::optional<DateTime> ParseHalf(const std::string& text);

    // Always false.
    bool Fail(std::int32_t errorNumber);

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
