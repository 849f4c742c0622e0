#include "ui/payday/AccountModel.h"

#include "ui/widgets/ThemeIcon.h"

#include <utility>

namespace ptk {

namespace {

QString CellOf(const AccountCells& cells, int column)
{
    return QString::fromStdString(cells.at(static_cast<std::size_t>(column)));
}

// Names stand to the left, figures to the right.
QVariant Alignment(int column)
{
    const bool name = static_cast<AccountColumn>(column) == AccountColumn::Name;
    return QVariant::fromValue(Qt::Alignment(name ? Qt::AlignLeading : Qt::AlignTrailing) | Qt::AlignVCenter);
}

} // namespace

void AccountModel::Show(std::shared_ptr<const PaydayAccount> account)
{
    beginResetModel();
    m_account = std::move(account);
    endResetModel();
}

const AccountPerson* AccountModel::Person(int row) const
{
    return row >= 0 && row < rowCount() ? &m_account->persons[static_cast<std::size_t>(row)] : nullptr;
}

int AccountModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || m_account == nullptr ? 0 : static_cast<int>(m_account->persons.size());
}

int AccountModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(kAccountColumns);
}

// An icon marks the people whose card differs from what they were paid.
QVariant AccountModel::data(const QModelIndex& index, int role) const
{
    const AccountPerson& person = *Person(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return CellOf(AccountCellsOf(person), index.column());
    case Qt::TextAlignmentRole:
        return Alignment(index.column());
    case Qt::DecorationRole:
        return person.changed && static_cast<AccountColumn>(index.column()) == AccountColumn::Owed ? QVariant(ThemeIcon("problem"))
                                                                                                   : QVariant();
    default:
        return {};
    }
}

QVariant AccountModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return Alignment(section);
    }
    return role == Qt::DisplayRole ? CellOf(AccountHeading(), section) : QVariant();
}

} // namespace ptk
