#include "ui/timecards/CardChoice.h"

#include "model/CEmployeeList.h"
#include "office/card/TimeCardNotices.h"
#include "platform/Failure.h"
#include "platform/Succeeds.h"
#include "platform/system/Clock.h"
#include "startup/CController.h"
#include "store/CSystemOptions.h"
#include "ui/boxes/ChosenOnly.h"
#include "ui/boxes/EmployeeModels.h"
#include "ui/page/PageHost.h"
#include "ui/widgets/FoldingRow.h"
#include "ui/work/KeepSettings.h"
#include "ui_CardChoice.h"

#include <QSettings>

namespace ptk {

namespace {

constexpr int kNameCharacters = 14;     // shown on the smallest window
constexpr int kMostNameCharacters = 32; // shown on the largest window
constexpr auto kLastFrom = "timecards/from";
constexpr auto kLastTo = "timecards/to";
constexpr auto kNoneUsed = "No time card has been generated yet";
constexpr std::int16_t kBack = -1;
constexpr std::int16_t kNext = 1;

DateTime ChosenDate(const DateCombo& box)
{
    const auto date = box.Date();
    if (!date) {
        throw Failure(failure::TypeMismatch);
    }
    return *date;
}

// The texts of the last used period, as the boxes showed them; null texts where there is none.
QStringList LastUsed()
{
    const QSettings settings;
    return {settings.value(kLastFrom).toString(), settings.value(kLastTo).toString()};
}

} // namespace

CardChoice::CardChoice(PageHost& host, QWidget* parent) : QWidget(parent), m_host(host), m_ui(std::make_unique<Ui::CardChoice>())
{
    m_ui->setupUi(this);
    LayOut();
    m_ui->dttbTCFrom->SetClock(host.Clock());
    m_ui->dttbTCTo->SetClock(host.Clock());
    QComboBox* box = m_ui->cboTCEmployeeName;
    ShowEmployees(*box, host.EmployeeModels().Offered(), kNameCharacters);
    ChooseByTyping(*box);
    box->setMaximumWidth(box->sizeHint().width() + (kMostNameCharacters - kNameCharacters) * box->fontMetrics().averageCharWidth());
    ConnectBoxes();
    OfferLastUsed();
}

CardChoice::~CardChoice() = default;

void CardChoice::LayOut()
{
    delete layout();
    auto* row = new FoldingRow(this);
    row->addWidget(m_ui->Frame1);
    auto* button = new QVBoxLayout; // aligned with what stands inside the frames
    button->addStretch();
    button->addWidget(m_ui->cmdGenTimeRecs);
    button->addSpacing(m_ui->Frame2->contentsMargins().bottom() + m_ui->layoutFrame2->contentsMargins().bottom());
    auto* employee = new QHBoxLayout;
    employee->addWidget(m_ui->Frame2, 1);
    employee->addLayout(button);
    row->addLayout(employee, 1);
}

void CardChoice::ConnectBoxes()
{
    connect(m_ui->dttbTCFrom, &DateCombo::Changed, this, [this] {
        AlignPeriodEnd();
        emit PeriodTyped();
    });
    connect(m_ui->dttbTCTo, &DateCombo::Changed, this, &CardChoice::PeriodTyped);
    connect(m_ui->cmdPeriodBack, &QPushButton::clicked, this, [this] { StepPeriod(kBack); });
    connect(m_ui->cmdPeriodNext, &QPushButton::clicked, this, [this] { StepPeriod(kNext); });
    connect(m_ui->cmdLastPeriod, &QToolButton::clicked, this, &CardChoice::TakeLastUsed);
    connect(m_ui->cboTCEmployeeName, &QComboBox::activated, this, &CardChoice::EmployeeChosen);
    connect(m_ui->cmdTCBack, &QPushButton::clicked, this, [this] { StepEmployee(kBack); });
    connect(m_ui->cmdTCNext, &QPushButton::clicked, this, [this] { StepEmployee(kNext); });
    connect(m_ui->cmdGenTimeRecs, &QPushButton::clicked, this, &CardChoice::GenerateAsked);
    for (QComboBox* box : findChildren<QComboBox*>()) {
        connect(box, &QComboBox::currentTextChanged, this, &CardChoice::Changed);
    }
}

bool CardChoice::InitializePayPeriod()
{
    m_ui->dttbTCFrom->SetDate(m_host.Clock().Today());
    return AlignPeriodEnd();
}

bool CardChoice::AlignPeriodEnd()
{
    return Succeeds([this] { m_ui->dttbTCTo->SetDate(PayPeriodFrom(ChosenDate(*m_ui->dttbTCFrom), m_host.PeriodLength()).to); });
}

bool CardChoice::MovePayPeriod(std::int16_t direction)
{
    const auto period = StepPayPeriod(ChosenDate(*m_ui->dttbTCFrom), m_host.PeriodLength(), direction);
    if (!period) {
        return false;
    }
    Period(*period);
    return true;
}

void CardChoice::StepPeriod(std::int16_t direction)
{
    if (!Succeeds([&] { return MovePayPeriod(direction); })) {
        Tell(m_host.Desktop(), timecardnotice::kNotMoved);
    }
    emit Stepped();
}

void CardChoice::KeepAsLastUsed()
{
    const auto shown = PeriodTexts();
    static_cast<void>(Period());
    if (ChosenDate(*m_ui->dttbTCFrom) == m_host.Clock().Today()) {
        return;
    }
    KeepSettings({{kLastFrom, QString::fromStdString(shown.from)}, {kLastTo, QString::fromStdString(shown.to)}});
    OfferLastUsed();
}

void CardChoice::OfferLastUsed()
{
    const QStringList last = LastUsed();
    const bool any = !last.contains(QString());
    m_ui->cmdLastPeriod->setEnabled(any);
    m_ui->cmdLastPeriod->setToolTip(any ? last.join(" - ") : kNoneUsed);
}

void CardChoice::TakeLastUsed()
{
    const QStringList last = LastUsed();
    m_ui->dttbTCFrom->SetText(last.first());
    m_ui->dttbTCTo->SetText(last.last());
    emit Stepped();
}

void CardChoice::StepEmployee(int direction)
{
    QComboBox* box = m_ui->cboTCEmployeeName;
    const int next = box->currentIndex() + direction;
    if (next >= 0 && next < box->count()) {
        box->setCurrentIndex(next);
    }
    emit Stepped();
}

PayPeriod CardChoice::Period() const
{
    return {ChosenDate(*m_ui->dttbTCFrom), ChosenDate(*m_ui->dttbTCTo)};
}

std::optional<PayPeriod> CardChoice::PeriodIfDates() const
{
    const auto from = m_ui->dttbTCFrom->Date();
    const auto to = m_ui->dttbTCTo->Date();
    return from && to ? std::optional(PayPeriod{*from, *to}) : std::nullopt;
}

void CardChoice::Period(PayPeriod value)
{
    m_ui->dttbTCFrom->SetDate(value.from);
    m_ui->dttbTCTo->SetDate(value.to);
}

ptk::PeriodTexts CardChoice::PeriodTexts() const
{
    return {m_ui->dttbTCFrom->Text().toStdString(), m_ui->dttbTCTo->Text().toStdString()};
}

std::string CardChoice::PeriodText() const
{
    const auto [from, to] = PeriodTexts();
    return from + " - " + to;
}

std::string CardChoice::EmployeeText() const
{
    return m_ui->cboTCEmployeeName->currentText().toStdString();
}

CardName CardChoice::Chosen() const
{
    const auto controller = m_host.Controller();
    const auto list = controller == nullptr ? nullptr : controller->EmployeeList();
    const auto employee = list == nullptr ? nullptr : list->GetEmployeeByName(EmployeeText());
    return {employee == nullptr ? std::string() : EmployeeText(), PeriodText()};
}

void CardChoice::Employee(std::int32_t employeeID)
{
    m_ui->cboTCEmployeeName->setCurrentIndex(m_ui->cboTCEmployeeName->findData(employeeID, kEmployeeIDRole));
}

std::optional<std::int32_t> CardChoice::EmployeeID() const
{
    const QComboBox& box = *m_ui->cboTCEmployeeName;
    const QVariant id = box.currentData(kEmployeeIDRole);
    return id.isValid() && box.currentText() == box.itemText(box.currentIndex()) ? std::optional(id.toInt()) : std::nullopt;
}

void CardChoice::SelectFirstEmployee()
{
    m_ui->cboTCEmployeeName->setCurrentIndex(0);
    emit EmployeeChosen();
}

void CardChoice::FocusEmployee()
{
    m_ui->cboTCEmployeeName->setFocus();
}

} // namespace ptk
