#include "ui/dialogs/FAutoFill.h"

#include "model/CDateRange.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordList.h"
#include "model/PayPeriod.h"
#include "office/TimeCardNotices.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Required.h"
#include "platform/Text.h"
#include "ui_FAutoFill.h"

namespace ptk {

namespace {

constexpr auto kRangeTitle = "Date Range Error";
constexpr auto kPeriodText = "Cannot create time records for the given time period.";
constexpr auto kRecordTitle = "Time Record Error";

QString TimeText(DateTime moment)
{
    return QString::fromStdString(GeneralText(DateTime(DateTime().Date(), moment.Time())));
}

bool IsMidnight(DateTime moment)
{
    return DateTime(DateTime().Date(), moment.Time()).IsZero();
}

DateTime Moment(DateTime day, const DateTimeBox& time)
{
    return ToDateTime(ShortDateText(day) + " " + time.Text().toStdString());
}

} // namespace

FAutoFill::FAutoFill(ptk::Desktop& desktop, const Clock& clock, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::FAutoFill>()), m_desktop(desktop)
{
    m_ui->setupUi(this);
    for (auto* box : {m_ui->dttbTCFrom, m_ui->dttbTCTo}) {
        box->SetClock(clock);
        box->SetDate(clock.Today());
    }
    connect(m_ui->dttbTCFrom, &DateCombo::Changed, this, &FAutoFill::SetPeriodEndDate);
    connect(m_ui->cmdAutoShift, &QPushButton::clicked, this, &FAutoFill::AutoShift);
    connect(m_ui->cmdSave, &QPushButton::clicked, this, &FAutoFill::Save);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &FAutoFill::reject);
}

FAutoFill::~FAutoFill() = default;

void FAutoFill::StartDate(DateTime value)
{
    m_ui->dttbTCFrom->SetDate(value);
}

DateTime FAutoFill::StartDate() const
{
    return ToDateTime(m_ui->dttbTCFrom->Text().toStdString());
}

void FAutoFill::EndDate(DateTime value)
{
    m_ui->dttbTCTo->SetDate(value);
}

DateTime FAutoFill::EndDate() const
{
    return ToDateTime(m_ui->dttbTCTo->Text().toStdString());
}

bool FAutoFill::LoadTimeRecordList()
{
    try {
        CDateRange range;
        if (!ReadRange(range)) {
            return false;
        }
        AddRecords(range);
        return true;
    } catch (...) {
        return false;
    }
}

bool FAutoFill::ReadRange(CDateRange& range)
{
    const bool valid = range.ValidateRange(m_ui->dttbTCFrom->Text().toStdString(), m_ui->dttbTCTo->Text().toStdString());
    if (!valid || range.ErrorNumber() == daterange::OutOfLimits) {
        m_desktop.Show(timecardnotice::kInvalidRangeText, kRangeTitle, Icon::Exclamation);
        return false;
    }
    if (range.DayCount() < 1) {
        m_desktop.Show(kPeriodText, kRangeTitle, Icon::Exclamation);
        return false;
    }
    return true;
}

void FAutoFill::AddRecords(const CDateRange& range)
{
    Required(m_list);
    for (std::int32_t i = 0; i <= range.DayCount(); ++i) {
        AddRecord(range.StartDate().AddDays(i));
    }
}

// The end is on the same day also when it lies before the start.
void FAutoFill::AddRecord(DateTime day)
{
    const auto record = std::make_shared<CTimeRecord>();
    record->EmployeeID(m_employeeID);
    record->StartTime(Moment(day, *m_ui->dttbStartTime));
    record->EndTime(Moment(day, *m_ui->dttbEndTime));
    if (!m_list->AddNew(record)) {
        m_desktop.Show(kPeriodText, kRecordTitle, Icon::Exclamation);
    }
}

bool FAutoFill::SetPeriodEndDate()
{
    const auto from = m_ui->dttbTCFrom->Date();
    if (from) {
        m_ui->dttbTCTo->SetDate(PayPeriodFrom(*from, m_periodLength).to);
    }
    return from.has_value();
}

void FAutoFill::AutoShift()
{
    if (IsMidnight(m_autoShiftStart) || IsMidnight(m_autoShiftEnd)) {
        return;
    }
    m_ui->dttbStartTime->SetText(TimeText(m_autoShiftStart));
    m_ui->dttbEndTime->SetText(TimeText(m_autoShiftEnd));
}

void FAutoFill::Save()
{
    m_okClick = LoadTimeRecordList();
    accept();
}

} // namespace ptk
