#include "ui/payday/AccountWindow.h"

#include "model/CEmployee.h"
#include "office/history/HistoryScope.h"
#include "office/reports/SaveReport.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Clock.h"
#include "platform/text/DayText.h"
#include "store/CJetDB.h"
#include "ui/page/ChangeNews.h"
#include "ui/page/Workplace.h"
#include "ui/payday/AccountModel.h"
#include "ui/widgets/ButtonRow.h"
#include "ui/widgets/FixedRows.h"
#include "ui/widgets/ThemeIcon.h"
#include "ui/work/SaveDialog.h"
#include "ui/work/WindowPlace.h"
#include "ui/work/WorkProgress.h"
#include "ui_AccountWindow.h"

#include <algorithm>
#include <QCloseEvent>
#include <QShortcut>

namespace ptk {

namespace {

constexpr auto kTitle = "Account of the Payday";
constexpr auto kReading = "Reading the account...";
constexpr auto kPeriod = "%1 - %2: %3";
constexpr auto kUnread = "The account could not be read: ";
constexpr auto kEnded = "The account was not read: you cancelled it";
constexpr auto kNobody = "There is nobody to show";
constexpr auto kChanged = "Changed since it was read";
constexpr auto kAgain = "Refresh";
constexpr auto kSave = "Save the account as pages, a table, data or text (Ctrl+S)";
constexpr auto kNothing = "Nothing has been read that could be saved";

constexpr auto kPlace = "account";
constexpr QSize kUsualSize(900, 560);
constexpr QSize kLeastSize(512, 350); // as the main window's
constexpr int kRoomOfRow = 8;         // pixels around the text of a row
constexpr int kRoomOfCell = 20;
constexpr int kLeastName = 18; // characters
constexpr int kLines = 5;      // of the chosen person
constexpr auto kWidestHours = "888.88 + 88.88";
constexpr auto kWidestFigure = "88/88/8888";
constexpr int kFirstCount = static_cast<int>(AccountColumn::Changes);

QString Day(DateTime day)
{
    return QString::fromStdString(DayText(day));
}

} // namespace

AccountWindow::AccountWindow(Workplace& host) : m_host(host), m_ui(std::make_unique<Ui::AccountWindow>()), m_rows(new AccountModel(this))
{
    m_ui->setupUi(this);
    setMinimumSize(kLeastSize);
    setWindowIcon(ThemeIcon("overview"));
    LayOut();
    PrepareTable();
    Connect();
    RestorePlace(*this, kPlace, kUsualSize);
}

AccountWindow::~AccountWindow() = default;

void AccountWindow::LayOut()
{
    FoldButtons(*m_ui->layout, m_ui->buttons);
    QPlainTextEdit* person = m_ui->txtAccountPerson;
    const int margins = 2 * (person->frameWidth() + static_cast<int>(person->document()->documentMargin()) + 1);
    person->setMinimumHeight(kLines * person->fontMetrics().lineSpacing() + margins);
}

void AccountWindow::PrepareTable()
{
    QTableView* table = m_ui->grdAccount;
    table->setModel(m_rows);
    m_ui->grdAccount->SetHint(kNobody);
    FixRows(*table, kRoomOfRow);
    table->viewport()->installEventFilter(this);
}

void AccountWindow::Connect()
{
    const auto onKey = [this](const QKeySequence& key, auto action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    };
    onKey(Qt::Key_F5, [this] { Refresh(); });
    onKey(QKeySequence::Save, [this] { m_ui->cmdSave->click(); });
    onKey(Qt::Key_Escape, [this] { close(); });
    connect(m_ui->grdAccount->selectionModel(), &QItemSelectionModel::selectionChanged, this, &AccountWindow::ShowPerson);
    connect(m_ui->cmdRefresh, &QPushButton::clicked, this, &AccountWindow::Refresh);
    connect(m_ui->cmdSave, &QPushButton::clicked, this, &AccountWindow::SaveAs);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QWidget::close);
    AfterEachLook(m_host, *this, [this] { TellChanges(); });
}

void AccountWindow::Open(const PayPeriod& period)
{
    show();
    BringForward(*this);
    m_ui->grdAccount->setFocus();
    m_period = period;
    Refresh();
}

// What was read before is not kept where it is of other days.
void AccountWindow::Refresh()
{
    LookForChanges(m_host);
    m_ui->notice->Clear();
    std::string refusal;
    if (!Read(refusal) && m_account != nullptr && (m_account->period.from != m_period.from || m_account->period.to != m_period.to)) {
        m_account = nullptr;
    }
    Show();
    if (!refusal.empty()) {
        m_ui->notice->Say(QString::fromStdString(refusal));
    }
}

