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

    // The earliest date that is allowed; 1/1/1900 until it is set.
    [[nodiscard]] DateTime MinDate() const { return m_minDate; }

    void MaxDate(DateTime value) { m_maxDate = value; }

    // The latest date that is allowed; 12/31/2100 until it is set.
    [[nodiscard]] DateTime MaxDate() const { return m_maxDate; }

    // Sets the start and checks the range as ValidateRange does.
    void StartDate(DateTime value);

    [[nodiscard]] DateTime StartDate() const { return m_startDate; }

    // Sets the end and checks the range as ValidateRange does.
    void EndDate(DateTime value);

    [[nodiscard]] DateTime EndDate() const { return m_endDate; }

    // The number of midnights between start and end: 0 within one day. -1 when the range is not valid.
    [[nodiscard]] std::int32_t DayCount() const;

    [[nodiscard]] bool ValidRange() const { return m_validRange; }
    void EnforceFormat(bool value) { m_enforceFormat = value; }

    // Whether ToString uses FormatString or the general text.
    [[nodiscard]] bool EnforceFormat() const { return m_enforceFormat; }

    void FormatString(std::string value) { m_formatString = std::move(value); }
    [[nodiscard]] std::string FormatString() const { return m_formatString; }
    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }

    // Stores both dates and checks the range. False only with 899, where one is no date; nothing is stored then. A range outside the limits
    // (803) or reversed (802) deliberately counts as valid all the same and answers true: only ErrorNumber tells.
    bool ValidateRange(const Value& thestart, const Value& theend);

    // Whether a date lies in the range. False with 804 (never validated), 801, 803, or with no number when it lies outside the range.
    bool CheckDateInclusion(const Value& checkthisdate);

    // Stores both dates without checking them; ValidRange stays as it was. Always true.
    bool SetRange(DateTime thestartdate, DateTime theenddate);

    // Reads the text start "+" end. Always true, deliberately: any other text leaves an invalid range of zero dates (with 801 when a half
    // is no date).
    bool SetRangeString(const std::string& therange);

    // The range as text: 01/05/2003+01/11/2003.
    [[nodiscard]] std::string ToString() const;

private:
    [[nodiscard]] bool WithinLimits(DateTime date) const { return date >= m_minDate && date <= m_maxDate; }
    [[nodiscard]] std::string DateText(DateTime date) const;
    bool Parse(const std::string& range);
    std::optional<DateTime> ParseHalf(const std::string& text);

    // Sets the number; always false.
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
