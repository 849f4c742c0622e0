#include "ui/pages/TimeRecordGridModel.h"

#include "model/CTimeRecordList.h"

#include <algorithm>
#include <array>

namespace ptk {

namespace {

constexpr std::array<const char*, recordcolumn::Count> kHeadings{"Start", "End", "Total"};

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

bool TimeRecordGridModel::Shows(const std::shared_ptr<CTimeRecord>& record) const
{
    return std::any_of(m_rows.begin(), m_rows.end(), [&](const Row& row) { return row.record == record; });
}

QString TimeRecordGridModel::Text(int row, int column) const
{
    CTimeRecord record = m_rows.at(static_cast<std::size_t>(row)).shown;
    return QString::fromStdString(record.ToString(0)).section('\t', column, column);
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
    if (role == Qt::DisplayRole) {
        return Text(index.row(), index.column());
    }
    if (role == Qt::TextAlignmentRole && index.column() == recordcolumn::Total) {
        return QVariant::fromValue(Qt::Alignment(Qt::AlignTrailing | Qt::AlignVCenter));
    }
    return {};
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
