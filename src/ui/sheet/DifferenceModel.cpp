#include "ui/sheet/DifferenceModel.h"

#include <tuple>

namespace ptk {

namespace {

constexpr const char* kHeadings[DifferenceModel::Count] = {"Change", "Field", "Stored", "In the File"};

// Tells differences apart. The stored value is part of it: a tick must not hold for a value that has changed since it was shown.
auto KeyOf(const EmployeeDifference& difference)
{
    return std::tuple(difference.employee, difference.field, difference.stored, difference.given);
}

QString CellOf(const EmployeeDifference& difference, int column)
{
    switch (column) {
    case DifferenceModel::Employee:
        return QString("%1  %2").arg(difference.number).arg(QString::fromStdString(difference.name));
    case DifferenceModel::Field:
        return QString::fromStdString(HeadingOf(difference.field));
    case DifferenceModel::Stored:
        return QString::fromStdString(difference.stored);
    default:
        return QString::fromStdString(difference.given);
    }
}

} // namespace

void DifferenceModel::Show(std::vector<EmployeeDifference> differences)
{
    beginResetModel();
    m_rows = std::move(differences);
    m_ticked.clear();
    endResetModel();
    emit TicksChanged();
}

void DifferenceModel::TickAll(bool ticked)
{
    m_ticked.clear();
    for (int row = 0; ticked && row < rowCount(); ++row) {
        m_ticked.insert(row);
    }
    if (rowCount() > 0) {
        emit dataChanged(index(0, Employee), index(rowCount() - 1, Employee), {Qt::CheckStateRole});
    }
    emit TicksChanged();
}

TakesDifference DifferenceModel::Ticks() const
{
    std::set<decltype(KeyOf(m_rows.front()))> keys;
    for (const int row : m_ticked) {
        keys.insert(KeyOf(m_rows[static_cast<std::size_t>(row)]));
    }
    return [keys = std::move(keys)](const EmployeeDifference& difference) { return keys.contains(KeyOf(difference)); };
}

int DifferenceModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int DifferenceModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Count;
}

// The tool tip holds the whole text of a cell, which may be too narrow for it.
QVariant DifferenceModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::CheckStateRole && index.column() == Employee) {
        return m_ticked.contains(index.row()) ? Qt::Checked : Qt::Unchecked;
    }
    const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    return isText ? CellOf(m_rows[static_cast<std::size_t>(index.row())], index.column()) : QVariant();
}

bool DifferenceModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != Employee) {
        return false;
    }
    value.toInt() == Qt::Checked ? static_cast<void>(m_ticked.insert(index.row())) : static_cast<void>(m_ticked.erase(index.row()));
    emit dataChanged(index, index, {role});
    emit TicksChanged();
    return true;
}

Qt::ItemFlags DifferenceModel::flags(const QModelIndex& index) const
{
    return QAbstractTableModel::flags(index) | (index.column() == Employee ? Qt::ItemIsUserCheckable : Qt::NoItemFlags);
}

QVariant DifferenceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignLeading | Qt::AlignVCenter);
    }
    return role == Qt::DisplayRole ? QVariant(kHeadings[section]) : QVariant();
}

} // namespace ptk
