#include "ui/overview/OverviewModel.h"

#include "model/check/FindingText.h"
#include "office/overview/OverviewReading.h"
#include "ui/widgets/FindingList.h"
#include "ui/widgets/ThemeIcon.h"

#include <QFont>

namespace ptk {

namespace {

constexpr int kColumns = static_cast<int>(kOverviewColumns);

QString CellText(const OverviewCells& cells, int column)
{
    return QString::fromStdString(cells.at(static_cast<std::size_t>(column)));
}

// Names stand to the left, figures to the right.
QVariant AlignmentOf(int column)
{
    const bool name = static_cast<OverviewColumn>(column) == OverviewColumn::Name;
    return QVariant::fromValue(Qt::Alignment(name ? Qt::AlignLeading : Qt::AlignTrailing) | Qt::AlignVCenter);
}

QVariant IconOf(const OverviewRow& row, int column)
{
    switch (static_cast<OverviewColumn>(column)) {
    case OverviewColumn::Problems:
        return row.check.problems > 0 ? QVariant(ThemeIcon(SeverityIconName(Severity::Problem))) : QVariant();
    case OverviewColumn::Notices:
        return row.check.notices > 0 ? QVariant(ThemeIcon(SeverityIconName(Severity::Notice))) : QVariant();
    case OverviewColumn::ClockedIn:
        return row.check.clockedIn ? QVariant(ThemeIcon("timecards")) : QVariant();
    default:
        return {};
    }
}

QVariant HeadingOf(int section, Qt::Orientation orientation, int role)
{
    if (orientation == Qt::Vertical) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return CellText(OverviewHeading(), section);
    }
    return role == Qt::TextAlignmentRole ? AlignmentOf(section) : QVariant();
}

} // namespace

void OverviewModel::Show(const std::shared_ptr<const OverviewReading>& reading)
{
    if (reading != m_reading) {
        beginResetModel();
        m_reading = reading;
        m_shown = 0;
        endResetModel();
    }
    const int read = static_cast<int>(Rows().size());
    if (read > m_shown) {
        beginInsertRows({}, m_shown, read - 1);
        m_shown = read;
        endInsertRows();
    }
}

void OverviewModel::ShowAnew(const std::shared_ptr<const OverviewReading>& reading)
{
    beginResetModel();
    m_reading = reading;
    m_shown = static_cast<int>(Rows().size());
    endResetModel();
}

const std::vector<OverviewRow>& OverviewModel::Rows() const
{
    return m_reading->Result().rows;
}

int OverviewModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_shown;
}

int OverviewModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kColumns;
}

QVariant OverviewModel::data(const QModelIndex& index, int role) const
{
    const OverviewRow& row = Row(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return CellText(OverviewCellsOf(row), index.column());
    case Qt::DecorationRole:
        return IconOf(row, index.column());
    case Qt::TextAlignmentRole:
        return AlignmentOf(index.column());
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return QString::fromStdString(FindingSummary(row.check));
    default:
        return {};
    }
}

QVariant OverviewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return HeadingOf(section, orientation, role);
}

SortedOverview::SortedOverview(OverviewModel& rows) : QSortFilterProxyModel(&rows), m_rows(rows)
{
    setSourceModel(&rows);
}

void SortedOverview::ShowOnlyProblems(bool only)
{
    m_onlyProblems = only;
    invalidateFilter();
}

bool SortedOverview::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    return StandsBefore(m_rows.Rows(), static_cast<std::size_t>(left.row()), static_cast<std::size_t>(right.row()),
                        static_cast<OverviewColumn>(left.column()));
}

bool SortedOverview::filterAcceptsRow(int row, const QModelIndex&) const
{
    return !m_onlyProblems || m_rows.Row(row).check.problems > 0;
}

void OverviewLinesModel::Show(std::vector<OverviewCells> lines)
{
    if (lines.size() != m_lines.size()) {
        beginResetModel();
        m_lines = std::move(lines);
        endResetModel();
    } else if (!lines.empty()) {
        m_lines = std::move(lines);
        emit dataChanged(index(0, 0), index(rowCount() - 1, kColumns - 1));
    }
}

int OverviewLinesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kColumns;
}

QVariant OverviewLinesModel::data(const QModelIndex& index, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return CellText(m_lines.at(static_cast<std::size_t>(index.row())), index.column());
    case Qt::TextAlignmentRole:
        return AlignmentOf(index.column());
    case Qt::FontRole: {
        QFont font;
        font.setBold(m_bold);
        return font;
    }
    default:
        return {};
    }
}

QVariant OverviewLinesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return HeadingOf(section, orientation, role);
}

} // namespace ptk
