#include "model/CTimeCard.h"

#include "model/CEmployee.h"
#include "model/CTimeCalculator.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "platform/Failure.h"
#include "platform/Succeeds.h"
#include "platform/text/Text.h"
#include "platform/text/Value.h"

#include <fmt/format.h>
#include <limits>

namespace ptk {

namespace {

constexpr std::int32_t kMostRecords = std::numeric_limits<std::int16_t>::max(); // a card counts its records in 16 bits

Failure WhyNotCalculated(std::int32_t records)
{
    const std::string reason =
        records > kMostRecords
            ? fmt::format("the period has {} time records, more than the {} that a time card can take", records, kMostRecords)
            : "the hours or the pay are beyond every number";
    return {failure::Overflow, "PTK", reason};
}

} // namespace

CTimeCard::CTimeCard(std::shared_ptr<CTimeRecordFactory> factory) : m_factory(std::move(factory)) {}

void CTimeCard::StartDate(DateTime value)
{
    m_range.StartDate(value);
    MarkChanged();
}

void CTimeCard::EndDate(DateTime value)
{
    m_range.EndDate(value);
    MarkChanged();
}

std::shared_ptr<CTimeRecordList> CTimeCard::TimeRecordList() const
{
    return m_factory->TimeRecordList();
}

std::vector<CardLine> CTimeCard::Lines() const
{
    const auto list = TimeRecordList();
    std::vector<CardLine> lines;
    lines.reserve(list == nullptr ? 0 : static_cast<std::size_t>(list->Count()));
    for (std::int32_t i = 1; list != nullptr && i <= list->Count(); ++i) {
        const CTimeRecord& record = list->RecordAt(i);
        lines.push_back({record.StartTime(), record.EndTime(), record.StoredHours(), list->Item(i)});
    }
    return lines;
}

float CTimeCard::RegularPay() const
{
    return m_employee == nullptr ? 0 : m_employee->PayRate();
}

float CTimeCard::OvertimePay() const
{
    return m_employee == nullptr ? 0 : m_employee->OvertimePayRate();
}

void CTimeCard::Begin()
{
    ErrorNumber(0);
    m_lastFailure = Failure(0, "", "");
}

bool CTimeCard::GenerateTimecard(const std::shared_ptr<CEmployee>& theemployee, DateTime thestartdate, DateTime theenddate)
{
    Begin();
    return Succeeds([&] { return Generate(theemployee, thestartdate, theenddate); },
                    [&](const Failure& reason) { Fail(timecard::GenerateFailed, reason); });
}

bool CTimeCard::Generate(const std::shared_ptr<CEmployee>& theemployee, DateTime thestartdate, DateTime theenddate)
{
    if (!m_range.ValidateRange(thestartdate, theenddate)) {
        return Fail(timecard::InvalidRange);
    }
    if (theemployee == nullptr) {
        return Fail(timecard::NoEmployee);
    }
    m_employee = theemployee;
    if (m_database == nullptr) {
        return Fail(timecard::NoDatabase);
    }
    const bool built = m_factory->BuildList(theemployee->EmployeeID(), m_range.StartDate(), m_range.EndDate());
    m_lastFailure = m_factory->LastFailure();
    if (!built || TimeRecordList()->Count() == 0) {
        return Fail(timecard::NoRecords);
    }
    return Calculate();
}

bool CTimeCard::Calculate()
{
    CTimeCalculator calculator;
    if (!calculator.CalculateTimes(*m_employee, *TimeRecordList())) {
        m_regularHours = m_overtimeHours = 0;
        return Fail(calculator.ErrorNumber(), WhyNotCalculated(TimeRecordList()->Count()));
    }
    m_regularHours = calculator.RegularHours();
    m_overtimeHours = calculator.OvertimeHours();
    m_totalBreakTime = calculator.TotalBreakTime();
    m_totalPay = calculator.CalculatePay(m_employee->PayRate(), m_employee->OvertimePayRate());
    return true;
}

bool CTimeCard::CloseTimeRecord(const std::shared_ptr<CEmployee>& theemployee, DateTime theshiftdate, DateTime theendtime)
{
    Begin();
    if (theemployee == nullptr) {
        return Fail(timecard::FetchFailed);
    }
    // Both bounds are the shift date: of the records from then on this finds the open ones, whose zero end lies before every bound.
    if (!m_factory->BuildList(theemployee->EmployeeID(), theshiftdate, theshiftdate)) {
        return Fail(timecard::FetchFailed, m_factory->LastFailure());
    }
    return Succeeds([&] { return CloseFirstOpen(*TimeRecordList(), theendtime); },
                    [&](const Failure& reason) { Fail(timecard::FetchFailed, reason); });
}

bool CTimeCard::CloseFirstOpen(CTimeRecordList& list, DateTime theendtime)
{
    const std::int16_t count = NarrowToInt16(list.Count());
    for (std::int32_t i = 1; i <= count; ++i) {
        CTimeRecord& record = list.RecordAt(i);
        if (!record.EndTime().IsZero()) {
            continue;
        }
        record.EndTime(theendtime);
        const bool saved = m_factory->Save(list.Item(i));
        m_lastFailure = m_factory->LastFailure();
        if (saved) {
            return true;
        }
    }
    return false;
}

std::shared_ptr<CTimeRecord> CTimeCard::GetTimeRecordByKey(DateTime thestarttime, DateTime theendtime)
{
    auto record = m_factory->GetTimeRecordByKey(thestarttime, theendtime);
    if (record == nullptr) {
        ErrorNumber(timecard::NoSuchRecord);
    }
    return record;
}

bool CTimeCard::Save()
{
    Begin();
    ObjectState(state::Unchanged);
    const bool saved = m_factory->SaveList();
    m_lastFailure = m_factory->LastFailure();
    return saved || Fail(m_factory->ErrorNumber());
}

bool CTimeCard::SaveTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord)
{
    Begin();
    const bool saved = m_factory->Save(thetimerecord);
    m_lastFailure = m_factory->LastFailure();
    return saved || Fail(m_factory->ErrorNumber());
}

