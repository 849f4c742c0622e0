// The rows of the time record grid.
#pragma once

#include "model/CardLine.h"
#include "office/card/CardFindings.h"
#include "office/history/RecordEdits.h"

#include <memory>
#include <QAbstractTableModel>
#include <set>
#include <vector>

namespace ptk {

namespace recordcolumn {
inline constexpr int Start = 0;
inline constexpr int End = 1;
inline constexpr int Total = 2; // hours
inline constexpr int Count = 3;
} // namespace recordcolumn

// Shows the lines as they were when the grid was filled; makes their texts when they are painted. Tool tips and the descriptions for screen
// readers say: the weekday of a date, or that somebody is still at work where there is no end yet; what the check says of a row; and who
// entered or changed it by hand. A row of which the check says something has an icon.
class TimeRecordGridModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetLines(std::vector<CardLine> lines);
    void Clear();

    // Sets what the check says of each record.
    void SetMarks(RowMarks marks);

    void SetEdits(RecordEdits edits);

    // Tints the rows of these records, which one sentence of the check is about.
    void SetGroup(const std::vector<std::int64_t>& timeRecordIDs);
    [[nodiscard]] bool IsInGroup(std::int64_t timeRecordID) const { return m_group.contains(timeRecordID); }

    // Shows all rows in grey.
    void SetFaded(bool faded);

    // The record of a row, even where the card's list does not hold it any more. REQUIRES: a row of the grid.
    [[nodiscard]] std::shared_ptr<CTimeRecord> Record(int row) const { return m_lines.at(static_cast<std::size_t>(row)).record; }

    // The row of this record; -1 when it has none.
    [[nodiscard]] int RowOf(std::int64_t timeRecordID) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] static QString Text(const CardLine& line, int column);
    [[nodiscard]] static QString Note(const CardLine& line, int column);

    // nullptr for a row without a finding.
    [[nodiscard]] const RowMark* Mark(const CardLine& line) const;

    void ChangeAll(const QList<int>& roles = {});
    [[nodiscard]] QString MarkedNote(const CardLine& line, int column) const;
    [[nodiscard]] QVariant Icon(const CardLine& line, int column) const;

    std::vector<CardLine> m_lines;
    RowMarks m_marks;
    RecordEdits m_edits;
    std::set<std::int64_t> m_group;
    bool m_faded = false;
};

} // namespace ptk
