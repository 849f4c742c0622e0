// The rows of findings of several people, each with what can be done about it, which can be ticked and changed.
#pragma once

#include "office/card/MendPlan.h"

#include <QAbstractTableModel>
#include <QPixmap>

namespace ptk {

enum class MendColumn
{
    Name, // with the tick box
    Finding,
    Remedy,
    End,
    HoursBefore,
    HoursAfter
};

// Shows a plan, and changes that plan when the user ticks a line or types another end.
class MendModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    // The plan outlives it.
    MendModel(MendPlan& plan, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    void Toggle(int row);

signals:
    // What is ticked has changed, or the end that a remedy gives a shift.
    void Changed();

    // `text` was typed as the end of a shift and is no time of day.
    void Refused(const QString& text);

private:
    [[nodiscard]] const MendLine& Line(const QModelIndex& index) const { return m_plan.Lines().at(static_cast<std::size_t>(index.row())); }
    [[nodiscard]] QString CellOf(const QModelIndex& index) const;
    [[nodiscard]] QVariant IconOf(const QModelIndex& index) const;
    [[nodiscard]] QString TipOf(const QModelIndex& index) const;
    [[nodiscard]] bool TakeEnd(std::size_t line, const QString& text);
    void TellChanged();

    MendPlan& m_plan;
    QPixmap m_blank; // as wide as a tick
};

} // namespace ptk
