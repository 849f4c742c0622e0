#include "ui/overview/OverviewWindow.h"

#include "model/check/FindingText.h"
#include "office/card/CardFindings.h"
#include "office/history/HistoryScope.h"
#include "office/overview/OverviewReading.h"
#include "office/overview/OverviewTable.h"
#include "office/overview/OverviewTexts.h"
#include "office/reports/SaveReport.h"
#include "platform/Failure.h"
#include "platform/Succeeds.h"
#include "platform/system/Clock.h"
#include "store/CSystemOptions.h"
#include "ui/overview/OverviewTables.h"
#include "ui/overview/PaydayButtons.h"
#include "ui/page/ChangeNews.h"
#include "ui/page/Workplace.h"
#include "ui/widgets/ButtonRow.h"
#include "ui/widgets/FoldingRow.h"
#include "ui_OverviewWindow.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QShortcut>

namespace ptk {

namespace {

constexpr auto kNoPeriod = "Choose two dates, the second not before the first";
constexpr auto kNotMoved = "There is no such period";
constexpr auto kNotRead = "The overview could not be read: ";
constexpr auto kFindingsOf = "%1: %2";
constexpr auto kLine = "line";
constexpr auto kChangedSince = "Changed since it was read";
constexpr auto kReadAgain = "Refresh";
constexpr auto kNotYetRead = "Read the payday overview first (F9)";
constexpr auto kNobodyBehind = "Nobody behind has problems in the payday overview";
constexpr auto kNobodyBefore = "Nobody before has problems in the payday overview";

constexpr auto kTakeInTip = "Put them among the rows and into the sums (Alt+K)";
constexpr auto kNobodyToTakeIn = "Nobody of them is an employee";

constexpr QSize kFirstSize(960, 660);
constexpr qint64 kReadingTime = 30; // milliseconds without a glance at keys and mouse
constexpr int kFindingLines = 3;

} // namespace

OverviewWindow::OverviewWindow(Workplace& host) : ReadingWindow(host, "overview"), m_ui(std::make_unique<Ui::OverviewWindow>())
{
    m_ui->setupUi(this);
    m_tables = new OverviewTables({*m_ui->grdOverview, *m_ui->grdTotals, *m_ui->grdLeftOut}, this);
    m_buttons = new PaydayButtons(host, {*this, *m_ui->cmdClosePayday, *m_ui->cmdMend, *m_ui->cmdMore, *m_ui->notice, *m_tables});
    LayOut();
    ConnectPeriod();
    ConnectTable();
    ConnectKeys();
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &OverviewWindow::ReadOn);
    ShowProgress();
    Furnish(*m_ui->notice, "overview", kFirstSize);
}

OverviewWindow::~OverviewWindow() = default;

// What stands side by side folds on a narrow window.
void OverviewWindow::LayOut()
{
    auto* top = new FoldingRow;
    top->addWidget(m_ui->fraPeriod);
    top->addWidget(m_ui->fraRows, 1);
    m_ui->layout->insertLayout(0, top);
    FoldButtons(*m_ui->layout, m_ui->buttons);
    m_ui->lstOverviewFindings->KeepRoom(kFindingLines);
    m_ui->notice->setMinimumHeight(m_ui->cmdClose->sizeHint().height()); // nothing moves when it has a button
}

void OverviewWindow::ConnectPeriod()
{
    m_ui->dttbOverviewFrom->SetClock(Host().Clock());
    m_ui->dttbOverviewTo->SetClock(Host().Clock());
    connect(m_ui->dttbOverviewFrom, &DateCombo::Changed, this, [this] {
        Succeeds([this] {
            if (const auto from = m_ui->dttbOverviewFrom->Date()) {
                m_ui->dttbOverviewTo->SetDate(PayPeriodFrom(*from, Host().PeriodLength()).to);
            }
        });
    });
    for (DateCombo* box : {m_ui->dttbOverviewFrom, m_ui->dttbOverviewTo}) {
        connect(box->lineEdit(), &QLineEdit::returnPressed, this, &OverviewWindow::Refresh);
    }
    connect(m_ui->cmdOverviewBack, &QPushButton::clicked, this, [this] { StepPeriod(-1); });
    connect(m_ui->cmdOverviewNext, &QPushButton::clicked, this, [this] { StepPeriod(1); });
    connect(m_ui->cmdRefresh, &QPushButton::clicked, this, &OverviewWindow::Refresh);
    connect(m_ui->cmdStop, &QPushButton::clicked, this, &OverviewWindow::Stop);
}

