#include "ui/safety/FRestore.h"

#include "office/safety/BackupCells.h"
#include "platform/Succeeds.h"
#include "ui/widgets/FixedRows.h"
#include "ui_FRestore.h"

#include <algorithm>
#include <filesystem>
#include <QApplication>
#include <QFileDialog>

namespace ptk {

namespace {

constexpr auto kQuestion = "Choose the backup that the database is to be again. The present database is kept as one more backup; what was "
                           "typed and not saved is given up.";
constexpr auto kNone = "There is no backup in the program's folder. A second copy in another place can be chosen as another file.";
constexpr auto kUnreadable = "The backups could not be listed: ";
constexpr auto kChooseSound = "Choose a backup that was checked and found sound.";
constexpr auto kChecking = "checking...";
constexpr auto kSound = "sound";
constexpr auto kOtherTitle = "Restore from Another File";
constexpr auto kBackupFilter = "Databases (*.mdb);;All Files (*)";

constexpr QSize kRestoreSize(820, 420);
constexpr QSize kRestoreSmallest(420, 260);
constexpr int kColumnSpace = 24; // pixels beside the text of a cell

enum Column
{
    Made,
    Size,
    Employees,
    Records,
    NewestShift,
    Checked
};

const QStringList kHeadings{"Made", "Size", "Employees", "Records", "Newest Shift", "Checked"};

// Figures stand to the right, so that their digits are below each other.
Qt::Alignment AlignmentOf(int column)
{
    return (column == Made || column == Checked ? Qt::AlignLeading : Qt::AlignTrailing) | Qt::AlignVCenter;
}

} // namespace

FRestore::FRestore(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::FRestore>())
{
    m_ui->setupUi(this);
    setMinimumSize(kRestoreSmallest);
    resize(kRestoreSize);
    PrepareTable();
    connect(m_ui->cmdRestore, &QPushButton::clicked, this, &FRestore::Take);
    connect(m_ui->cmdOtherFile, &QPushButton::clicked, this, &FRestore::TakeOther);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &FRestore::reject);
    connect(&m_next, &QTimer::timeout, this, &FRestore::CheckNext);
}

FRestore::~FRestore() = default;

void FRestore::PrepareTable()
{
    QTableWidget* table = m_ui->grdBackups;
    table->setColumnCount(static_cast<int>(kHeadings.size()));
    table->setHorizontalHeaderLabels(kHeadings);
    table->horizontalHeader()->setStretchLastSection(true);
    FixRows(*table);
    for (int column = Made; column <= Checked; ++column) {
        table->horizontalHeaderItem(column)->setTextAlignment(AlignmentOf(column));
    }
    const auto widthOf = [&](const QString& text) { return table->fontMetrics().horizontalAdvance(text) + kColumnSpace; };
    table->setColumnWidth(Made, widthOf("Wed 00/00/0000 00:00:00 AM"));
    for (int column = Size; column < Checked; ++column) {
        table->setColumnWidth(column, std::max(widthOf(kHeadings.at(column)), widthOf("00/00/0000")));
    }
    connect(table, &QTableWidget::itemSelectionChanged, this, &FRestore::EnableRestore);
    connect(table, &QTableWidget::cellDoubleClicked, m_ui->cmdRestore, &QPushButton::click);
}

std::string FRestore::Choose(const std::string& folder)
{
    m_folder = folder;
    m_chosen.clear();
    Fill();
    m_next.start(0);
    exec();
    m_next.stop();
    return m_chosen;
}

