// The rows of the time record grid.
#pragma once

#include "model/CTimeRecord.h"

#include <memory>
#include <QAbstractTableModel>
#include <vector>

namespace ptk {

class CTimeRecordList;

namespace recordcolumn {
inline constexpr int Start = 0;
inline constexpr int End = 1;
inline constexpr int Total = 2; // hours
inline constexpr int Count = 3;
} // namespace recordcolumn

// Shows the records as they were when the grid was filled, whatever an editor does to them since; their texts are made as they are painted.
class TimeRecordGridModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetRecords(CTimeRecordList& records);
    void Clear();

    // The record itself, which the list may have let go of by now. REQUIRES: a row of the grid.
    std::shared_ptr<CTimeRecord> Record(int row) const { return m_rows.at(static_cast<std::size_t>(row)).record; }
    bool Shows(const std::shared_ptr<CTimeRecord>& record) const;
    QString Text(int row, int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row
    {
        std::shared_ptr<CTimeRecord> record;
        CTimeRecord shown;
    };

    std::vector<Row> m_rows;
};

} // namespace ptk
