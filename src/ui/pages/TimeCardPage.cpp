#include "ui/pages/TimeCardPage.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordList.h"
#include "model/PayPeriod.h"
#include "office/CardRecords.h"
#include "office/TimeCardNotices.h"
#include "platform/BusyPointer.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/Text.h"
#include "startup/CController.h"
#include "store/CSystemOptions.h"
#include "ui/dialogs/FAutoFill.h"
#include "ui/dialogs/FTimeEditor.h"
#include "ui/OpenReports.h"
#include "ui/pages/PageHost.h"
#include "ui/pages/TimeRecordGridModel.h"
#include "ui/widgets/ChosenOnly.h"
#include "ui/widgets/EmployeeModels.h"
#include "ui_TimeCardPage.h"

#include <QShortcut>

namespace ptk {

namespace {

using namespace timecardnotice;

constexpr auto kStatusName = "Timecards";
constexpr auto kNothingToFill = "Generate a time card first.";
constexpr int kNameCharacters = 14;
constexpr int kRowSpace = 8; // pixels around the text of a row
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

QString Figure(float value)
{
    return QString::fromStdString(TwoDecimals(value));
}

} // namespace

TimeCardPage::TimeCardPage(PageHost& host, QWidget* parent)
    : QWidget(parent), m_host(host), m_ui(std::make_unique<Ui::TimeCardPage>()), m_records(new TimeRecordGridModel(this))
{
    m_ui->setupUi(this);
    m_ui->dttbTCFrom->SetClock(host.Clock());
    m_ui->dttbTCTo->SetClock(host.Clock());
    ShowEmployees(*m_ui->cboTCEmployeeName, host.EmployeeModels().Offered(), kNameCharacters);
    ChooseByTyping(*m_ui->cboTCEmployeeName);
    m_ui->cmdFill->setToolTip(kNothingToFill);
    PrepareGrid();
    ConnectSelection();
    ConnectActions();
}

TimeCardPage::~TimeCardPage() = default;

void TimeCardPage::PrepareGrid()
{
    QTableView* grid = m_ui->grdTimeRecs;
    grid->setModel(m_records);
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid->horizontalHeader()->setHighlightSections(false);
    grid->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grid->verticalHeader()->setDefaultSectionSize(grid->fontMetrics().height() + kRowSpace);
    grid->verticalHeader()->hide();
    const auto choose = [this] {
        if (m_ui->grdTimeRecs->selectionModel()->hasSelection()) {
            m_host.EventSource(eventsource::TimeRecordGrid);
        }
    };
    connect(grid, &QTableView::clicked, this, choose);
    connect(grid->selectionModel(), &QItemSelectionModel::selectionChanged, this, choose);
}

void TimeCardPage::ConnectSelection()
{
    connect(m_ui->dttbTCFrom, &DateCombo::Changed, this, [this] {
        AlignPeriodEnd();
        ShowStatus();
    });
    connect(m_ui->dttbTCTo, &DateCombo::Changed, this, &TimeCardPage::ShowStatus);
    connect(m_ui->cmdPeriodBack, &QPushButton::clicked, this, [this] { StepPeriod(kBack); });
    connect(m_ui->cmdPeriodNext, &QPushButton::clicked, this, [this] { StepPeriod(kNext); });
    connect(m_ui->cboTCEmployeeName, &QComboBox::activated, this, &TimeCardPage::ChooseEmployee);
    connect(m_ui->cmdTCBack, &QPushButton::clicked, this, [this] { StepEmployee(kBack); });
    connect(m_ui->cmdTCNext, &QPushButton::clicked, this, [this] { StepEmployee(kNext); });
}

void TimeCardPage::ConnectActions()
{
    connect(m_ui->cmdGenTimeRecs, &QPushButton::clicked, this, &TimeCardPage::Generate);
    connect(m_ui->cmdTCNew, &QPushButton::clicked, this, &TimeCardPage::NewRecord);
    connect(m_ui->cmdTCEdit, &QPushButton::clicked, this, &TimeCardPage::EditRecord);
    connect(m_ui->grdTimeRecs, &QTableView::doubleClicked, this, &TimeCardPage::EditRecord);
    connect(m_ui->cmdTCDelete, &QPushButton::clicked, this, &TimeCardPage::DeleteRecord);
    auto* deleteKey = new QShortcut(QKeySequence::Delete, m_ui->grdTimeRecs, nullptr, nullptr, Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &TimeCardPage::DeleteRecord);
    connect(m_ui->cmdFill, &QPushButton::clicked, this, &TimeCardPage::AutoFill);
    connect(m_ui->cmdTCPrint, &QPushButton::clicked, this, &TimeCardPage::Print);
}

// Another page may have taken the marker over in the meantime; a row that cannot be edited must not look chosen.
void TimeCardPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_host.EventSource() != eventsource::TimeRecordGrid) {
        ForgetChosenRecord();
    }
}

