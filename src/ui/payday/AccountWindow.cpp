#include "ui/payday/AccountWindow.h"

#include "model/CEmployee.h"
#include "office/history/HistoryScope.h"
#include "office/reports/SaveReport.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Clock.h"
#include "platform/text/DayText.h"
#include "ui/page/ChangeNews.h"
#include "ui/page/Workplace.h"
#include "ui/payday/AccountModel.h"
#include "ui/widgets/ButtonRow.h"
#include "ui/widgets/FixedRows.h"
#include "ui/work/WorkProgress.h"
#include "ui_AccountWindow.h"

#include <algorithm>

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

constexpr QSize kUsualSize(900, 560);
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

AccountWindow::AccountWindow(Workplace& host)
    : ReadingWindow(host, "account"), m_ui(std::make_unique<Ui::AccountWindow>()), m_rows(new AccountModel(this))
{
    m_ui->setupUi(this);
    LayOut();
    PrepareTable();
    Connect();
    Furnish(*m_ui->notice, "overview", kUsualSize);
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
    FixRows(*table);
    OnRoom(*table, [this] { FitColumns(); });
}

void AccountWindow::Connect()
{
    OnKey(Qt::Key_F5, [this] { Refresh(); });
    OnKey(QKeySequence::Save, [this] { m_ui->cmdSave->click(); });
    OnKey(Qt::Key_Escape, [this] { close(); });
    connect(m_ui->grdAccount->selectionModel(), &QItemSelectionModel::selectionChanged, this, &AccountWindow::ShowPerson);
    connect(m_ui->cmdRefresh, &QPushButton::clicked, this, &AccountWindow::Refresh);
    connect(m_ui->cmdSave, &QPushButton::clicked, this, &AccountWindow::SaveAs);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QWidget::close);
    AfterEachLook(Host(), *this, [this] { TellChanges(); });
}

void AccountWindow::Open(const PayPeriod& period)
{
    ShowInFront();
    m_ui->grdAccount->setFocus();
    m_period = period;
    Refresh();
}

// What was read before is not kept where it is of other days.
void AccountWindow::Refresh()
{
    LookForChanges(Host());
    m_ui->notice->Clear();
    std::string refusal;
    if (!Read(refusal) && m_account != nullptr && m_account->period != m_period) {
        m_account = nullptr;
    }
    Show();
    if (!refusal.empty()) {
        Say(QString::fromStdString(refusal));
    }
}

bool AccountWindow::Read(std::string& refusal)
{
    m_asOf = NewestChange(Host());
    WorkProgress progress(this, {kTitle, kReading});
    progress.setWindowModality(Qt::ApplicationModal);
    const auto read = [&] {
        const BusyPointer busy(Host().Desktop());
        const auto database = Host().Database();
        m_account = std::make_shared<const PaydayAccount>(
            ReadPaydayAccount(database, m_period, Host().Clock().Now(), [&](std::size_t done, std::size_t all) {
                return progress.GoOn(static_cast<std::int32_t>(done), static_cast<std::int32_t>(all));
            }));
    };
    return Succeeds(read, [&](const Failure& reason) {
        refusal = progress.IsCancelled() ? kEnded : kUnread + reason.Description();
        if (!progress.IsCancelled()) {
            Host().Log(refusal);
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
        lines << QString::fromStdString(PersonName(person->person));
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
    SaveUnder(AccountFileName(account->period), AllForms(), [&](ReportForm form) { return AccountFile(form, *account); });
}

void AccountWindow::TellChanges()
{
    if (isVisible() && m_account != nullptr && NewestChange(Host()) != m_asOf && !m_ui->notice->IsOffering()) {
        m_ui->notice->Offer(kChanged, kAgain, [this] { Refresh(); });
    }
}

void AccountWindow::Activated()
{
    LookForChanges(Host());
}

} // namespace ptk
