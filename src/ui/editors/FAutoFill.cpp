#include "ui/editors/FAutoFill.h"

#include "model/CTimeRecord.h"
#include "model/CTimeRecordList.h"
#include "model/payday/Closing.h"
#include "model/payday/PaidText.h"
#include "model/PayPeriod.h"
#include "office/card/TimeCardNotices.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/Clock.h"
#include "platform/system/Desktop.h"
#include "platform/text/Text.h"
#include "ui/boxes/ReasonBox.h"
#include "ui_FAutoFill.h"

namespace ptk {

namespace {

constexpr auto kRangeTitle = "Date Range Error";
constexpr auto kPeriodText = "Cannot create time records for the given time period.";
constexpr auto kRecordTitle = "Time Record Error";
constexpr int kForecastLines = 3;

bool IsMidnight(DateTime moment)
{
    return DateTime(DateTime().Date(), moment.Time()).IsZero();
}

} // namespace

FAutoFill::FAutoFill(ptk::Desktop& desktop, const Clock& clock, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::FAutoFill>()), m_desktop(desktop)
{
    m_ui->setupUi(this);
    m_ui->lblForecast->KeepRoom(kForecastLines);
    for (auto* box : {m_ui->dttbTCFrom, m_ui->dttbTCTo}) {
        box->SetClock(clock);
        box->SetDate(clock.Today());
    }
    connect(m_ui->dttbTCFrom, &DateCombo::Changed, this, &FAutoFill::SetPeriodEndDate);
    for (auto* box : {m_ui->dttbTCFrom, m_ui->dttbTCTo}) {
        connect(box, &DateCombo::currentTextChanged, this, &FAutoFill::Forecast);
    }
    for (auto* box : {m_ui->dttbStartTime, m_ui->dttbEndTime}) {
        connect(box, &DateTimeBox::textChanged, this, &FAutoFill::Forecast);
    }
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

void FAutoFill::Announce(const std::string& owner, std::optional<DayNumbers> takenDays)
{
    m_ui->lblOwner->Say(QString::fromStdString(owner));
    m_takenDays = std::move(takenDays);
    Forecast();
}

void FAutoFill::TellPaid(const Closing& closing)
{
    m_ui->lblOwner->Say(m_ui->lblOwner->text() + "\n" + QString::fromStdString(PaidText(closing)));
}

void FAutoFill::OfferReasons(const ReasonLine& line)
{
    m_ui->cboReason->Offer(line);
}

std::string FAutoFill::Reason() const
{
    return m_ui->cboReason->Reason();
}

FillTexts FAutoFill::Texts() const
{
    return {m_ui->dttbTCFrom->Text().toStdString(), m_ui->dttbTCTo->Text().toStdString(), m_ui->dttbStartTime->Moment(),
            m_ui->dttbEndTime->Moment()};
}

void FAutoFill::Times(const FillTexts& value)
{
    m_ui->dttbStartTime->SetText(QString::fromStdString(value.startTime.text));
    m_ui->dttbEndTime->SetText(QString::fromStdString(value.endTime.text));
}

void FAutoFill::Forecast()
{
    const FillTexts texts = Texts();
    m_ui->lblForecast->Say(QString::fromStdString(FillForecast(PlanFill(texts), texts, m_takenDays)));
}

bool FAutoFill::LoadTimeRecordList()
{
    return Succeeds([this] {
        const FillPlan plan = PlanFill(Texts());
        if (!MayFill(plan)) {
            return false;
        }
        Required(m_list);
        for (const Shift& shift : plan.shifts) {
            AddRecord(shift);
        }
        return true;
    });
}

// Tells in a box of a wrong range, and deliberately not of times that cannot be read.
bool FAutoFill::MayFill(const FillPlan& plan)
{
    if (plan.refusal == FillRefusal::NoRange) {
        m_desktop.Show(timecardnotice::kInvalidRangeText, kRangeTitle, Icon::Exclamation);
    }
    if (plan.refusal == FillRefusal::TooShort) {
        m_desktop.Show(kPeriodText, kRangeTitle, Icon::Exclamation);
    }
    return plan.refusal == FillRefusal::None;
}

void FAutoFill::AddRecord(const Shift& shift)
{
    const auto record = std::make_shared<CTimeRecord>();
    record->EmployeeID(m_employeeID);
    record->StartTime(shift.start);
    record->EndTime(shift.end);
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
    if (m_ui->cboReason->AsksForIt()) {
        return m_ui->lblForecast->Say(ReasonBox::kAsked);
    }
    m_okClick = LoadTimeRecordList();
    accept();
}

} // namespace ptk
