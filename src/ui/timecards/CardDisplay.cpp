#include "ui/timecards/CardDisplay.h"

#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "office/card/CardTexts.h"
#include "office/card/CheckedTimecard.h"
#include "platform/Required.h"
#include "platform/text/Text.h"
#include "ui/timecards/TimeRecordGridModel.h"
#include "ui/widgets/FixedRows.h"
#include "ui/widgets/FoldingRow.h"
#include "ui_CardDisplay.h"

#include <algorithm>
#include <QHeaderView>
#include <QShortcut>

namespace ptk {

namespace {

constexpr int kRowSpace = 3; // pixels above and below a text together: twelve rows are to fit on a screen of 1024 x 700

QString Figure(float value)
{
    return QString::fromStdString(TwoDecimals(value));
}

} // namespace

CardDisplay::CardDisplay(QWidget* parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::CardDisplay>()), m_records(new TimeRecordGridModel(this))
{
    m_ui->setupUi(this);
    m_ui->txtTCPeriodPay->SetImportant();
    LayOutFigures();
    setFocusProxy(m_ui->grdTimeRecs);
    PrepareGrid();
    ConnectFindings();
}

CardDisplay::~CardDisplay() = default;

// Puts the figures into a layout of their own, which the frame keeps in sight. The break time stands before them, or above them on a narrow
// window.
void CardDisplay::LayOutFigures()
{
    auto* standing = new FoldingRow;
    standing->setObjectName("figures");
    m_ui->layoutDisplay->removeItem(m_ui->layoutFigures);
    m_ui->layoutFigures->setParent(nullptr);
    standing->addWidget(m_ui->lblTCBreakTime, 1);
    standing->addLayout(m_ui->layoutFigures);
    m_ui->layoutDisplay->addLayout(standing);
}

void CardDisplay::ShowBreakTime(const QString& text)
{
    m_ui->lblTCBreakTime->setText(text);
    m_ui->lblTCBreakTime->setVisible(!text.isEmpty());
}

void CardDisplay::PrepareGrid()
{
    TimeRecordGrid* grid = m_ui->grdTimeRecs;
    grid->setModel(m_records);
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    FixRows(*grid, kRowSpace);
    connect(grid, &QTableView::clicked, this, &CardDisplay::Choose);
    connect(grid->selectionModel(), &QItemSelectionModel::selectionChanged, this, &CardDisplay::Choose);
    connect(grid, &TimeRecordGrid::EditAsked, this, &CardDisplay::EditAsked);
    grid->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(grid, &QWidget::customContextMenuRequested, this,
            [this, grid](const QPoint& place) { emit MenuAsked(grid->viewport()->mapToGlobal(place)); });
    auto* deleteKey = new QShortcut(QKeySequence::Delete, grid, nullptr, nullptr, Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &CardDisplay::DeleteAsked);
}

void CardDisplay::ConnectFindings()
{
    const CheckPanel* findings = m_ui->findings;
    connect(findings, &CheckPanel::RowsWanted, this, &CardDisplay::ChooseRowsOf);
    connect(findings, &CheckPanel::EditAsked, this, &CardDisplay::EditAsked);
    connect(findings, &CheckPanel::DeleteAsked, this, &CardDisplay::DeleteAsked);
    connect(findings, &CheckPanel::RemedyWanted, this, &CardDisplay::RemedyWanted);
    connect(findings, &CheckPanel::Elsewhere, this, &CardDisplay::Elsewhere);
    connect(findings, &CheckPanel::EditElsewhereAsked, this, &CardDisplay::EditElsewhereAsked);
    connect(findings, &CheckPanel::DeleteElsewhereAsked, this, &CardDisplay::DeleteElsewhereAsked);
}

// Tells of the chosen row. The rows of a finding stay marked while one of them is the chosen one.
void CardDisplay::Choose()
{
    const auto record = ChosenRecord();
    if (record == nullptr) {
        return;
    }
    if (!m_records->IsInGroup(record->TimeRecordID())) {
        m_records->SetGroup({});
    }
    emit RowChosen();
}

// Tells of the row even if it is chosen already, since the choice may have been forgotten elsewhere in the meantime.
void CardDisplay::ChooseRowOf(qint64 timeRecordID)
{
    const int row = m_records->RowOf(timeRecordID);
    if (row >= 0) {
        m_ui->grdTimeRecs->setCurrentIndex(m_records->index(row, recordcolumn::Start));
        emit RowChosen();
    }
}

// Scrolls from the last row to the first, so that the first is in sight where they do not all fit.
void CardDisplay::ChooseRowsOf(const std::vector<std::int64_t>& timeRecordIDs)
{
    ForgetChoice();
    m_records->SetGroup(timeRecordIDs);
    std::for_each(timeRecordIDs.rbegin(), timeRecordIDs.rend(),
                  [this](std::int64_t id) { m_ui->grdTimeRecs->scrollTo(m_records->index(m_records->RowOf(id), recordcolumn::Start)); });
    if (!timeRecordIDs.empty()) {
        ChooseRowOf(timeRecordIDs.front());
    }
}

void CardDisplay::TakeKeyboard(std::int64_t record, int place)
{
    TimeRecordGrid* grid = m_ui->grdTimeRecs;
    grid->setFocus();
    const int row = m_records->RowOf(record);
    const QModelIndex current =
        m_records->index(row >= 0 ? row : std::min(place, m_records->rowCount() - 1), recordcolumn::Start); // none if it is negative
    if (current.isValid()) {
        grid->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    }
}

int CardDisplay::KeyboardPlace() const
{
    return m_ui->grdTimeRecs->currentIndex().row();
}

bool CardDisplay::SetupTimeRecordGrid()
{
    m_records->Clear();
    m_ui->findings->Show(nullptr);
    return true;
}

bool CardDisplay::DisplayTimeCard(const CTimeCard& card)
{
    const auto employee = Required(card.Employee());
    Required(card.TimeRecordList());
    const bool filled = FillTimeRecordGrid(card.Lines());
    m_ui->txtTCHours->setText(Figure(card.RegularHoursWorked()));
    m_ui->txtTCPayRate->setText(Figure(employee->PayRate()));
    m_ui->txtTCOvertimeHours->setText(Figure(card.OvertimeHoursWorked()));
    m_ui->txtTCOvertimePayRate->setText(Figure(employee->OvertimePayRate()));
    m_ui->txtTCPeriodPay->setText(Figure(card.TotalPay()));
    ShowBreakTime(QString::fromStdString(BreakTimeText(card)));
    return filled;
}

bool CardDisplay::FillTimeRecordGrid(std::vector<CardLine> lines)
{
    m_records->SetLines(std::move(lines));
    return true;
}

std::array<FigureBox*, 5> CardDisplay::Figures() const
{
    return {m_ui->txtTCHours, m_ui->txtTCPayRate, m_ui->txtTCOvertimeHours, m_ui->txtTCOvertimePayRate, m_ui->txtTCPeriodPay};
}

void CardDisplay::ClearFigures()
{
    for (auto* box : Figures()) {
        box->clear();
    }
    ShowBreakTime({});
}

void CardDisplay::ShowCheck(const std::shared_ptr<const CheckedTimecard>& checked)
{
    m_records->SetMarks(checked->check ? MarksOf(*checked->check, checked->limits.showNotices) : RowMarks());
    m_ui->findings->Show(checked);
}

void CardDisplay::ShowEdits(RecordEdits edits)
{
    m_records->SetEdits(std::move(edits));
}

void CardDisplay::OpenFindings()
{
    m_ui->findings->OpenList();
}

std::optional<Finding> CardDisplay::ChosenFinding() const
{
    return m_ui->findings->Chosen();
}

bool CardDisplay::ChooseNextFinding(const std::optional<Finding>& done)
{
    return m_ui->findings->ChooseNext(done);
}

void CardDisplay::ShowHours(bool shown)
{
    m_ui->findings->ShowHours(shown);
}

bool CardDisplay::HoursShown() const
{
    return m_ui->findings->HoursShown();
}

bool CardDisplay::ShowsCard() const
{
    return m_records->rowCount() > 0;
}

bool CardDisplay::ShowsFindings() const
{
    return m_ui->findings->IsShown();
}

void CardDisplay::SetStrange(bool strange)
{
    m_records->SetFaded(strange);
    m_ui->findings->SetStrange(strange);
    m_ui->lblTCBreakTime->setEnabled(!strange);
    for (auto* box : Figures()) {
        box->SetFaded(strange);
    }
}

void CardDisplay::SetHint(const QString& text)
{
    m_ui->grdTimeRecs->SetHint(text);
}

// A row always means its own record, whatever its texts say: they have no seconds, an editor may have changed the record since, and another
// record may have the same times.
std::shared_ptr<CTimeRecord> CardDisplay::ChosenRecord() const
{
    const auto rows = m_ui->grdTimeRecs->selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : m_records->Record(rows.first().row());
}

void CardDisplay::ForgetChoice()
{
    m_ui->grdTimeRecs->clearSelection();
    m_records->SetGroup({});
}

} // namespace ptk