void OverviewWindow::ConnectTable()
{
    connect(m_ui->chkOnlyProblems, &QCheckBox::toggled, m_tables, &OverviewTables::ShowOnlyProblems);
    connect(m_tables, &OverviewTables::ShownRowChanged, this, &OverviewWindow::ShowChoice);
    connect(m_ui->grdOverview, &QTableView::doubleClicked, this, &OverviewWindow::OpenCard);
    AfterEachLook(Host(), *this, [this] { TellChanges(); });
    connect(m_buttons, &PaydayButtons::ReadAgainWanted, this, &OverviewWindow::Refresh);
    connect(m_ui->cmdTakeIn, &QPushButton::clicked, this, &OverviewWindow::TakeIn);
    connect(m_ui->lstOverviewFindings, &FindingList::Entered, this, &OverviewWindow::OpenCard);
    connect(m_ui->cmdSaveAs, &QPushButton::clicked, this, &OverviewWindow::SaveAs);
    connect(m_ui->cmdOpenCard, &QPushButton::clicked, this, &OverviewWindow::OpenCard);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QWidget::close);
}

void OverviewWindow::ConnectKeys()
{
    OnKey(Qt::Key_F5, [this] { Refresh(); });
    OnKey(QKeySequence::Copy, [this] { Copy(); });
    OnKey(QKeySequence::Save, [this] { SaveAs(); });
    OnKey(Qt::ALT | Qt::Key_Left, [this] { StepPeriod(-1); });
    OnKey(Qt::ALT | Qt::Key_Right, [this] { StepPeriod(1); });
    OnKey(Qt::Key_F3, [this] { Walk(1); });
    OnKey(Qt::SHIFT | Qt::Key_F3, [this] { Walk(-1); });
    OnKey(Qt::CTRL | Qt::SHIFT | Qt::Key_A, [this] { m_tables->ChooseNone(); });
    OnKey(QKeySequence::Undo, [this] { emit UndoWanted(); });
    OnKey(QKeySequence::Redo, [this] { emit RedoWanted(); });
    OnKey(Qt::Key_Escape, [this] {
        if (m_next.isActive()) {
            Stop();
        } else {
            close();
        }
    });
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* inTable = new QShortcut(enter, m_ui->grdOverview, nullptr, nullptr, Qt::WidgetShortcut);
        connect(inTable, &QShortcut::activated, this, &OverviewWindow::OpenCard);
    }
}

void OverviewWindow::Open(const std::optional<PayPeriod>& timecards)
{
    if (ShowInFront()) {
        LookForChanges(Host());
        return IsOutdated() ? Refresh() : void();
    }
    m_ui->grdOverview->setFocus();
    m_takesIn = false;
    const auto begin = [&] { ShowPeriod(FirstPeriod(Host().Database(), timecards, Host().Clock().Today(), Host().PeriodLength())); };
    if (Succeeds(begin)) {
        Refresh();
    }
}

void OverviewWindow::StepPeriod(std::int16_t direction)
{
    const auto step = [&] {
        const auto from = m_ui->dttbOverviewFrom->Date();
        const auto next = from ? StepPayPeriod(*from, Host().PeriodLength(), direction) : std::nullopt;
        if (!next) {
            return false;
        }
        ShowPeriod(*next);
        return true;
    };
    if (Succeeds(step)) {
        Refresh();
    } else {
        Say(kNotMoved);
    }
}

