#include "ui/mend/MendModel.h"

#include "model/CEmployee.h"
#include "platform/text/Text.h"
#include "platform/text/TypedTime.h"
#include "ui/widgets/FindingList.h"
#include "ui/widgets/ThemeIcon.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

namespace ptk {

namespace {

constexpr const char* kHeadings[] = {"Name", "What Was Found", "What Can Be Done", "End", "Hours Before", "Hours After"};
constexpr auto kToBeJudged = "look at the card";
constexpr auto kJudgedTip = "Nothing is offered for this one: somebody has to look at the card";
constexpr auto kNoHours = "not readable";
constexpr auto kEndTip = "Type another time (F2)";

QString ClockText(DateTime moment)
{
    return QString::fromStdString(FormatDateTime(moment, moment.Time().second == 0 ? "hh:mm AM/PM" : "hh:mm:ss AM/PM"));
}

QString ShownHours(const std::optional<std::string>& hours)
{
    return hours ? QString::fromStdString(*hours) : QString(kNoHours);
}

bool IsFigure(int column)
{
    return static_cast<MendColumn>(column) >= MendColumn::End;
}

QVariant AlignmentIn(int column)
{
    return QVariant::fromValue(Qt::Alignment(IsFigure(column) ? Qt::AlignTrailing : Qt::AlignLeading) | Qt::AlignVCenter);
}

} // namespace

MendModel::MendModel(MendPlan& plan, QObject* parent)
    : QAbstractTableModel(parent), m_plan(plan), m_blank(QApplication::style()->pixelMetric(QStyle::PM_IndicatorWidth), 1)
{
    m_blank.fill(Qt::transparent);
}

int MendModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_plan.Lines().size());
}

int MendModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(std::size(kHeadings));
}

QString MendModel::CellOf(const QModelIndex& index) const
{
    const MendLine& line = Line(index);
    const auto row = static_cast<std::size_t>(index.row());
    switch (static_cast<MendColumn>(index.column())) {
    case MendColumn::Name:
        return QString::fromStdString(m_plan.PersonOf(line).DisplayName());
    case MendColumn::Finding:
        return QString::fromStdString(line.finding.text);
    case MendColumn::Remedy:
        return line.remedy ? QString::fromStdString(line.remedy->what) : QString(kToBeJudged);
    case MendColumn::End:
        return m_plan.HasEnd(row) ? ClockText(m_plan.EndOf(row)) : QString();
    case MendColumn::HoursBefore:
        return ShownHours(m_plan.HoursBefore(line));
    case MendColumn::HoursAfter:
        return ShownHours(m_plan.HoursAfter(line));
    }
    return {};
}

QString MendModel::TipOf(const QModelIndex& index) const
{
    if (!Line(index).remedy) {
        return kJudgedTip;
    }
    return static_cast<MendColumn>(index.column()) == MendColumn::End && m_plan.HasEnd(static_cast<std::size_t>(index.row()))
               ? QString(kEndTip)
               : CellOf(index);
}

// A blank icon moves names without a tick box under the names that have one.
QVariant MendModel::IconOf(const QModelIndex& index) const
{
    switch (static_cast<MendColumn>(index.column())) {
    case MendColumn::Name:
        return Line(index).remedy ? QVariant() : QVariant(m_blank);
    case MendColumn::Finding:
        return ThemeIcon(SeverityIconName(SeverityOf(Line(index).finding.kind)));
    default:
        return {};
    }
}

QVariant MendModel::data(const QModelIndex& index, int role) const
{
    const auto column = static_cast<MendColumn>(index.column());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return CellOf(index);
    case Qt::ToolTipRole:
        return TipOf(index);
    case Qt::TextAlignmentRole:
        return AlignmentIn(index.column());
    case Qt::CheckStateRole:
        return column == MendColumn::Name && Line(index).remedy ? QVariant(Line(index).ticked ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::DecorationRole:
        return IconOf(index);
    case Qt::ForegroundRole:
        return column == MendColumn::Remedy && !Line(index).remedy ? QVariant(QGuiApplication::palette().color(QPalette::PlaceholderText))
                                                                   : QVariant();
    default:
        return {};
    }
}

QVariant MendModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return AlignmentIn(section);
    }
    return role == Qt::DisplayRole ? QVariant(kHeadings[section]) : QVariant();
}

Qt::ItemFlags MendModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    flags.setFlag(Qt::ItemIsUserCheckable, static_cast<MendColumn>(index.column()) == MendColumn::Name && Line(index).remedy);
    flags.setFlag(Qt::ItemIsEditable,
                  static_cast<MendColumn>(index.column()) == MendColumn::End && m_plan.HasEnd(static_cast<std::size_t>(index.row())));
    return flags;
}

bool MendModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const auto line = static_cast<std::size_t>(index.row());
    if (role == Qt::CheckStateRole) {
        m_plan.Tick(line, value.toInt() == Qt::Checked);
    } else if (role != Qt::EditRole || !TakeEnd(line, value.toString())) {
        return false;
    }
    TellChanged();
    return true;
}

// An end that is left as it was does not tick the line.
bool MendModel::TakeEnd(std::size_t line, const QString& text)
{
    if (text == ClockText(m_plan.EndOf(line))) {
        return false;
    }
    const auto time = ReadTypedTime(text.toStdString());
    if (!time) {
        emit Refused(text);
        return false;
    }
    m_plan.EndAt(line, *time);
    return true;
}

void MendModel::Toggle(int row)
{
    m_plan.Tick(static_cast<std::size_t>(row), !m_plan.Lines().at(static_cast<std::size_t>(row)).ticked);
    TellChanged();
}

// All rows have to be drawn anew: a tick can take another one away, and it changes the hours in all lines of the card.
void MendModel::TellChanged()
{
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit Changed();
}

} // namespace ptk
