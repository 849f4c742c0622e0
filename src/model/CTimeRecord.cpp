#include "model/CTimeRecord.h"

#include "platform/text/Text.h"
#include "store/CTimeRecSQLConverter.h"

namespace ptk {

namespace {

constexpr std::size_t kUsualLineLength = 48; // two times in the usual format and the hours, so that a line costs one allocation

} // namespace

float HoursOf(std::int64_t minutes)
{
    constexpr double kMinutesPerHour = 60.0;
    return static_cast<float>(static_cast<double>(minutes) / kMinutesPerHour);
}

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
    m_hoursWorked = HoursOf(MinutesBetween(m_startTime, m_endTime));
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
        text.reserve(kUsualLineLength);
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
    AppendTime(text, m_startTime);
    text += '\t';
    AppendTime(text, m_endTime);
}

void CTimeRecord::AppendTime(std::string& text, DateTime time) const
{
    if (!m_enforceFormat) {
        text += GeneralText(time);
    } else if (m_formatString) {
        AppendDateTime(text, time, *m_formatString);
    } else {
        AppendDateTime(text, time, kDefaultFormat);
    }
}

std::shared_ptr<CTimeRecord> StoredRecord(const TimeRecordRow& row)
{
    auto record = std::make_shared<CTimeRecord>();
    record->TimeRecordID(row.TimeRecordID);
    record->EmployeeID(row.EmployeeID);
    record->StartTime(row.StartTime);
    record->EndTime(row.EndTime);
    record->ObjectState(row.ObjectState); // last, since the setters above mark the record as changed
    record->KeepAsRead();
    return record;
}

} // namespace ptk