void OverviewWindow::ShowPeriod(const PayPeriod& period)
{
    m_ui->dttbOverviewFrom->SetDate(period.from);
    m_ui->dttbOverviewTo->SetDate(period.to);
}

std::optional<PayPeriod> OverviewWindow::Period() const
{
    const auto from = m_ui->dttbOverviewFrom->Date();
    const auto to = m_ui->dttbOverviewTo->Date();
    return from && to && *from <= *to ? std::optional(PayPeriod{*from, *to}) : std::nullopt;
}

// A failure of the first step leaves what was read before in its place.
void OverviewWindow::Refresh()
{
    m_next.stop();
    LookForChanges(Host());
    Say(QString());
    Succeeds([this] { Begin(); }, [this](const Failure& reason) { TellUnread(reason); });
}

void OverviewWindow::Begin()
{
    const auto period = Period();
    if (!period) {
        return Say(kNoPeriod);
    }
    m_asOf = NewestChange(Host());
    const auto all = Host().Employees();
    m_takesIn = m_takesIn && m_reading != nullptr && m_reading->Result().period.from == period->from;
    m_reading = std::make_shared<OverviewReading>(Host().Database(), OfferedEmployees(*all), *period, Host().Clock().Now(), all);
    m_next.start(0);
    ShowProgress();
}

// Never within itself: nothing that it does lets other events happen.
void OverviewWindow::ReadOn()
{
    QElapsedTimer time;
    time.start();
    const auto read = [&] { m_reading->ReadOn([&] { return time.elapsed() < kReadingTime; }); };
    if (!Succeeds(read, [this](const Failure& reason) { TellUnread(reason); })) {
        return Stop();
    }
    m_tables->Show(m_reading);
    if (m_reading->IsDone()) {
        m_takesIn ? TakeIn() : void();
        return Stop();
    }
    m_next.start(0);
    ShowProgress();
}

void OverviewWindow::Stop()
{
    m_next.stop();
    ShowProgress();
}

void OverviewWindow::TellUnread(const Failure& reason)
{
    Complain(kNotRead + reason.Description());
}

void OverviewWindow::ShowProgress()
{
    const bool reading = m_next.isActive();
    m_ui->barOverview->setVisible(reading);
    m_ui->cmdStop->setVisible(reading);
    if (reading) {
        const std::size_t read = m_reading->Result().rows.size();
        m_ui->barOverview->setRange(0, static_cast<int>(m_reading->Offered()));
        m_ui->barOverview->setValue(static_cast<int>(read));
        m_ui->lblOverview->setText(QString::fromStdString(ReadingText(read, m_reading->Offered())));
    } else {
        ShowRead();
    }
    ShowLeftOut();
    OfferActions();
}

// Below the sums, as soon as everybody has been read.
void OverviewWindow::ShowLeftOut()
{
    const OverviewReading* shown = m_tables->ShownReading();
    const bool any = shown != nullptr && !shown->Result().leftOut.empty();
    const bool takes = any && shown == m_reading.get() && shown->IsDone() && CanTakeIn(shown->Result().leftOut);
    m_ui->fraLeftOut->setVisible(any);
    m_ui->cmdTakeIn->setEnabled(takes);
    m_ui->cmdTakeIn->setToolTip(takes ? kTakeInTip : kNobodyToTakeIn);
}

void OverviewWindow::TakeIn()
{
    m_takesIn = true;
    m_reading->TakeIn();
    m_told = nullptr;
    m_tables->ShowAnew(m_reading);
    ShowProgress();
}

// Of the rows that are shown, which are an earlier reading's where the last one failed at once.
void OverviewWindow::ShowRead()
{
    const OverviewReading* shown = m_tables->ShownReading();
    const std::string news = shown == nullptr ? std::string() : OverviewNews(shown->Result(), shown->Offered());
    m_ui->lblOverview->setText(QString::fromStdString(news));
}