bool TimeCardPage::InitializePayPeriod()
{
    m_ui->dttbTCFrom->SetDate(m_host.Clock().Today());
    return AlignPeriodEnd();
}

bool TimeCardPage::AlignPeriodEnd()
{
    return Succeeds([this] {
        m_ui->dttbTCTo->SetDate(PayPeriodFrom(ChosenDate(*m_ui->dttbTCFrom), PeriodLength()).to);
        return true;
    });
}

bool TimeCardPage::MovePayPeriod(std::int16_t direction)
{
    const auto period = StepPayPeriod(ChosenDate(*m_ui->dttbTCFrom), PeriodLength(), direction);
    if (!period) {
        return false;
    }
    m_ui->dttbTCFrom->SetDate(period->from);
    m_ui->dttbTCTo->SetDate(period->to);
    return true;
}

void TimeCardPage::StepPeriod(std::int16_t direction)
{
    if (!Succeeds([&] { return MovePayPeriod(direction); })) {
        Tell(m_host.Desktop(), kNotMoved);
    }
    TurnToChosenEmployee();
}

void TimeCardPage::StepEmployee(int direction)
{
    QComboBox* box = m_ui->cboTCEmployeeName;
    const int next = box->currentIndex() + direction;
    if (next >= 0 && next < box->count()) {
        box->setCurrentIndex(next);
    }
    TurnToChosenEmployee();
}

void TimeCardPage::SelectFirstEmployee()
{
    m_ui->cboTCEmployeeName->setCurrentIndex(0);
    ChooseEmployee();
}

void TimeCardPage::ChooseEmployee()
{
    m_host.EventSource(eventsource::Name);
    if (!EmployeeText().empty()) {
        m_employeeName = EmployeeText();
        ShowStatus();
    }
    ForgetChosenRecord();
}

void TimeCardPage::TurnToChosenEmployee()
{
    if (EmployeeText().empty()) {
        return;
    }
    m_employeeName = EmployeeText();
    ShowStatus();
    ClearTimeCardDisplay();
}

void TimeCardPage::ShowStatus()
{
    const QString period = m_ui->dttbTCFrom->Text() + " - " + m_ui->dttbTCTo->Text();
    m_host.SetStatusText(kStatusName, m_employeeName + " : " + period.toStdString());
}

void TimeCardPage::EnablePrint()
{
    m_ui->cmdTCPrint->setEnabled(true);
}

void TimeCardPage::Generate()
{
    if (!RefreshTimeCard()) {
        Tell(m_host.Desktop(), kNotGenerated);
    }
}

bool TimeCardPage::RefreshTimeCard()
{
    return Succeeds([this] {
        if (EmployeeText().empty()) {
            Tell(m_host.Desktop(), kNoEmployeeChosen);
        } else {
            Regenerate();
        }
        return true;
    });
}

bool TimeCardPage::GenerateTimeCard()
{
    m_host.TimeCard(nullptr);
    const auto controller = Controller();
    const auto employee = Required(controller->EmployeeList())->GetEmployeeByName(EmployeeText());
    const auto card = std::make_shared<CTimeCard>(Required(controller->TimeRecordFactory()));
    m_host.TimeCard(card);
    card->PTKDatabase(controller->PTKDatabase());
    const DateTime start = ChosenDate(*m_ui->dttbTCFrom);
    const DateTime end = ChosenDate(*m_ui->dttbTCTo).AddDays(1);
    const bool generated = [&] {
        const BusyPointer busy(m_host.Desktop());
        return card->GenerateTimecard(employee, start, end);
    }();
    if (!generated) {
        ReportCardError(card->ErrorNumber());
    }
    return generated;
}

