#include "ui/history/HistoryModel.h"

#include "platform/Succeeds.h"

namespace ptk {

namespace {

QString Text(const HistoryCells& cells, int column)
{
    return QString::fromStdString(cells.at(static_cast<std::size_t>(column)));
}

} // namespace

void HistoryModel::Show(std::shared_ptr<HistoryReading> reading)
{
    beginResetModel();
    m_reading = std::move(reading);
    m_shown = m_reading == nullptr ? 0 : static_cast<int>(m_reading->Rows().size());
    m_failed = false;
    endResetModel();
}

bool HistoryModel::canFetchMore(const QModelIndex& parent) const
{
    return !parent.isValid() && m_reading != nullptr && !m_reading->IsDone() && !m_failed;
}

void HistoryModel::fetchMore(const QModelIndex&)
{
    const auto told = [this](const Failure& reason) {
        m_failed = true;
        emit Failed(QString::fromStdString(reason.Description()));
    };
    if (!Succeeds([this] { m_reading->ReadOn(); }, told)) {
        return;
    }
    const int read = static_cast<int>(m_reading->Rows().size());
    if (read > m_shown) {
        beginInsertRows({}, m_shown, read - 1);
        m_shown = read;
        endInsertRows();
    }
}

int HistoryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_shown;
}

int HistoryModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(kHistoryColumns);
}

// The tool tip holds the whole text of a cell, which may be too narrow for it.
QVariant HistoryModel::data(const QModelIndex& index, int role) const
{
    return role == Qt::DisplayRole || role == Qt::ToolTipRole ? Text(Cells(index.row()), index.column()) : QVariant();
}

QVariant HistoryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignLeading | Qt::AlignVCenter);
    }
    return role == Qt::DisplayRole ? Text(HistoryHeading(), section) : QVariant();
}

} // namespace ptk