bool AccountWindow::Read(std::string& refusal)
{
    m_asOf = NewestChange(m_host);
    WorkProgress progress(this, {kTitle, kReading});
    progress.setWindowModality(Qt::ApplicationModal);
    const auto read = [&] {
        const BusyPointer busy(m_host.Desktop());
        const auto database = m_host.Database();
        m_account = std::make_shared<const PaydayAccount>(
            ReadPaydayAccount(database, m_period, m_host.Clock().Now(), [&](std::size_t done, std::size_t all) {
                return progress.GoOn(static_cast<std::int32_t>(done), static_cast<std::int32_t>(all));
            }));
    };
    return Succeeds(read, [&](const Failure& reason) {
        refusal = progress.IsCancelled() ? kEnded : kUnread + reason.Description();
        if (!progress.IsCancelled()) {
            m_host.Log(refusal);
        }
    });
}

// First of all those of whom something is owed.
void AccountWindow::Show()
{
    m_rows->Show(m_account);
    const QString news = m_account == nullptr ? QString() : QString::fromStdString(AccountNews(*m_account));
    m_ui->lblAccount->setText(m_account == nullptr ? QString() : QString(kPeriod).arg(Day(m_period.from), Day(m_period.to), news));
    m_ui->cmdSave->setEnabled(m_account != nullptr);
    m_ui->cmdSave->setToolTip(m_account != nullptr ? kSave : kNothing);
    FitColumns();
    for (int row = 0; row < m_rows->rowCount(); ++row) {
        if (m_rows->Person(row)->changed) {
            m_ui->grdAccount->selectRow(row);
            break;
        }
    }
    ShowPerson();
}

// The names take what the figures leave.
void AccountWindow::FitColumns()
{
    QTableView* table = m_ui->grdAccount;
    const QFontMetrics metrics = table->fontMetrics();
    int rest = table->viewport()->width();
    for (int column = 1; column < m_rows->columnCount(); ++column) {
        const auto kind = static_cast<AccountColumn>(column);
        const bool hours = kind == AccountColumn::PaidHours || kind == AccountColumn::NowHours;
        int width = metrics.horizontalAdvance(m_rows->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        width = std::max(width, metrics.horizontalAdvance(hours ? kWidestHours : (column < kFirstCount ? kWidestFigure : "")));
        table->setColumnWidth(column, width + kRoomOfCell);
        rest -= width + kRoomOfCell;
    }
    table->setColumnWidth(0, std::max(rest, kLeastName * metrics.averageCharWidth()));
}

void AccountWindow::ShowPerson()
{
    const auto chosen = m_ui->grdAccount->selectionModel()->selectedRows();
    const AccountPerson* person = chosen.isEmpty() ? nullptr : m_rows->Person(chosen.first().row());
    QStringList lines;
    if (person != nullptr) {
        lines << QString::fromStdString(NameOf(person->person));
        for (const std::string& line : LinesOf(*person)) {
            lines << QString::fromStdString(line).simplified(); // its columns are those of a typewriter
        }
    }
    m_ui->txtAccountPerson->setPlainText(lines.join('\n'));
}

std::optional<HistoryScope> AccountWindow::ShownHistory() const
{
    const auto chosen = m_ui->grdAccount->selectionModel()->selectedRows();
    const AccountPerson* person = chosen.isEmpty() ? nullptr : m_rows->Person(chosen.first().row());
    return person == nullptr || person->person.employee == nullptr
               ? std::nullopt
               : std::optional(HistoryScope{person->person.employee->EmployeeID(), m_account->period, {}, {}, false});
}

void AccountWindow::SaveAs()
{
    const auto account = m_account; // the dialog lets the window go on
    const auto target = AskWhereToSave(*this, QString::fromStdString(AccountFileName(account->period)), AllForms());
    if (!target) {
        return;
    }
    const SaveOutcome outcome = ptk::SaveAs(target->path, target->form, [&](ReportForm form) { return AccountFile(form, *account); });
    const auto said = QString::fromStdString(outcome.said);
    outcome.saved ? m_ui->notice->SayFile(said) : m_ui->notice->Say(said);
}

void AccountWindow::TellChanges()
{
    if (isVisible() && m_account != nullptr && NewestChange(m_host) != m_asOf && !m_ui->notice->IsOffering()) {
        m_ui->notice->Offer(kChanged, kAgain, [this] { Refresh(); });
    }
}

bool AccountWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        FitColumns();
    }
    return QWidget::eventFilter(watched, event);
}

// As it comes to the front.
void AccountWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        QMetaObject::invokeMethod(
            this, [this] { LookForChanges(m_host); }, Qt::QueuedConnection);
    }
    QWidget::changeEvent(event);
}

void AccountWindow::closeEvent(QCloseEvent* event)
{
    StorePlace(*this, kPlace);
    event->accept();
}

} // namespace ptk
