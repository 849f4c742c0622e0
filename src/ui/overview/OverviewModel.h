// The rows of the payday overview.
#pragma once

#include "office/overview/OverviewTable.h"

#include <memory>
#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <vector>

namespace ptk {

class OverviewReading;

// Holds the rows in the order in which they are read. It can show a reading that still goes on: then it holds what has been read so far.
class OverviewModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    // Adds the rows that were read since the last call. Another reading than before replaces all rows.
    void Show(const std::shared_ptr<const OverviewReading>& reading);

    // Shows all rows of the reading anew. Needed where rows were put between those that were shown.
    void ShowAnew(const std::shared_ptr<const OverviewReading>& reading);

    // REQUIRES: HasReading, also for Rows and Row.
    [[nodiscard]] const OverviewReading& Reading() const { return *m_reading; }

    [[nodiscard]] const std::vector<OverviewRow>& Rows() const;
    [[nodiscard]] const OverviewRow& Row(int row) const { return Rows().at(static_cast<std::size_t>(row)); }
    [[nodiscard]] bool HasReading() const { return m_reading != nullptr; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::shared_ptr<const OverviewReading> m_reading;
    int m_shown = 0;
};

// Sorts the rows of an OverviewModel by a column and, where that is wanted, leaves out people without problems.
class SortedOverview final : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit SortedOverview(OverviewModel& rows);

    void ShowOnlyProblems(bool only);
    [[nodiscard]] bool OnlyProblems() const { return m_onlyProblems; }

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    OverviewModel& m_rows;
    bool m_onlyProblems = false;
};

// The lines below the rows of the overview: the sums, or the people who were left out.
class OverviewLinesModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    OverviewLinesModel(bool bold, QObject* parent) : QAbstractTableModel(parent), m_bold(bold) {}

    void Show(std::vector<OverviewCells> lines);

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : static_cast<int>(m_lines.size()); }
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<OverviewCells> m_lines;
    bool m_bold;
};

} // namespace ptk
