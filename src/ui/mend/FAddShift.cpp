#include "ui/mend/FAddShift.h"

#include "model/CEmployee.h"
#include "platform/system/Clock.h"
#include "ui_FAddShift.h"

namespace ptk {

namespace {

constexpr auto kForWhom = "For %1: %2";
constexpr auto kForOne = "For %1";
constexpr auto kPeople = "%1 people";
constexpr auto kAdded = "%1 added; Edit > Undo (Ctrl+Z) takes it back";
constexpr auto kOneShift = "1 shift";
constexpr auto kShifts = "%1 shifts";
constexpr auto kUsualTip = "Take the times of the usual shift";
constexpr auto kNoUsualTip = "The usual shift is not set on the Options page";
constexpr auto kWhyAdded = "This period was paid to some of them: say why it is changed, or save without a reason";
constexpr auto kStoreTip = "Store the shift for everybody as one step";
constexpr auto kStoreNotTip = "Choose a day and times first";

constexpr int kShiftLines = 3;

bool IsSetTime(DateTime time)
{
    return time != DateTime(time.Date());
}

QString NamesOf(const FAddShift::People& people)
{
    QStringList names;
    for (const auto& person : people) {
        names << QString::fromStdString(person->DisplayName());
    }
    return names.join(", ");
}

} // namespace

FAddShift::FAddShift(QWidget* parent, People people, Services services, const Usual& usual, DateTime day, const ReasonLine& reasons)
    : QDialog(parent), m_ui(std::make_unique<Ui::FAddShift>()), m_people(std::move(people)), m_services(std::move(services)), m_usual(usual)
{
    m_ui->setupUi(this);
    m_ui->dttbShiftDay->SetClock(m_services.clock);
    m_ui->dttbShiftDay->SetDate(day);
    m_ui->lblShiftForecast->KeepRoom(kShiftLines);
    m_ui->cboReason->Offer(reasons);
    m_ui->lblShiftWhom->setText(m_people.size() == 1 ? QString(kForOne).arg(NamesOf(m_people))
                                                     : QString(kForWhom).arg(QString(kPeople).arg(m_people.size()), NamesOf(m_people)));
    const bool usualIsSet = IsSetTime(m_usual.start) && IsSetTime(m_usual.end);
    m_ui->cmdAutoShift->setEnabled(usualIsSet);
    m_ui->cmdAutoShift->setToolTip(usualIsSet ? kUsualTip : kNoUsualTip);
    Connect();
    ChangeDay();
}

FAddShift::~FAddShift() = default;

void FAddShift::Connect()
{
    connect(m_ui->dttbShiftDay, &DateCombo::currentTextChanged, this, &FAddShift::ChangeDay);
    for (auto* box : {m_ui->dttbShiftStart, m_ui->dttbShiftEnd}) {
        connect(box, &DateTimeBox::textChanged, this, &FAddShift::Forecast);
    }
    connect(m_ui->cmdAutoShift, &QPushButton::clicked, this, &FAddShift::TakeUsual);
    connect(m_ui->cmdSave, &QPushButton::clicked, this, &FAddShift::Save);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

AddedShift FAddShift::Texts() const
{
    return {m_ui->dttbShiftDay->Date(), m_ui->dttbShiftStart->Moment(), m_ui->dttbShiftEnd->Moment()};
}

void FAddShift::ChangeDay()
{
    const auto day = m_ui->dttbShiftDay->Date();
    if (day && day != m_askedFor) {
        m_taken = m_services.taken(*day);
        m_askedFor = day;
    }
    Forecast();
}

void FAddShift::Forecast()
{
    const AddedShift shift = Texts();
    m_ui->lblShiftForecast->Say(QString::fromStdString(AddedShiftForecast(shift, m_people, m_taken, m_usual.longShiftHours)));
    m_ui->cmdSave->setEnabled(shift.Read().has_value());
    m_ui->cmdSave->setToolTip(shift.Read() ? kStoreTip : kStoreNotTip);
}

void FAddShift::TakeUsual()
{
    m_ui->dttbShiftStart->SetText(TimeText(m_usual.start));
    m_ui->dttbShiftEnd->SetText(TimeText(m_usual.end));
    m_ui->cmdSave->setFocus();
}

void FAddShift::Save()
{
    const auto shift = Texts().Read();
    if (!shift) {
        return;
    }
    if (m_ui->cboReason->AsksForIt()) {
        return m_ui->lblShiftForecast->Say(kWhyAdded);
    }
    const QString refusal = m_services.store(*shift, m_ui->cboReason->Reason());
    if (!refusal.isEmpty()) {
        return m_ui->lblShiftForecast->Say(refusal);
    }
    m_stored = QString(kAdded).arg(m_people.size() == 1 ? QString(kOneShift) : QString(kShifts).arg(m_people.size()));
    accept();
}

} // namespace ptk
