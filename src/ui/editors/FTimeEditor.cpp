#include "ui/editors/FTimeEditor.h"

#include "model/CTimeRecord.h"
#include "model/ModelErrors.h"
#include "model/payday/Closing.h"
#include "model/payday/PaidText.h"
#include "platform/Succeeds.h"
#include "platform/system/Clock.h"
#include "platform/system/Desktop.h"
#include "platform/text/Text.h"
#include "ui/boxes/ReasonBox.h"
#include "ui/editors/TimeRecordReceiver.h"
#include "ui_FTimeEditor.h"

namespace ptk {

namespace {

constexpr auto kFormatTitle = "Date Format Error";
constexpr auto kFormatText = "Error: Invalid date separator. Use : to separate time values.";
constexpr int kWarningLines = 2;

void ShowDay(DateTimeBox& box, DateTime moment, DateTime today)
{
    const DateTime day(moment.Date());
    box.SetText(QString::fromStdString(ShortDateText(day.IsZero() ? today : day)));
}

// Shows the time without seconds. The box is deliberately empty at midnight, since that is the end of a record that is still open.
void ShowTime(DateTimeBox& box, DateTime moment)
{
    const TimeOfDay time = moment.Time();
    if (time.hour == 0 && time.minute == 0) {
        box.Clear();
    } else {
        box.SetText(QString("%1:%2").arg(time.hour).arg(time.minute));
    }
}

} // namespace

FTimeEditor::FTimeEditor(ptk::Desktop& desktop, const Clock& clock, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::FTimeEditor>()), m_desktop(desktop), m_clock(clock)
{
    m_ui->setupUi(this);
    m_ui->lblWarning->KeepRoom(kWarningLines);
    m_ui->dttbStartDate->SetDateMode(clock);
    m_ui->dttbEndDate->SetDateMode(clock);
    for (auto* box : Boxes()) {
        connect(box, &DateTimeBox::KeyEntered, this, [this] { m_modified = true; });
        connect(box, &DateTimeBox::textChanged, this, &FTimeEditor::Warn);
    }
    for (auto* box : {m_ui->dttbStartTime, m_ui->dttbEndTime}) {
        connect(box, &DateTimeBox::Typed, this, &FTimeEditor::FollowTyping);
        connect(box, &DateTimeBox::Changed, this, &FTimeEditor::UpdateTotal);
    }
    connect(m_ui->cmdAutoShift, &QPushButton::clicked, this, &FTimeEditor::AutoShift);
    connect(m_ui->cmdSave, &QPushButton::clicked, this, &FTimeEditor::Save);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &FTimeEditor::reject);
}

FTimeEditor::~FTimeEditor() = default;

std::array<DateTimeBox*, 4> FTimeEditor::Boxes() const
{
    return {m_ui->dttbStartDate, m_ui->dttbStartTime, m_ui->dttbEndDate, m_ui->dttbEndTime};
}

void FTimeEditor::TimeRecord(std::shared_ptr<CTimeRecord> value)
{
    m_timeRecord = std::move(value);
    ShowTimeRecord();
    m_modified = false;
}

bool FTimeEditor::SetAutoShiftTimes(DateTime thestarttime, DateTime theendtime)
{
    m_autoShiftStart = thestarttime;
    m_autoShiftEnd = theendtime;
    return false;
}

void FTimeEditor::Owner(const std::string& text)
{
    m_ui->lblOwner->Say(QString::fromStdString(text));
}

void FTimeEditor::TellPaid(const Closing& closing)
{
    m_ui->lblOwner->Say(m_ui->lblOwner->text() + "\n" + QString::fromStdString(PaidText(closing)));
}

void FTimeEditor::OfferReasons(const ReasonLine& line)
{
    m_ui->cboReason->Offer(line);
}

std::string FTimeEditor::Reason() const
{
    return m_ui->cboReason->Reason();
}

void FTimeEditor::WarnAsNew(std::optional<PayPeriod> shown)
{
    m_isNew = true;
    m_shownPeriod = shown;
    Warn();
}

void FTimeEditor::WarnAbove(std::int32_t hours)
{
    m_longShiftHours = hours;
    Warn();
}