void FRestore::Fill()
{
    m_ui->lblRestore->setText(ReadNames());
    m_states.assign(m_names.size(), State::Unchecked);
    m_ui->grdBackups->clearSelection();
    m_ui->grdBackups->setRowCount(static_cast<int>(m_names.size()));
    for (int row = 0; row < m_ui->grdBackups->rowCount(); ++row) {
        const std::string& name = m_names.at(static_cast<std::size_t>(row));
        std::error_code error; // ignored: the check will tell of a file that is gone by now
        const auto size = std::filesystem::file_size(std::filesystem::path(m_folder) / name, error);
        ShowCells(row, BackupCellsOf(name, error ? 0 : static_cast<std::int64_t>(size)));
        Put(row, Checked, kChecking);
    }
    EnableRestore();
}

// Reads the names of the backups and answers the text above the list.
QString FRestore::ReadNames()
{
    m_names.clear();
    QString told;
    const auto tell = [&](const Failure& reason) { told = kUnreadable + QString::fromStdString(reason.Description() + ": " + m_folder); };
    Succeeds([&] { m_names = BackupsIn(m_folder); }, tell);
    if (!told.isEmpty()) {
        return told;
    }
    return m_names.empty() ? kNone : kQuestion;
}

void FRestore::CheckNext()
{
    const auto next = std::find(m_states.begin(), m_states.end(), State::Unchecked);
    if (next == m_states.end()) {
        return m_next.stop();
    }
    const auto position = next - m_states.begin();
    m_next.stop(); // else the timer would begin the next check during this one, which lets events happen
    const auto goOn = [this](std::int32_t /*done*/, std::int32_t /*all*/) {
        QApplication::processEvents();
        return isVisible();
    };
    const BackupEntry entry = CheckedBackup(m_folder, m_names.at(static_cast<std::size_t>(position)), goOn);
    if (!isVisible()) {
        return; // the user has chosen a backup or closed the window, which ended the check without a result
    }
    m_next.start();
    *next = entry.content ? State::Sound : State::Useless;
    ShowChecked(static_cast<int>(position), entry);
    EnableRestore();
}

// Selects the first sound backup, which is the newest: most people want that one.
void FRestore::ShowChecked(int row, const BackupEntry& entry)
{
    QTableWidget* table = m_ui->grdBackups;
    if (entry.content) {
        ShowCells(row, BackupCellsOf(entry));
        Put(row, Checked, kSound);
        if (table->selectedItems().isEmpty()) {
            table->selectRow(row);
        }
        return;
    }
    Put(row, Checked, entry.fault);
    for (int column = 0; column < table->columnCount(); ++column) {
        table->item(row, column)->setFlags(Qt::ItemIsSelectable);
        table->item(row, column)->setToolTip(QString::fromStdString(entry.fault));
    }
}

void FRestore::ShowCells(int row, const BackupCells& cells)
{
    Put(row, Made, cells.made);
    Put(row, Size, cells.size);
    Put(row, Employees, cells.employees);
    Put(row, Records, cells.records);
    Put(row, NewestShift, cells.newestShift);
}

void FRestore::Put(int row, int column, const std::string& text)
{
    auto* item = new QTableWidgetItem(QString::fromStdString(text));
    item->setTextAlignment(AlignmentOf(column));
    m_ui->grdBackups->setItem(row, column, item);
}

void FRestore::EnableRestore()
{
    const auto rows = m_ui->grdBackups->selectionModel()->selectedRows();
    const bool sound = !rows.isEmpty() && m_states.at(static_cast<std::size_t>(rows.first().row())) == State::Sound;
    m_ui->cmdRestore->setEnabled(sound);
    m_ui->cmdRestore->setToolTip(sound ? QString() : kChooseSound);
}

void FRestore::Take()
{
    const int row = m_ui->grdBackups->selectionModel()->selectedRows().first().row();
    m_chosen = m_folder + '/' + m_names.at(static_cast<std::size_t>(row));
    accept();
}

void FRestore::TakeOther()
{
    const QString file = QFileDialog::getOpenFileName(this, kOtherTitle, QString::fromStdString(m_folder), kBackupFilter);
    if (!file.isEmpty()) {
        m_chosen = file.toStdString();
        accept();
    }
}

} // namespace ptk
