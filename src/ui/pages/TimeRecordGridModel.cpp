#include "ui/pages/TimeRecordGridModel.h"

#include "model/CTimeRecordList.h"
#include "office/CardTexts.h"
#include "ui/widgets/ThemeIcon.h"

#include <array>
#include <QGuiApplication>
#include <QPalette>

namespace ptk {

namespace {

constexpr std::array<const char*, recordcolumn::Count> kHeadings{"Start", "End", "Total"};
constexpr auto kStillClockedIn = "still clocked in";

bool IsStillOpen(const CTimeRecord& record, int column)
{
    return column == recordcolumn::End && record.EndTime().IsZero();
}

} // namespace

void TimeRecordGridModel::SetRecords(CTimeRecordList& records)
{
    std::vector<Row> rows;
    rows.reserve(static_cast<std::size_t>(records.Count()));
    for (std::int32_t i = 1; i <= records.Count(); ++i) {
        rows.push_back({records.Item(i), records.RecordAt(i)});
    }
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

void TimeRecordGridModel::Clear()
{
    beginResetModel();
    m_rows.clear();
    endResetModel();
}

void TimeRecordGridModel::SetFaded(bool faded)
{
    if (faded == m_faded) {
        return;
    }
    m_faded = faded;
    if (!m_rows.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, recordcolumn::Count - 1), {Qt::ForegroundRole});
    }
}

QString TimeRecordGridModel::Text(const Row& row, int column)
{
    CTimeRecord record = row.shown;
    return QString::fromStdString(record.ToString(0)).section('\t', column, column);
}

QString TimeRecordGridModel::Note(const Row& row, int column)
{
    if (IsStillOpen(row.shown, column)) {
        return kStillClockedIn;
    }
    switch (column) {
    case recordcolumn::Start:
        return QString::fromStdString(WeekdayName(row.shown.StartTime()));
    case recordcolumn::End:
        return QString::fromStdString(WeekdayName(row.shown.EndTime()));
    default:
        return {};
    }
}

int TimeRecordGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int TimeRecordGridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : recordcolumn::Count;
}

QVariant TimeRecordGridModel::data(const QModelIndex& index, int role) const
{
    const Row& row = m_rows.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return Text(row, index.column());
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return Note(row, index.column());
    case Qt::DecorationRole:
        return IsStillOpen(row.shown, index.column()) ? QVariant(ThemeIcon("timecards")) : QVariant();
    case Qt::ForegroundRole:
        return m_faded ? QVariant(QGuiApplication::palette().brush(QPalette::PlaceholderText)) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == recordcolumn::Total ? QVariant::fromValue(Qt::Alignment(Qt::AlignTrailing | Qt::AlignVCenter))
                                                     : QVariant();
    default:
        return {};
    }
}

QVariant TimeRecordGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return kHeadings.at(static_cast<std::size_t>(section));
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignVCenter | (section == recordcolumn::Total ? Qt::AlignTrailing : Qt::AlignLeading));
    }
    return {};
}

} // namespace ptk