void TimeCardPage::ReportCardError(std::int32_t errorNumber)
{
    for (const auto& error : kCardErrors) {
        if (error.number == errorNumber) {
            return Tell(m_host.Desktop(), error.notice);
        }
    }
}

void TimeCardPage::Regenerate()
{
    if (GenerateTimeCard()) {
        ShowTimeCard();
    } else {
        ClearTimeCardDisplay();
    }
}

// What was to be saved is saved; that the card cannot be shown again is another matter.
void TimeCardPage::RegenerateAfterSave()
{
    const auto regenerate = [this] {
        Regenerate();
        return true;
    };
    if (!Succeeds(regenerate)) {
        Tell(m_host.Desktop(), kNotGenerated);
    }
}

bool TimeCardPage::ShowTimeCard()
{
    SetupTimeRecordGrid();
    DisplayTimeCard();
    return false;
}

bool TimeCardPage::SetupTimeRecordGrid()
{
    m_records->Clear();
    ForgetChosenRecord();
    m_ui->cmdFill->setEnabled(m_host.TimeCard() != nullptr);
    m_ui->cmdFill->setToolTip(m_ui->cmdFill->isEnabled() ? QString() : kNothingToFill);
    return true;
}

bool TimeCardPage::DisplayTimeCard()
{
    const auto card = Required(m_host.TimeCard());
    const auto employee = Required(card->Employee());
    const bool filled = FillTimeRecordGrid(card->TimeRecordList());
    m_ui->txtTCHours->setText(Figure(card->RegularHoursWorked()));
    m_ui->txtTCPayRate->setText(Figure(employee->PayRate()));
    m_ui->txtTCOvertimeHours->setText(Figure(card->OvertimeHoursWorked()));
    m_ui->txtTCOvertimePayRate->setText(Figure(employee->OvertimePayRate()));
    m_ui->txtTCPeriodPay->setText(Figure(card->TotalPay()));
    return filled;
}

bool TimeCardPage::FillTimeRecordGrid(const std::shared_ptr<CTimeRecordList>& records)
{
    m_records->SetRecords(*Required(records));
    return true;
}

bool TimeCardPage::ClearTimeCardDisplay()
{
    for (auto* box : {m_ui->txtTCHours, m_ui->txtTCOvertimeHours, m_ui->txtTCPayRate, m_ui->txtTCOvertimePayRate, m_ui->txtTCPeriodPay}) {
        box->clear();
    }
    SetupTimeRecordGrid();
    return true;
}

void TimeCardPage::ForgetChosenRecord()
{
    m_ui->grdTimeRecs->clearSelection();
    m_host.EventSource(eventsource::None);
}

int TimeCardPage::ChosenRow() const
{
    const auto rows = m_ui->grdTimeRecs->selectionModel()->selectedRows();
    return m_host.EventSource() != eventsource::TimeRecordGrid || rows.isEmpty() ? -1 : rows.first().row();
}

// The shown texts have no seconds, an editor may have changed the record since, and a report may have put other employees' records into the
// one list that all cards share: only a record of this grid counts, else the one behind the chosen row.
std::shared_ptr<CTimeRecord> TimeCardPage::ChosenRecord() const
{
    const int row = ChosenRow();
    const auto start = ParseDateTime(m_records->Text(row, recordcolumn::Start).toStdString());
    const auto end = ParseDateTime(m_records->Text(row, recordcolumn::End).toStdString());
    const auto found = start && end ? Required(m_host.TimeCard())->GetTimeRecordByKey(*start, *end) : nullptr;
    return found != nullptr && m_records->Shows(found) ? found : m_records->Record(row);
}

void TimeCardPage::NewRecord()
{
    if (m_host.TimeCard() == nullptr) {
        return Tell(m_host.Desktop(), kNoCardForNew);
    }
    m_editingNew = true;
    OpenEditor(std::make_shared<CTimeRecord>());
}

void TimeCardPage::EditRecord()
{
    if (m_host.TimeCard() == nullptr) {
        return Tell(m_host.Desktop(), kNoCard);
    }
    if (ChosenRow() < 0) {
        return Tell(m_host.Desktop(), kNoneToEdit);
    }
    m_editingNew = false;
    OpenEditor(ChosenRecord());
}