// Also while it is being read: who was read before the change may be another by now.
bool OverviewWindow::IsOutdated() const
{
    return m_tables->ShownReading() != nullptr && NewestChange(Host()) != m_asOf;
}

void OverviewWindow::TellChanges()
{
    if (IsOutdated() && !m_ui->notice->IsOffering()) {
        m_ui->notice->Offer(kChangedSince, kReadAgain, [this] { Refresh(); });
    }
}

void OverviewWindow::ShowChoice()
{
    ShowFindings();
    OfferActions();
}

// Once everybody has been read.
void OverviewWindow::OfferActions()
{
    const bool ready = m_reading != nullptr && m_tables->ShownReading() == m_reading.get() && m_reading->IsDone();
    m_buttons->Offer(ready ? m_reading : nullptr);
}

void OverviewWindow::ReadAgain(const QString& news)
{
    if (isVisible()) {
        Refresh();
        Say(news);
    }
}

void OverviewWindow::ShowFindings()
{
    const OverviewRow* row = m_tables->ShownRow();
    if (row == m_told && row != nullptr) {
        return; // nobody reading them is disturbed by what is read meanwhile
    }
    m_told = row;
    m_ui->cmdOpenCard->setEnabled(row != nullptr);
    if (row == nullptr) {
        m_ui->lblOverviewFindings->setText(QString());
        return m_ui->lstOverviewFindings->Show({});
    }
    const QString summary = QString::fromStdString(FindingSummary(row->check));
    m_ui->lblOverviewFindings->setText(QString(kFindingsOf).arg(QString::fromStdString(row->employee->DisplayName()), summary));
    m_ui->lstOverviewFindings->Show(ShownFindings(row->check, m_tables->ShownReading()->Result().limits.showNotices));
}

void OverviewWindow::Walk(int direction)
{
    if (m_tables->StepToProblems({}, direction) == nullptr) {
        Say(direction > 0 ? kNobodyBehind : kNobodyBefore);
    }
}

QString OverviewWindow::OpenNextCard(std::optional<std::int32_t> employeeID, int direction)
{
    if (m_tables->ShownReading() == nullptr) {
        return kNotYetRead;
    }
    const OverviewRow* next = m_tables->StepToProblems(employeeID, direction);
    if (next == nullptr) {
        return direction > 0 ? kNobodyBehind : kNobodyBefore;
    }
    OpenCard();
    return {};
}

std::optional<PayPeriod> OverviewWindow::ReadPeriod() const
{
    return m_tables->ShownReading() == nullptr ? std::nullopt : std::optional(m_tables->ShownReading()->Result().period);
}

std::optional<HistoryScope> OverviewWindow::ShownHistory() const
{
    const OverviewRow* row = isActiveWindow() ? m_tables->ShownRow() : nullptr;
    return row == nullptr
               ? m_buttons->ShownHistory()
               : std::optional(HistoryScope{row->employee->EmployeeID(), m_tables->ShownReading()->Result().period, {}, {}, false});
}

void OverviewWindow::Copy()
{
    const auto lines = m_tables->ChosenCells();
    CopyRows(TabSeparated(lines), lines.size() - 1, kLine);
}

// All that was read, sorted as it was read.
void OverviewWindow::SaveAs()
{
    if (m_tables->ShownReading() == nullptr) {
        return;
    }
    const auto reading = m_reading; // the dialog lets the window go on
    SaveUnder(OverviewFileName(reading->Result().period), SavedForms(),
              [&](ReportForm form) { return OverviewFile(form, reading->Result()); });
}

void OverviewWindow::OpenCard()
{
    if (const OverviewRow* row = m_tables->ShownRow()) {
        emit CardWanted(row->employee->EmployeeID(), m_tables->ShownReading()->Result().period);
    }
}

void OverviewWindow::Activated()
{
    LookForChanges(Host());
}

} // namespace ptk