std::string CTimeCard::ToString()
{
    return BuildText(timecard::TextFailed, [this](std::string& text) {
        text += "\r\n";
        AppendSummary(text);
    });
}

std::string CTimeCard::ToStringReport()
{
    return BuildText(timecard::TextFailed, [this](std::string& text) {
        if (m_employee != nullptr) {
            text += m_employee->ToStringTimeCard() + "\r\n";
        }
        text += kReportHeading;
        text += "\r\n\r\n";
        AppendLines(text);
        text += "\r\n";
        AppendSummary(text);
    });
}

std::string CTimeCard::ToStringReview()
{
    return BuildText(timecard::TextFailed, [this](std::string& text) { AppendSummary(text); });
}

void CTimeCard::AppendLines(std::string& text)
{
    const std::vector<CardLine> lines = Lines();
    if (lines.empty()) {
        ErrorNumber(timecard::NoRecords);
        return;
    }
    const float allowance = BreakAllowance();
    for (const CardLine& line : lines) {
        text += '\t';
        line.AppendTo(text, allowance);
        text += "\r\n";
    }
}

// The breaks come off every line, deliberately: whether or not the employee has automatic deduction, and however many records share a day.
float CTimeCard::BreakAllowance() const
{
    if (m_employee == nullptr) {
        throw Failure(failure::ObjectNotSet);
    }
    constexpr double kMinutesOfAnHour = 60.0;
    return static_cast<float>(m_employee->AutoDeductLunchLength() / kMinutesOfAnHour +
                              m_employee->AutoDeductBreakLength() / kMinutesOfAnHour);
}

// Three tabs after the short labels and two after the long ones bring the values to one tab stop.
void CTimeCard::AppendSummary(std::string& text) const
{
    text += "\tRegular: \t\t\t" + TwoDecimals(m_regularHours) + "\r\n";
    text += "\tRegular Pay Rate: \t\t" + TwoDecimals(RegularPay()) + "\r\n";
    text += "\tOvertime: \t\t\t" + TwoDecimals(m_overtimeHours) + "\r\n";
    text += "\tOvertime Pay Rate: \t\t" + TwoDecimals(OvertimePay()) + "\r\n";
    text += "\tTotal Break Time: \t\t" + TwoDecimals(m_totalBreakTime) + "\r\n";
    text += "\tGross Pay: \t\t\t" + TwoDecimals(m_totalPay) + "\r\n";
}

bool CTimeCard::Fail(std::int32_t errorNumber, const Failure& reason)
{
    m_lastFailure = reason;
    return Fail(errorNumber);
}

bool CTimeCard::Fail(std::int32_t errorNumber)
{
    ErrorNumber(errorNumber);
    return false;
}

} // namespace ptk
