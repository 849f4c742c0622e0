#include "ui/overview/OverviewTables.h"

#include "office/overview/OverviewReading.h"
#include "ui/overview/OverviewModel.h"
#include "ui/widgets/FixedRows.h"

#include <algorithm>
#include <iterator>
#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTableView>

namespace ptk {

namespace {

constexpr int kColumnSpace = 24; // pixels around a heading: margins and the sorting arrow
constexpr int kCellSpace = 12;
constexpr int kNameCharacters = 18;
constexpr int kMostLeftOut = 3; // lines

// The widest texts of the columns with a day and with an amount. The sums below them are counts, which are narrower.
constexpr auto kWidestDay = "88/88/8888";
constexpr auto kWidestChange = "+8888.88";

} // namespace

OverviewTables::OverviewTables(const Place& place, QObject* parent)
    : QObject(parent), m_table(place.rows), m_sums(place.totals), m_others(place.leftOut), m_rows(new OverviewModel(this)),
      m_sorted(new SortedOverview(*m_rows)), m_totals(new OverviewLinesModel(true, this)), m_leftOut(new OverviewLinesModel(false, this))
{
    Prepare();
    Connect();
}

void OverviewTables::Prepare()
{
    m_table.setModel(m_sorted);
    m_sums.setModel(m_totals);
    m_others.setModel(m_leftOut);
    for (QTableView* table : {&m_table, &m_sums, &m_others}) {
        FixRows(*table);
    }
    m_sums.horizontalHeader()->hide();
    m_others.horizontalHeader()->hide();
    m_sums.setFixedHeight(m_sums.verticalHeader()->defaultSectionSize() + 2 * m_sums.frameWidth());
    m_table.viewport()->installEventFilter(this);
    m_table.sortByColumn(static_cast<int>(OverviewColumn::Problems), Qt::DescendingOrder);
}

void OverviewTables::Connect()
{
    connect(m_table.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        TakeChoice();
        emit ShownRowChanged();
    });
    connect(m_sorted, &QAbstractItemModel::layoutChanged, this, &OverviewTables::ShownRowChanged);
    connect(m_table.horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        m_sums.setColumnWidth(column, width);
        m_others.setColumnWidth(column, width);
    });
    for (QTableView* below : {&m_sums, &m_others}) {
        connect(m_table.horizontalScrollBar(), &QScrollBar::valueChanged, below->horizontalScrollBar(), &QScrollBar::setValue);
    }
}

void OverviewTables::Show(const std::shared_ptr<const OverviewReading>& reading)
{
    {
        const QScopedValueRollback showing(m_showing, true);
        m_rows->Show(reading);
        ChooseAgain();
    }
    ShowTotals();
    ShowLeftOut();
    emit ShownRowChanged();
}

void OverviewTables::ShowAnew(const std::shared_ptr<const OverviewReading>& reading)
{
    m_rows->ShowAnew(reading);
    Show(reading);
}

const OverviewReading* OverviewTables::ShownReading() const
{
    return m_rows->HasReading() ? &m_rows->Reading() : nullptr;
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
    return line < m_sorted->rowCount() ? &Row(line) : nullptr;
}

const OverviewRow& OverviewTables::Row(int line) const
{
    return m_rows->Rows().at(RowAt(line));
}

std::vector<const OverviewRow*> OverviewTables::ChosenRows() const
{
    std::vector<const OverviewRow*> rows;
    for (int line = 0; line < m_sorted->rowCount() && m_table.selectionModel()->hasSelection(); ++line) {
        if (m_table.selectionModel()->isRowSelected(line)) {
            rows.push_back(&Row(line));
        }
    }
    return rows;
}

void OverviewTables::ChooseNone()
{
    m_table.clearSelection();
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
    const OverviewRow* chosen = m_table.selectionModel()->hasSelection() ? ShownRow() : nullptr;
    const auto from = employeeID || chosen == nullptr ? employeeID : std::optional(chosen->employee->EmployeeID());
    const auto found = ptk::StepToProblems(m_rows->Rows(), lines, from, direction);
    if (!found) {
        return nullptr;
    }
    ChooseLine(static_cast<int>(*found));
    return &m_rows->Rows().at(lines.at(*found));
}

