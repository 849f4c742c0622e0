#include "ui/overview/OverviewTables.h"

#include "office/overview/OverviewReading.h"
#include "ui/overview/OverviewModel.h"

#include <algorithm>
#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

namespace ptk {

namespace {

constexpr int kRowSpace = 8;     // pixels around the text of a row
constexpr int kColumnSpace = 24; // pixels around a heading: margins and the sorting arrow
constexpr int kCellSpace = 12;
constexpr int kNameCharacters = 18;

} // namespace

OverviewTables::OverviewTables(const Place& place, QObject* parent)
    : QObject(parent), m_table(place.rows), m_sums(place.totals), m_rows(new OverviewModel(this)), m_sorted(new SortedOverview(*m_rows)),
      m_totals(new OverviewTotalsModel(this))
{
    Prepare();
    Connect();
}

void OverviewTables::Prepare()
{
    m_table.setModel(m_sorted);
    m_sums.setModel(m_totals);
    for (QTableView* table : {&m_table, &m_sums}) {
        table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + kRowSpace);
        table->verticalHeader()->hide();
        table->horizontalHeader()->setHighlightSections(false);
    }
    m_sums.horizontalHeader()->hide();
    m_sums.setFixedHeight(m_sums.verticalHeader()->defaultSectionSize() + 2 * m_sums.frameWidth());
    m_table.viewport()->installEventFilter(this);
    m_table.sortByColumn(static_cast<int>(OverviewColumn::Problems), Qt::DescendingOrder);
}

void OverviewTables::Connect()
{
    connect(m_table.selectionModel(), &QItemSelectionModel::selectionChanged, this, &OverviewTables::ShownRowChanged);
    connect(m_sorted, &QAbstractItemModel::layoutChanged, this, &OverviewTables::ShownRowChanged);
    connect(m_table.horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int column, int, int width) { m_sums.setColumnWidth(column, width); });
    connect(m_table.horizontalScrollBar(), &QScrollBar::valueChanged, m_sums.horizontalScrollBar(), &QScrollBar::setValue);
}

void OverviewTables::Show(const std::shared_ptr<const OverviewReading>& reading)
{
    const auto chosen = Chosen();
    m_rows->Show(reading);
    KeepChoice(chosen);
    ShowTotals();
    emit ShownRowChanged();
}

const OverviewReading* OverviewTables::Shown() const
{
    return m_rows->HasReading() ? &m_rows->Shown() : nullptr;
}

void OverviewTables::ShowOnlyProblems(bool only)
{
    m_sorted->ShowOnlyProblems(only);
    ShowTotals();
    emit ShownRowChanged();
}

std::size_t OverviewTables::RowAt(int line) const
{
    return static_cast<std::size_t>(m_sorted->mapToSource(m_sorted->index(line, 0)).row());
}

const OverviewRow* OverviewTables::ShownRow() const
{
    const auto chosen = m_table.selectionModel()->selectedRows();
    const int line = chosen.isEmpty() ? 0 : chosen.first().row();
    return line < m_sorted->rowCount() ? &m_rows->Rows().at(RowAt(line)) : nullptr;
}

std::optional<std::int32_t> OverviewTables::Chosen() const
{
    const OverviewRow* row = m_table.selectionModel()->hasSelection() ? ShownRow() : nullptr;
    return row != nullptr ? std::optional(row->employee->EmployeeID()) : std::nullopt;
}

const OverviewRow* OverviewTables::StepToProblems(std::optional<std::int32_t> employeeID, int direction)
{
    if (!m_rows->HasReading()) {
        return nullptr;
    }
    std::vector<std::size_t> lines;
    for (int line = 0; line < m_sorted->rowCount(); ++line) {
        lines.push_back(RowAt(line));
    }
    const auto found = ptk::StepToProblems(m_rows->Rows(), lines, employeeID ? employeeID : Chosen(), direction);
    if (!found) {
        return nullptr;
    }
    m_table.selectRow(static_cast<int>(*found));
    return &m_rows->Rows().at(lines.at(*found));
}

// Of the reading before: it is chosen again as soon as it is there.
void OverviewTables::KeepChoice(const std::optional<std::int32_t>& employeeID)
{
    if (employeeID) {
        m_kept = employeeID;
    }
    if (!m_kept || m_table.selectionModel()->hasSelection()) {
        return;
    }
    for (int line = 0; line < m_sorted->rowCount(); ++line) {
        if (m_rows->Rows().at(RowAt(line)).employee->EmployeeID() == *m_kept) {
            return m_table.selectRow(line);
        }
    }
}

void OverviewTables::ShowTotals()
{
    if (m_rows->HasReading()) {
        m_totals->Show(TotalCells(m_rows->Rows(), m_sorted->OnlyProblems()));
        FitColumns();
    }
}

// The names take what the figures leave. Headings and sums have to fit; no figure is wider than its sum, or hardly.
void OverviewTables::FitColumns()
{
    QFont bold = m_table.font();
    bold.setBold(true);
    int figures = 0;
    for (int column = 1; column < m_sorted->columnCount(); ++column) {
        const QString heading = m_sorted->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        const int sum = QFontMetrics(bold).horizontalAdvance(m_totals->index(0, column).data().toString());
        const int width = std::max(m_table.fontMetrics().horizontalAdvance(heading) + kColumnSpace, sum + kCellSpace);
        m_table.setColumnWidth(column, width);
        figures += width;
    }
    const int least = kNameCharacters * m_table.fontMetrics().averageCharWidth();
    m_table.setColumnWidth(0, std::max(m_table.viewport()->width() - figures, least));
}

bool OverviewTables::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        FitColumns();
    }
    return QObject::eventFilter(watched, event);
}

std::vector<OverviewCells> OverviewTables::ChosenCells() const
{
    const QItemSelectionModel& selection = *m_table.selectionModel();
    std::vector<OverviewCells> lines{OverviewHeading()};
    for (int line = 0; line < m_sorted->rowCount(); ++line) {
        if (!selection.hasSelection() || selection.isRowSelected(line)) {
            lines.push_back(CellsOf(m_rows->Rows().at(RowAt(line))));
        }
    }
    return lines;
}

} // namespace ptk
