// The rows of the account of a payday.
#pragma once

#include "office/payday/AccountTable.h"

#include <memory>
#include <QAbstractTableModel>

namespace ptk {

class AccountModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    // Replaces all rows; nullptr: there are none.
    void Show(std::shared_ptr<const PaydayAccount> account);

    // nullptr where there is no such row.
    [[nodiscard]] const AccountPerson* Person(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::shared_ptr<const PaydayAccount> m_account;
};

} // namespace ptk
