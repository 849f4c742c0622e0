#include "ui/sheet/FImportEmployees.h"

#include "platform/Failure.h"
#include "platform/Succeeds.h"
#include "ui/sheet/DifferenceModel.h"
#include "ui/widgets/FixedRows.h"
#include "ui/work/WorkProgress.h"
#include "ui_FImportEmployees.h"

#include <algorithm>
#include <QFileDialog>
#include <QHeaderView>
#include <QKeyEvent>

namespace ptk {

namespace {

constexpr auto kEmployeesTitle = "Employees";
constexpr auto kEmployeesFilter = "CSV files (*.csv *.txt *.tsv);;All Files (*)";
constexpr auto kEmployeesProgress = "Import Employees";
constexpr auto kEmployeesWork = "Reading the employees...";

constexpr auto kNothingRead = "Choose the CSV file and press Read. Where it has something else about somebody who is known by the employee "
                              "number, that stands here to be ticked.";
constexpr auto kNoDifference = "The file has nothing else about anybody who is known.";
constexpr auto kWhatWouldBe = "New employees: %1. Fields to be changed: %2 of %3. Nothing has been stored yet.";
constexpr auto kLinesAreRefused = "Lines are refused: %1, for the reasons above. Nothing can be stored before the file is mended.";
constexpr auto kEmployeesNotRead = "Nothing was stored: %1.";
constexpr auto kEmployeesStored = "Employees added: %1, changed: %2; Edit > Undo takes it back";

constexpr auto kNameTheFile = "Choose the file first.";
constexpr auto kReadTheFile = "Choose the file and read it first.";
constexpr auto kNothingToSave = "Nobody is new and nothing is ticked.";
constexpr auto kMendTheFile = "Mend the lines that are refused first.";
constexpr auto kCloseWindow = "&Close";

constexpr QSize kEmployeesFirstSize(760, 520);
constexpr QSize kEmployeesSmallestSize(460, 400);
constexpr int kEmployeesHintLines = 2;
constexpr int kAccountLines = 4;
constexpr int kRowRoom = 6;   // pixels above and below a row's text together
constexpr int kCellRoom = 12; // pixels between texts that stand beside each other

// Nobody reads more, and a text box takes its time for them.
constexpr std::size_t kMostLines = 10'000;

QString AccountText(const EmployeeAccount& account, bool withDifferences)
{
    const std::vector<std::string> all = EmployeeAccountLines(account, withDifferences);
    QStringList lines;
    std::for_each(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(std::min(all.size(), kMostLines)),
                  [&](const std::string& line) { lines.append(QString::fromStdString(line)); });
    return lines.join('\n') + (all.size() > kMostLines ? "\n..." : "");
}

} // namespace

FImportEmployees::FImportEmployees(QWidget* parent, Importer importer)
    : QDialog(parent), m_ui(std::make_unique<Ui::FImportEmployees>()), m_importer(std::move(importer)),
      m_differences(new DifferenceModel(this))
{
    m_ui->setupUi(this);
    setMinimumSize(kEmployeesSmallestSize);
    resize(kEmployeesFirstSize);
    m_ui->lblHint->KeepRoom(kEmployeesHintLines);
    m_ui->txtAccount->setFixedHeight(kAccountLines * m_ui->txtAccount->fontMetrics().lineSpacing() + 2 * m_ui->txtAccount->frameWidth() +
                                     static_cast<int>(2 * m_ui->txtAccount->document()->documentMargin()));
    PrepareTable();
    Connect();
    Forget();
}

FImportEmployees::~FImportEmployees() = default;

void FImportEmployees::PrepareTable()
{
    QTableView* table = m_ui->grdDifferences;
    table->setModel(m_differences);
    FixRows(*table, kRowRoom);
    table->horizontalHeader()->setStretchLastSection(true);
    table->installEventFilter(this);
}

void FImportEmployees::Connect()
{
    connect(m_ui->txtFile, &QLineEdit::textChanged, this, &FImportEmployees::Forget);
    connect(m_ui->cmdBrowse, &QPushButton::clicked, this, &FImportEmployees::Browse);
    connect(m_ui->cmdRead, &QPushButton::clicked, this, &FImportEmployees::Read);
    connect(m_ui->cmdSave, &QPushButton::clicked, this, &FImportEmployees::Save);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &FImportEmployees::reject);
    connect(m_ui->chkAll, &QCheckBox::clicked, m_differences, &DifferenceModel::TickAll);
    connect(m_differences, &DifferenceModel::TicksChanged, this, &FImportEmployees::ShowTicks);
}

