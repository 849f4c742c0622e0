#include "ui/history/HistoryWindow.h"

#include "office/card/CardTexts.h"
#include "office/history/HistoryFile.h"
#include "office/history/HistoryTable.h"
#include "office/reports/SaveReport.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Clock.h"
#include "store/CJetDB.h"
#include "ui/history/HistoryModel.h"
#include "ui/page/Workplace.h"
#include "ui/widgets/ButtonRow.h"
#include "ui/widgets/FixedRows.h"
#include "ui/work/SaveDialog.h"
#include "ui_HistoryWindow.h"

#include <algorithm>
#include <QFileInfo>

namespace ptk {

namespace {

constexpr auto kNoDays = "Choose days, the first not after the last, or leave them empty";
constexpr auto kUnread = "Press F5 to read the history";
constexpr auto kNotRead = "The history could not be read: ";
constexpr auto kSaveTip = "Save all changes that fit what is chosen above, also those not shown yet";
constexpr auto kNothingToSave = "Nothing is shown that could be saved";
constexpr auto kBeingSaved = "The file is being saved";
constexpr auto kNotSaved = "Not saved: ";
constexpr auto kCancelled = "Not saved: you cancelled it";
constexpr auto kSaved = "Saved: %1 in %2";
constexpr auto kSaving = "Saving: %1";
constexpr auto kChange = "change"; // each row is one

constexpr QSize kFirstSize(900, 640);
constexpr int kColumnSpace = 16;
constexpr int kEmployeeCharacters = 14; // shown in any case
constexpr int kEntryLines = 2;
constexpr auto kWidestMoment = "03/05/2003 08:00:00 PM";
constexpr auto kUsualChange = "start 03/05/2003 08:00 AM became 03/05/2003 08:00 AM"; // whole, wherever there is room

QString CountOf(std::int64_t changes)
{
    return QString::fromStdString(CountText(changes, kChange));
}

} // namespace

HistoryWindow::HistoryWindow(Workplace& host)
    : ReadingWindow(host, "history"), m_ui(std::make_unique<Ui::HistoryWindow>()), m_rows(new HistoryModel(this))
{
    m_ui->setupUi(this);
    m_ui->filter->SetClock(host.Clock());
    LayOut();
    PrepareTable();
    Connect();
    ConnectKeys();
    ShowSaving();
    Furnish(*m_ui->notice, "history", kFirstSize);
}

HistoryWindow::~HistoryWindow() = default;

void HistoryWindow::LayOut()
{
    FoldButtons(*m_ui->layout, m_ui->buttons);
    QPlainTextEdit* entry = m_ui->txtHistoryEntry;
    const int margins = 2 * (entry->frameWidth() + static_cast<int>(entry->document()->documentMargin()) + 1);
    entry->setFixedHeight(kEntryLines * entry->fontMetrics().lineSpacing() + margins);
}

void HistoryWindow::PrepareTable()
{
    QTableView* table = m_ui->grdHistory;
    table->setModel(m_rows);
    FixRows(*table);
    OnRoom(*table, [this] { FitColumns(); });
}

void HistoryWindow::Connect()
{
    connect(m_ui->filter, &HistoryFilter::Changed, this, &HistoryWindow::StartOver);
    connect(m_rows, &QAbstractItemModel::rowsInserted, this, &HistoryWindow::ShowNews);
    connect(m_rows, &QAbstractItemModel::modelReset, this, &HistoryWindow::ShowEntry);
    connect(m_ui->grdHistory->selectionModel(), &QItemSelectionModel::selectionChanged, this, &HistoryWindow::ShowEntry);
    connect(m_rows, &HistoryModel::Failed, this, [this](const QString& reason) { Complain(kNotRead + reason.toStdString()); });
    connect(m_ui->cmdRefresh, &QPushButton::clicked, this, &HistoryWindow::Refresh);
    connect(m_ui->cmdSave, &QPushButton::clicked, this, &HistoryWindow::SaveAs);
    connect(m_ui->cmdStop, &QPushButton::clicked, this, &HistoryWindow::StopSaving);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QWidget::close);
    m_saving.setSingleShot(true);
    connect(&m_saving, &QTimer::timeout, this, &HistoryWindow::SaveOn);
}

void HistoryWindow::ConnectKeys()
{
    OnKey(Qt::Key_F5, [this] { Refresh(); });
    OnKey(QKeySequence::Copy, [this] { Copy(); });
    OnKey(QKeySequence::Save, [this] { m_ui->cmdSave->click(); });
    OnKey(Qt::Key_Escape, [this] {
        if (m_file != nullptr) {
            StopSaving();
        } else {
            close();
        }
    });
}

void HistoryWindow::Open(const std::optional<HistoryScope>& scope)
{
    if (ShowInFront() && !scope) {
        return;
    }
    m_ui->grdHistory->setFocus();
    m_ui->filter->Start(scope);
    StartOver();
}

// What was read before is not what is chosen now, also where that cannot be read.
void HistoryWindow::StartOver()
{
    m_ui->grdHistory->SetHint(kUnread);
    m_rows->Show(nullptr);
    ShowSaving();
    Refresh();
}

// A failure leaves what was read before in its place.
void HistoryWindow::Refresh()
{
    Say(QString());
    Succeeds([this] { Begin(); }, [this](const Failure& reason) { Complain(kNotRead + reason.Description()); });
}

