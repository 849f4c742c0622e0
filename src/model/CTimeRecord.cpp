#include "model/CTimeRecord.h"

#include "platform/Text.h"
#include "store/CTimeRecSQLConverter.h"

namespace ptk {

namespace {

constexpr double kMinutesPerHour = 60.0;

} // namespace

void CTimeRecord::TimeRecordFactory(const std::shared_ptr<CTimeRecordFactory>& value)
{
    if (value != nullptr) {
        m_factory = value;
    }
}

void CTimeRecord::StartTime(DateTime value)
{
    SetTime(m_startTime, value);
}

void CTimeRecord::EndTime(DateTime value)
{
    SetTime(m_endTime, value);
}

void CTimeRecord::SetTime(DateTime& time, DateTime value)
{
    Set(time, value);
    if (!m_startTime.IsZero() && !m_endTime.IsZero()) {
        CalculateHoursWorked();
    }
}

float CTimeRecord::CalculateHoursWorked()
{
    const auto minutes = static_cast<double>(MinutesBetween(m_startTime, m_endTime));
    m_hoursWorked = static_cast<float>(minutes / kMinutesPerHour);
    return m_hoursWorked;
}

std::string CTimeRecord::ToSQL() const
{
    const TimeRecordRow row = Row();
    return CTimeRecSQLConverter().ToSQL(&row);
}

std::string CTimeRecord::ToString(float breakHours)
{
    return BuildText(timerecord::TextFailed, [&](std::string& text) {
        AppendTimes(text);
        text += "\t" + TwoDecimals(m_hoursWorked - breakHours);
    });
}

std::string CTimeRecord::ToStringReport()
{
    return BuildText(timerecord::TextFailed, [this](std::string& text) { AppendTimes(text); });
}

void CTimeRecord::AppendTimes(std::string& text) const
{
    text += TimeText(m_startTime);
    text += "\t" + TimeText(m_endTime);
}

std::string CTimeRecord::TimeText(DateTime time) const
{
    if (!m_enforceFormat) {
        return GeneralText(time);
    }
    return m_formatString ? FormatDateTime(time, *m_formatString) : FormatDateTime(time, kDefaultFormat);
}

} // namespace ptk