void FTimeEditor::Warn()
{
    const RecordTexts texts = Texts();
    const std::string tooLong = m_longShiftHours ? LongShiftWarning(texts, *m_longShiftHours) : std::string();
    m_ui->lblWarning->Say(QString::fromStdString(tooLong + (m_isNew ? NewRecordWarning(texts, m_shownPeriod) : std::string())));
}

// Selects the text of the first box, as the Tab key would, so that what is typed replaces it.
void FTimeEditor::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    m_ui->dttbStartDate->setFocus();
    m_ui->dttbStartDate->selectAll();
}

RecordTexts FTimeEditor::Texts() const
{
    return {m_ui->dttbStartDate->Moment(), m_ui->dttbStartTime->Moment(), m_ui->dttbEndDate->Moment(), m_ui->dttbEndTime->Moment()};
}

void FTimeEditor::Texts(const RecordTexts& value)
{
    const std::array<const TypedMoment*, 4> moments{&value.startDate, &value.startTime, &value.endDate, &value.endTime};
    for (std::size_t i = 0; i < moments.size(); ++i) {
        Boxes().at(i)->SetText(QString::fromStdString(moments.at(i)->text));
    }
    FollowTyping();
}

std::string FTimeEditor::SavedText(const std::string& owner) const
{
    return SavedRecordText(owner, Texts(), m_timeRecord->StartTime(), m_timeRecord->EndTime());
}

void FTimeEditor::ClearControls()
{
    for (auto* box : Boxes()) {
        box->Clear();
    }
    m_ui->txtTotalTime->clear();
    m_modified = false;
}

void FTimeEditor::ShowTimeRecord()
{
    if (m_timeRecord == nullptr) {
        ClearControls();
        return;
    }
    ShowDay(*m_ui->dttbStartDate, m_timeRecord->StartTime(), m_clock.Today());
    ShowDay(*m_ui->dttbEndDate, m_timeRecord->EndTime(), m_clock.Today());
    ShowTime(*m_ui->dttbStartTime, m_timeRecord->StartTime());
    ShowTime(*m_ui->dttbEndTime, m_timeRecord->EndTime());
    ShowTotal();
}

// Reads the boxes into the record. The message is deliberately the same whatever the cause. If only the end fails, the new start stays.
bool FTimeEditor::ReadTimeRecord()
{
    for (auto* box : Boxes()) {
        box->TakeNote();
    }
    return Succeeds([this] { ReadTimes(); }, [this](const Failure&) { m_desktop.Show(kFormatText, kFormatTitle, Icon::Exclamation); });
}

void FTimeEditor::ReadTimes()
{
    if (m_timeRecord == nullptr) {
        m_timeRecord = std::make_shared<CTimeRecord>();
    }
    const RecordTexts texts = Texts();
    m_timeRecord->StartTime(texts.Start());
    m_timeRecord->EndTime(texts.End());
}

void FTimeEditor::ShowTotal()
{
    if (m_timeRecord != nullptr) {
        m_ui->txtTotalTime->setText(QString::fromStdString(TwoDecimals(m_timeRecord->HoursWorked())));
    }
}

bool FTimeEditor::HasBothTimes() const
{
    return !m_ui->dttbStartTime->Text().isEmpty() && !m_ui->dttbEndTime->Text().isEmpty();
}

// Shows the total without a message box, which would take the next key. A mistake is told when the time box is left.
void FTimeEditor::FollowTyping()
{
    if (HasBothTimes() && Succeeds([this] { ReadTimes(); })) {
        ShowTotal();
    }
}

void FTimeEditor::UpdateTotal()
{
    if (HasBothTimes()) {
        ReadTimeRecord();
        ShowTotal();
    }
}

void FTimeEditor::AutoShift()
{
    m_ui->dttbEndTime->SetText(TimeText(m_autoShiftEnd));
    m_ui->dttbStartTime->SetText(TimeText(m_autoShiftStart));
    ReadTimeRecord();
    ShowTotal();
}

// Hands the record back, deliberately even if its texts could not be read, of which the user has already been told.
void FTimeEditor::Save()
{
    if (m_ui->cboReason->AsksForIt()) {
        return m_ui->lblWarning->Say(ReasonBox::kAsked);
    }
    ReadTimeRecord();
    if (m_parentWindow == nullptr || !m_parentWindow->ReturnTimeRecord(m_timeRecord)) {
        m_saveErrorNumber = timecard::RecordRejected;
    }
    accept();
}

} // namespace ptk