bool FImportEmployees::eventFilter(QObject* watched, QEvent* event)
{
    QTableView* table = m_ui->grdDifferences;
    const bool isSpace = event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space;
    const QModelIndex tick = table->currentIndex().siblingAtColumn(DifferenceModel::Employee);
    if (watched != table || !isSpace || !tick.isValid()) {
        return QDialog::eventFilter(watched, event);
    }
    const bool ticked = m_differences->data(tick, Qt::CheckStateRole).toInt() == Qt::Checked;
    return m_differences->setData(tick, ticked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

void FImportEmployees::Browse()
{
    const QString file = QFileDialog::getOpenFileName(this, kEmployeesTitle, m_ui->txtFile->text(), kEmployeesFilter);
    if (!file.isEmpty()) {
        m_ui->txtFile->setText(file);
        Read();
    }
}

// What was read of another file.
void FImportEmployees::Forget()
{
    m_read = {};
    m_ui->txtAccount->clear();
    m_ui->grdDifferences->SetHint(kNothingRead);
    m_differences->Show({});
    m_ui->lblHint->Say(QString());
    const bool isNamed = !m_ui->txtFile->text().isEmpty();
    m_ui->cmdRead->setEnabled(isNamed);
    m_ui->cmdRead->setToolTip(isNamed ? QString() : kNameTheFile);
    m_ui->cmdRead->setDefault(true);
}

void FImportEmployees::Read()
{
    EmployeeAccount account;
    if (Run(true, account)) {
        ShowRead(account);
    }
}

void FImportEmployees::Save()
{
    EmployeeAccount account;
    if (Run(false, account)) {
        account.isStored ? ShowStored(account) : ShowRead(account); // the file, or the database, has changed since it was read
    }
}

// False where it was refused, which is then told.
bool FImportEmployees::Run(bool trial, EmployeeAccount& account)
{
    const std::string file = QFile::encodeName(m_ui->txtFile->text()).toStdString();
    const EmployeeOrder order{file, trial, {}, trial ? TakesDifference() : m_differences->Ticks()};
    m_ui->lblHint->Say(QString());
    const auto run = [&] {
        WorkProgress progress(this, {kEmployeesProgress, kEmployeesWork});
        account = m_importer(order, [&progress] { return progress.GoOn(0, 0); });
    };
    return Succeeds(run, [this](const Failure& reason) {
        m_ui->lblHint->Say(QString(kEmployeesNotRead).arg(QString::fromStdString(reason.Description())));
    });
}

void FImportEmployees::ShowRead(const EmployeeAccount& account)
{
    m_read = account;
    m_ui->txtAccount->setPlainText(AccountText(account, false)); // those stand in the table
    m_ui->grdDifferences->SetHint(kNoDifference);
    m_differences->Show(account.differences);
    FitColumns();
    if (!account.differences.empty()) {
        m_ui->grdDifferences->setCurrentIndex(m_differences->index(0, DifferenceModel::Employee));
        m_ui->grdDifferences->setFocus();
    } else if (m_ui->cmdSave->isEnabled()) {
        m_ui->cmdSave->setFocus();
    }
    (m_ui->cmdSave->isEnabled() ? m_ui->cmdSave : m_ui->cmdRead)->setDefault(true);
}

void FImportEmployees::ShowStored(const EmployeeAccount& account)
{
    m_ui->txtAccount->setPlainText(AccountText(account, true));
    m_stored = QString(kEmployeesStored).arg(account.added.size()).arg(account.changed.size());
    for (QWidget* done : {static_cast<QWidget*>(m_ui->cmdSave), static_cast<QWidget*>(m_ui->cmdRead), static_cast<QWidget*>(m_ui->fraFile),
                          static_cast<QWidget*>(m_ui->chkAll), static_cast<QWidget*>(m_ui->grdDifferences)}) {
        done->hide();
    }
    m_ui->txtAccount->setMaximumHeight(QWIDGETSIZE_MAX);
    m_ui->lblHint->Say(m_stored + '.');
    m_ui->cmdCancel->setText(kCloseWindow);
    m_ui->cmdCancel->setDefault(true);
    m_ui->cmdCancel->setFocus();
}

void FImportEmployees::FitColumns()
{
    QTableView* table = m_ui->grdDifferences;
    for (int column = 0; column < DifferenceModel::Given; ++column) {
        table->resizeColumnToContents(column);
        const int wanted = table->columnWidth(column) + kCellRoom;
        table->setColumnWidth(column, std::min(wanted, table->viewport()->width() / DifferenceModel::Count));
    }
}

// What would be stored now, and whether it can.
void FImportEmployees::ShowTicks()
{
    const int all = m_differences->rowCount();
    const int ticked = m_differences->Ticked();
    m_ui->chkAll->setEnabled(all > 0);
    m_ui->chkAll->setChecked(all > 0 && ticked == all);
    const bool storable = !m_read.IsRefused() && (!m_read.added.empty() || ticked > 0);
    m_ui->cmdSave->setEnabled(storable);
    const char* const why = m_read.lines == 0 ? kReadTheFile : (m_read.IsRefused() ? kMendTheFile : kNothingToSave);
    m_ui->cmdSave->setToolTip(storable ? QString() : why);
    if (m_read.IsRefused()) {
        m_ui->lblHint->Say(QString(kLinesAreRefused).arg(m_read.refused.size()));
    } else if (m_read.lines > 0) {
        m_ui->lblHint->Say(QString(kWhatWouldBe).arg(m_read.added.size()).arg(ticked).arg(all));
    }
}

} // namespace ptk