void HistoryWindow::Begin()
{
    const BusyPointer busy(Host().Desktop());
    const auto database = Host().Database()->SecondAccess();
    const CJetDB::Hold hold(database);
    const auto names = std::make_shared<EmployeeNames>(database);
    names->LearnGone(database);
    m_ui->filter->Fill(*names, ReadTrailPersons(database));
    const auto query = m_ui->filter->Query();
    if (!query) {
        return Say(kNoDays);
    }
    const auto reading = std::make_shared<HistoryReading>(database, *query, names);
    reading->ReadOn();
    m_query = *query;
    m_names = names;
    m_ui->grdHistory->SetHint(QString::fromStdString(NoHistoryText(m_ui->filter->Narrows())));
    m_rows->Show(reading);
    FitColumns();
    ShowNews();
    ShowSaving();
}

void HistoryWindow::ShowNews()
{
    const auto shown = static_cast<std::size_t>(m_rows->rowCount());
    if (m_file == nullptr) {
        m_ui->lblHistory->setText(QString::fromStdString(HistoryNews(shown, m_rows->canFetchMore())));
    }
}

// What was changed takes the room that the others leave.
void HistoryWindow::FitColumns()
{
    QTableView* table = m_ui->grdHistory;
    const QFontMetrics metrics = table->fontMetrics();
    int rest = table->viewport()->width();
    const auto set = [&](HistoryColumn column, int width) {
        table->setColumnWidth(static_cast<int>(column), width);
        rest -= width;
    };
    set(HistoryColumn::When, metrics.horizontalAdvance(kWidestMoment) + kColumnSpace);
    const int change = metrics.horizontalAdvance(kUsualChange) + kColumnSpace;
    const int most = std::max((rest - change) / 2, kEmployeeCharacters * metrics.averageCharWidth() + kColumnSpace);
    set(HistoryColumn::Who, std::min(NamesWidth(HistoryColumn::Who), most));
    set(HistoryColumn::Employee, std::min(NamesWidth(HistoryColumn::Employee), most));
    set(HistoryColumn::What, std::max(rest, change));
}

// Of the first page; who comes later is seldom wider.
int HistoryWindow::NamesWidth(HistoryColumn column) const
{
    const QFontMetrics metrics = m_ui->grdHistory->fontMetrics();
    const auto widthOf = [&](const HistoryCells& cells) {
        return metrics.horizontalAdvance(QString::fromStdString(cells.at(static_cast<std::size_t>(column)))) + kColumnSpace;
    };
    int width = widthOf(HistoryHeading());
    for (int row = 0; row < std::min(m_rows->rowCount(), HistoryReading::kEntries); ++row) {
        width = std::max(width, widthOf(m_rows->Cells(row)));
    }
    return width;
}

// Whole, as the row may not have the room.
void HistoryWindow::ShowEntry()
{
    const QModelIndex current = m_ui->grdHistory->currentIndex();
    const bool chosen = current.isValid() && m_ui->grdHistory->selectionModel()->hasSelection();
    m_ui->txtHistoryEntry->setPlainText(chosen ? QString::fromStdString(InOneText(m_rows->Cells(current.row()))) : QString());
}

// The chosen rows in the order in which they stand, or all that are shown.
void HistoryWindow::Copy()
{
    const QItemSelectionModel& selection = *m_ui->grdHistory->selectionModel();
    std::vector<HistoryCells> lines{HistoryHeading()};
    for (int row = 0; row < m_rows->rowCount(); ++row) {
        if (!selection.hasSelection() || selection.isRowSelected(row)) {
            lines.push_back(m_rows->Cells(row));
        }
    }
    CopyRows(TabSeparated(lines), lines.size() - 1, kChange);
}

void HistoryWindow::SaveAs()
{
    const auto name = QString::fromStdString(HistoryFileName(Host().Clock().Today()));
    const auto target = AskWhereToSave(*this, name, SavedForms());
    if (!target) {
        return;
    }
    Say(QString());
    const auto begin = [&] {
        const auto database = Host().Database()->SecondAccess();
        m_file = std::make_unique<HistoryFile>(target->path, target->form, Host().Clock().Now(), database, m_query, m_names);
        m_saving.start(0);
    };
    Succeeds(begin, [this](const Failure& reason) { Complain(kNotSaved + reason.Description()); });
    ShowSaving();
}

void HistoryWindow::SaveOn()
{
    const auto told = [this](const Failure& reason) {
        m_file.reset();
        Complain(kNotSaved + reason.Description());
    };
    if (Succeeds([this] { m_file->WriteOn(); }, told)) {
        if (m_file->IsDone()) {
            Say(QString(kSaved).arg(CountOf(m_file->Written()), QFileInfo(QString::fromStdString(m_file->Path())).fileName()));
            m_file.reset();
        } else {
            m_saving.start(0);
        }
    }
    ShowSaving();
}

void HistoryWindow::StopSaving()
{
    m_saving.stop();
    if (m_file != nullptr) {
        m_file.reset();
        Say(kCancelled);
    }
    ShowSaving();
}

void HistoryWindow::ShowSaving()
{
    const bool saving = m_file != nullptr;
    m_ui->cmdStop->setVisible(saving);
    m_ui->cmdSave->setEnabled(!saving && m_rows->rowCount() > 0);
    const char* const idle = m_rows->rowCount() > 0 ? kSaveTip : kNothingToSave;
    m_ui->cmdSave->setToolTip(saving ? kBeingSaved : idle);
    if (saving) {
        m_ui->lblHistory->setText(QString(kSaving).arg(CountOf(m_file->Written())));
    } else {
        ShowNews();
    }
}

} // namespace ptk
