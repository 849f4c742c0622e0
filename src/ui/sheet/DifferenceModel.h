// The rows of differences: fields of known employees whose value in the file is not the stored one. Each can be ticked.
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

    // Replaces all rows; none is ticked.
    void Show(std::vector<EmployeeDifference> differences);

    void TickAll(bool ticked);

    [[nodiscard]] int Ticked() const { return static_cast<int>(m_ticked.size()); }

    // Answers whether a difference is ticked. One whose stored or given value is not the one that was shown counts as not ticked.
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
