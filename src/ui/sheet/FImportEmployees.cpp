#include "ui/sheet/FImportEmployees.h"

#include "ui/sheet/DifferenceModel.h"
#include "ui/widgets/FixedRows.h"
#include "ui_FImportEmployees.h"

#include <algorithm>
#include <QFile>
#include <QHeaderView>
#include <QKeyEvent>

namespace ptk {

namespace {

constexpr auto kNothingRead = "Choose the CSV file and press Read. Where it has something else about somebody who is known by the employee "
                              "number, that stands here to be ticked.";
constexpr auto kNoDifference = "The file has nothing else about anybody who is known.";
constexpr auto kWhatWouldBe = "New employees: %1. Fields to be changed: %2 of %3. Nothing has been stored yet.";
constexpr auto kLinesAreRefused = "Lines are refused: %1, for the reasons above. Nothing can be stored before the file is mended.";
constexpr auto kEmployeesStored = "Employees added: %1, changed: %2; Edit > Undo takes it back";

constexpr auto kReadTheFile = "Choose the file and read it first.";
constexpr auto kNothingToSave = "Nobody is new and nothing is ticked.";
constexpr auto kMendTheFile = "Mend the lines that are refused first.";

constexpr QSize kEmployeesFirstSize(760, 520);
constexpr QSize kEmployeesSmallestSize(460, 400);
constexpr int kAccountLines = 4;
constexpr int kRowRoom = 6;   // pixels above and below a row's text together
constexpr int kCellRoom = 12; // pixels between texts that stand beside each other

// Lines of the account that are shown: nobody reads more, and a text box is slow with them.
constexpr std::size_t kMostLines = 10'000;

} // namespace

FImportEmployees::FImportEmployees(QWidget* parent, Importer importer)
    : ImportWindow(parent, {.fileTitle = "Employees",
                            .filter = "CSV files (*.csv *.txt *.tsv);;All Files (*)",
                            .progressTitle = "Import Employees",
                            .progressText = "Reading the employees...",
                            .refused = "Nothing was stored: %1.",
                            .nameFirst = "Choose the file first."}),
      m_ui(std::make_unique<Ui::FImportEmployees>()), m_importer(std::move(importer)), m_differences(new DifferenceModel(this))
{
    m_ui->setupUi(this);
    Begin({m_ui->fraFile, m_ui->txtFile, m_ui->cmdBrowse, m_ui->txtAccount, m_ui->lblHint, m_ui->cmdRead, m_ui->cmdSave, m_ui->cmdCancel},
          kEmployeesFirstSize, kEmployeesSmallestSize);
    m_ui->txtAccount->setFixedHeight(kAccountLines * m_ui->txtAccount->fontMetrics().lineSpacing() + 2 * m_ui->txtAccount->frameWidth() +
                                     static_cast<int>(2 * m_ui->txtAccount->document()->documentMargin()));
    PrepareTable();
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

void FImportEmployees::ForgetRead()
{
    m_read = {};
    m_ui->grdDifferences->SetHint(kNothingRead);
    m_differences->Show({});
}

void FImportEmployees::Work(bool trial, const GoesOn& goesOn)
{
    const std::string file = QFile::encodeName(m_ui->txtFile->text()).toStdString();
    m_read = m_importer({file, trial, {}, trial ? TakesDifference() : m_differences->Ticks()}, goesOn);
}

// Where nothing was stored, because the file or the database has changed since it was read, the account is shown as that of a reading.
void FImportEmployees::ShowOutcome(bool /*trial*/)
{
    ShowAccount(EmployeeAccountLines(m_read, m_read.isStored), kMostLines); // until they are stored, differences stand in the table
    m_read.isStored ? ShowStored() : ShowRead();
}

void FImportEmployees::ShowRead()
{
    m_ui->grdDifferences->SetHint(kNoDifference);
    m_differences->Show(m_read.differences);
    FitColumns();
    if (!m_read.differences.empty()) {
        m_ui->grdDifferences->setCurrentIndex(m_differences->index(0, DifferenceModel::Employee));
        m_ui->grdDifferences->setFocus();
    } else if (m_ui->cmdSave->isEnabled()) {
        m_ui->cmdSave->setFocus();
    }
    (m_ui->cmdSave->isEnabled() ? m_ui->cmdSave : m_ui->cmdRead)->setDefault(true);
}

void FImportEmployees::ShowStored()
{
    m_stored = QString(kEmployeesStored).arg(m_read.added.size()).arg(m_read.changed.size());
    m_ui->txtAccount->setMaximumHeight(QWIDGETSIZE_MAX);
    m_ui->lblHint->Say(m_stored + '.');
    HideAllDone({m_ui->chkAll, m_ui->grdDifferences});
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

// Shows what would be stored now, and enables Save where it can be stored.
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
