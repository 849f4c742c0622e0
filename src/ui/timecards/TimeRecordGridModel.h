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

// Shows the lines as they were when the grid was filled; their texts are made as they are painted.
// The weekday of a date, of an end that is not there yet that somebody is at work, what the check says of a row, and who entered or changed
// it by hand stand in tool tips and in descriptions for readers; a row of which the check says something has an icon.
class TimeRecordGridModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetLines(std::vector<CardLine> lines);
    void Clear();

    // What the check says, by record.
    void SetMarks(RowMarks marks);

    void SetEdits(RecordEdits edits);

    // Their rows are tinted, as those that one sentence is about.
    void SetGroup(const std::vector<std::int64_t>& timeRecordIDs);
    [[nodiscard]] bool IsInGroup(std::int64_t timeRecordID) const { return m_group.contains(timeRecordID); }

    // Greys all rows.
    void SetFaded(bool faded);

    // The record itself, which the list may have let go of by now. REQUIRES: a row of the grid.
    [[nodiscard]] std::shared_ptr<CTimeRecord> Record(int row) const { return m_lines.at(static_cast<std::size_t>(row)).record; }

    // -1 when there is none.
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
