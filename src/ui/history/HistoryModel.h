// The rows of the history, newest first. Older ones are read when the view asks for them.
#pragma once

#include "office/history/HistoryReading.h"

#include <memory>
#include <QAbstractTableModel>

namespace ptk {

class HistoryModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    // Replaces all rows by what has been read of `reading` so far; nullptr: there are none.
    void Show(std::shared_ptr<HistoryReading> reading);

    // REQUIRES: there is such a row.
    [[nodiscard]] const HistoryCells& Cells(int row) const { return m_reading->Rows().at(static_cast<std::size_t>(row)); }

    // False after a failure, too: else the view would ask again at once.
    bool canFetchMore(const QModelIndex& parent = {}) const override;
    void fetchMore(const QModelIndex& parent = {}) override;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    // More rows could not be read; `reason` says why.
    void Failed(const QString& reason);

private:
    std::shared_ptr<HistoryReading> m_reading; // nullptr before the first
    int m_shown = 0;
    bool m_failed = false;
};

} // namespace ptk
