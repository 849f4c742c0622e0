// The fields of known employees that a file has otherwise, each to be ticked.
#pragma once

#include "office/sheet/EmployeeLines.h"

#include <QAbstractTableModel>
#include <set>
#include <vector>

namespace ptk {

class DifferenceModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Employee,
        Field,
        Stored,
        Given,
        Count
    };

    using QAbstractTableModel::QAbstractTableModel;

    // None of them ticked.
    void Show(std::vector<EmployeeDifference> differences);

    void TickAll(bool ticked);

    [[nodiscard]] int Ticked() const { return static_cast<int>(m_ticked.size()); }

    // Whether this one, as it was shown, is ticked.
    [[nodiscard]] TakesDifference Ticks() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    void TicksChanged();

private:
    std::vector<EmployeeDifference> m_rows;
    std::set<int> m_ticked; // rows
};

} // namespace ptk