// Chooses this line alone, even while Shift is held: Shift+F3 steps back.
void OverviewTables::ChooseLine(int line)
{
    m_table.selectionModel()->setCurrentIndex(m_sorted->index(line, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void OverviewTables::TakeChoice()
{
    if (m_showing) {
        return;
    }
    m_kept.clear();
    for (const OverviewRow* row : ChosenRows()) {
        m_kept.insert(row->employee->EmployeeID());
    }
}

// Chooses the people whom the user had chosen in the reading before and whose rows have been read by now.
void OverviewTables::ChooseAgain()
{
    QItemSelectionModel& selection = *m_table.selectionModel();
    auto missing = static_cast<std::ptrdiff_t>(m_kept.size()) - selection.selectedRows().size();
    QItemSelection found;
    for (int line = 0; line < m_sorted->rowCount() && missing > 0; ++line) {
        if (!m_kept.contains(EmployeeAt(line)) || selection.isRowSelected(line)) {
            continue;
        }
        --missing;
        const QModelIndex index = m_sorted->index(line, 0);
        if (!found.isEmpty() && found.last().bottom() == line - 1) {
            found.last() =
                QItemSelectionRange(found.last().topLeft(), index); // one range for a run of rows: they are compared pair by pair
        } else {
            found.append(QItemSelectionRange(index));
        }
    }
    if (found.isEmpty()) {
        return;
    }
    selection.select(found, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    selection.setCurrentIndex(found.first().topLeft(), QItemSelectionModel::NoUpdate);
}

void OverviewTables::ShowTotals()
{
    if (m_rows->HasReading()) {
        m_totals->Show({TotalCells(m_rows->Rows(), m_sorted->OnlyProblems())});
        FitColumns();
    }
}

// The table is at most kMostLeftOut lines high; the others are scrolled to.
void OverviewTables::ShowLeftOut()
{
    std::vector<OverviewCells> lines;
    if (m_rows->HasReading()) {
        const auto& leftOut = m_rows->Reading().Result().leftOut;
        std::transform(leftOut.begin(), leftOut.end(), std::back_inserter(lines), [](const LeftOut& out) { return OverviewCellsOf(out); });
    }
    const int shown = std::min(static_cast<int>(lines.size()), kMostLeftOut);
    m_others.setFixedHeight(shown * m_others.verticalHeader()->defaultSectionSize() + 2 * m_others.frameWidth());
    m_leftOut->Show(std::move(lines));
}

// The names take the width that the figures leave. Other columns fit their heading and sum: hardly any figure is wider than its sum.
void OverviewTables::FitColumns()
{
    QFont bold = m_table.font();
    bold.setBold(true);
    int figures = 0;
    for (int column = 1; column < m_sorted->columnCount(); ++column) {
        const QString heading = m_sorted->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        const int sum = QFontMetrics(bold).horizontalAdvance(m_totals->index(0, column).data().toString());
        const int width = std::max({m_table.fontMetrics().horizontalAdvance(heading) + kColumnSpace, sum + kCellSpace, LeastWidth(column)});
        m_table.setColumnWidth(column, width);
        figures += width;
    }
    const int least = kNameCharacters * m_table.fontMetrics().averageCharWidth();
    m_table.setColumnWidth(0, std::max(m_table.viewport()->width() - figures, least));
}

int OverviewTables::LeastWidth(int column) const
{
    switch (static_cast<OverviewColumn>(column)) {
    case OverviewColumn::Paid:
        return m_table.fontMetrics().horizontalAdvance(kWidestDay) + kCellSpace;
    case OverviewColumn::Changed:
        return m_table.fontMetrics().horizontalAdvance(kWidestChange) + kCellSpace;
    default:
        return 0;
    }
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
            lines.push_back(OverviewCellsOf(Row(line)));
        }
    }
    return lines;
}

} // namespace ptk
