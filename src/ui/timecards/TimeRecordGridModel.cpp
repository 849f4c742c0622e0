#include "ui/timecards/TimeRecordGridModel.h"

#include "model/CTimeRecord.h"
#include "office/card/CardTexts.h"
#include "ui/widgets/FindingList.h"
#include "ui/widgets/ThemeIcon.h"

#include <algorithm>
#include <array>
#include <QGuiApplication>
#include <QPalette>

namespace ptk {

namespace {

constexpr std::array<const char*, recordcolumn::Count> kHeadings{"Start", "End", "Total"};
constexpr auto kStillClockedIn = "still clocked in";

constexpr float kTint = 0.25F; // of the colour of a chosen row

QBrush GroupTint()
{
    QColor colour = QGuiApplication::palette().color(QPalette::Highlight);
    colour.setAlphaF(kTint);
    return colour;
}

bool IsStillOpen(const CardLine& line, int column)
{
    return column == recordcolumn::End && line.end.IsZero();
}

} // namespace

void TimeRecordGridModel::SetLines(std::vector<CardLine> lines)
{
    beginResetModel();
    m_lines = std::move(lines);
    endResetModel();
}

void TimeRecordGridModel::Clear()
{
    beginResetModel();
    m_lines.clear();
    m_marks.clear();
    m_edits.clear();
    m_group.clear();
    endResetModel();
}

void TimeRecordGridModel::SetMarks(RowMarks marks)
{
    m_marks = std::move(marks);
    ChangeAll();
}

void TimeRecordGridModel::SetEdits(RecordEdits edits)
{
    m_edits = std::move(edits);
    ChangeAll({Qt::ToolTipRole, Qt::AccessibleDescriptionRole});
}

void TimeRecordGridModel::SetGroup(const std::vector<std::int64_t>& timeRecordIDs)
{
    m_group = {timeRecordIDs.begin(), timeRecordIDs.end()};
    ChangeAll({Qt::BackgroundRole});
}

void TimeRecordGridModel::ChangeAll(const QList<int>& roles)
{
    if (!m_lines.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, recordcolumn::Count - 1), roles);
    }
}

int TimeRecordGridModel::RowOf(std::int64_t timeRecordID) const
{
    const auto its = [&](const CardLine& line) { return line.record->TimeRecordID() == timeRecordID; };
    const auto found = std::find_if(m_lines.begin(), m_lines.end(), its);
    return found == m_lines.end() ? -1 : static_cast<int>(found - m_lines.begin());
}

void TimeRecordGridModel::SetFaded(bool faded)
{
    if (faded == m_faded) {
        return;
    }
    m_faded = faded;
    ChangeAll({Qt::ForegroundRole});
}

QString TimeRecordGridModel::Text(const CardLine& line, int column)
{
    switch (column) {
    case recordcolumn::Start:
        return QString::fromStdString(line.StartText());
    case recordcolumn::End:
        return QString::fromStdString(line.EndText());
    default:
        return QString::fromStdString(line.HoursText());
    }
}

QString TimeRecordGridModel::Note(const CardLine& line, int column)
{
    if (IsStillOpen(line, column)) {
        return kStillClockedIn;
    }
    switch (column) {
    case recordcolumn::Start:
        return QString::fromStdString(WeekdayName(line.start));
    case recordcolumn::End:
        return QString::fromStdString(WeekdayName(line.end));
    default:
        return {};
    }
}

const RowMark* TimeRecordGridModel::Mark(const CardLine& line) const
{
    const auto mark = m_marks.find(line.record->TimeRecordID());
    return mark == m_marks.end() ? nullptr : &mark->second;
}

// Every cell has the note, so that a screen reader says it whichever of them is the current one.
QString TimeRecordGridModel::MarkedNote(const CardLine& line, int column) const
{
    QStringList notes{Note(line, column)};
    if (const RowMark* mark = Mark(line)) {
        notes << QString::fromStdString(mark->text);
    }
    if (const auto edit = m_edits.find(line.record->TimeRecordID()); edit != m_edits.end()) {
        notes << QString::fromStdString(edit->second);
    }
    notes.removeAll(QString());
    return notes.join('\n');
}

QVariant TimeRecordGridModel::Icon(const CardLine& line, int column) const
{
    const RowMark* mark = Mark(line);
    if (mark != nullptr && column == recordcolumn::Start) {
        return ThemeIcon(SeverityIconName(mark->severity));
    }
    return IsStillOpen(line, column) ? QVariant(ThemeIcon("timecards")) : QVariant();
}

int TimeRecordGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

int TimeRecordGridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : recordcolumn::Count;
}

QVariant TimeRecordGridModel::data(const QModelIndex& index, int role) const
{
    const CardLine& line = m_lines.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return Text(line, index.column());
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return MarkedNote(line, index.column());
    case Qt::DecorationRole:
        return Icon(line, index.column());
    case Qt::BackgroundRole:
        return IsInGroup(line.record->TimeRecordID()) ? QVariant(GroupTint()) : QVariant();
    case Qt::ForegroundRole:
        return m_faded ? QVariant(QGuiApplication::palette().brush(QPalette::PlaceholderText)) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == recordcolumn::Total ? QVariant::fromValue(Qt::Alignment(Qt::AlignTrailing | Qt::AlignVCenter))
                                                     : QVariant();
    default:
        return {};
    }
}

QVariant TimeRecordGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return kHeadings.at(static_cast<std::size_t>(section));
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignVCenter | (section == recordcolumn::Total ? Qt::AlignTrailing : Qt::AlignLeading));
    }
    return {};
}

} // namespace ptk