void TimeCardPage::OpenEditor(const std::shared_ptr<CTimeRecord>& record)
{
    Succeeds([&] {
        const auto options = Required(Controller()->SystemOptions());
        FTimeEditor editor(m_host.Desktop(), m_host.Clock(), this);
        editor.TimeRecord(record);
        editor.ParentWindow(this);
        editor.SetAutoShiftTimes(options->AutoShiftStartTime(), options->AutoShiftEndTime());
        editor.exec();
        return true;
    });
}

bool TimeCardPage::ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord)
{
    StoreAndShow([&](CTimeCard& card, CTimeRecordFactory& factory) { return StoreRecord(card, factory, thetimerecord); }, kNotStored);
    return true;
}

void TimeCardPage::DeleteRecord()
{
    if (m_host.TimeCard() == nullptr) {
        return Tell(m_host.Desktop(), kNoCard);
    }
    if (ChosenRow() < 0) {
        return Tell(m_host.Desktop(), kNoneToDelete);
    }
    if (m_host.Desktop().MessageBox(kDeleteQuestion.text, kDeleteQuestion.title, kDeleteQuestion.icon, Buttons::YesNo) != Answer::Yes) {
        return;
    }
    StoreAndShow([this](CTimeCard& card, CTimeRecordFactory& factory) { return StoreDeletion(card, factory, ChosenRecord()); },
                 kNotDeleted);
}

// Without a card, or with a name that nobody has, there is nothing to fill.
void TimeCardPage::AutoFill()
{
    Succeeds([this] {
        FAutoFill window(m_host.Desktop(), m_host.Clock(), this);
        HandOver(window);
        window.exec();
        if (window.OKClick()) {
            TakeOver(window);
        }
        return true;
    });
}

void TimeCardPage::HandOver(FAutoFill& window)
{
    const auto controller = Controller();
    const auto options = Required(controller->SystemOptions());
    window.StartDate(ChosenDate(*m_ui->dttbTCFrom));
    window.EndDate(ChosenDate(*m_ui->dttbTCTo));
    window.AutoShiftStartTime(options->AutoShiftStartTime());
    window.AutoShiftEndTime(options->AutoShiftEndTime());
    const auto employee = Required(Required(controller->EmployeeList())->GetEmployeeByName(EmployeeText()));
    window.EmployeeID(NarrowToInt16(employee->EmployeeID()));
    window.PeriodLength(options->PeriodLength());
    window.TimeRecordList(Required(m_host.TimeCard())->TimeRecordList());
}

void TimeCardPage::TakeOver(const FAutoFill& window)
{
    m_ui->dttbTCFrom->SetDate(window.StartDate());
    m_ui->dttbTCTo->SetDate(window.EndDate());
    ShowStatus();
    StoreAndShow(StoreCard, kNotFilled);
}

// The grid and the totals show what is in the database from then on, or the user learns that nothing has changed there.
void TimeCardPage::StoreAndShow(const CardStep& step, const Notice& failed)
{
    const auto store = [&] {
        const BusyPointer busy(m_host.Desktop());
        return step(*Required(m_host.TimeCard()), *Required(Controller()->TimeRecordFactory()));
    };
    if (Succeeds(store)) {
        RegenerateAfterSave();
    } else {
        Tell(m_host.Desktop(), failed);
    }
}

void TimeCardPage::Print()
{
    const auto tell = [this](std::int32_t number) {
        m_host.Desktop().Show(std::to_string(number) + " : " + kPrintText, kPrintTitle, Icon::Information);
    };
    Succeeds([&] {
        if (!RefreshTimeCard()) {
            tell(Required(m_host.TimeCard())->ErrorNumber());
        }
        std::int32_t errorNumber = 0;
        if (!m_host.Reports().PrintTimeCard(m_host.TimeCard(), errorNumber)) {
            tell(errorNumber);
        }
        return true;
    });
}

std::shared_ptr<CController> TimeCardPage::Controller() const
{
    return Required(m_host.Controller());
}

std::int16_t TimeCardPage::PeriodLength() const
{
    return Required(Controller()->SystemOptions())->PeriodLength();
}

std::string TimeCardPage::EmployeeText() const
{
    return m_ui->cboTCEmployeeName->currentText().toStdString();
}

} // namespace ptk
