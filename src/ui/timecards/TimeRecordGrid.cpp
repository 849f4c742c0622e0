#include "ui/timecards/TimeRecordGrid.h"

#include <QKeyEvent>

namespace ptk {

TimeRecordGrid::TimeRecordGrid(QWidget* parent) : HintTable(parent)
{
    connect(this, &QTableView::doubleClicked, this, &TimeRecordGrid::EditAsked);
}

QSize TimeRecordGrid::sizeHint() const
{
    return {QTableView::sizeHint().width(), minimumHeight()};
}

void TimeRecordGrid::initViewItemOption(QStyleOptionViewItem* option) const
{
    HintTable::initViewItemOption(option);
    option->state |= QStyle::State_Active;
}

void TimeRecordGrid::resizeEvent(QResizeEvent* event)
{
    HintTable::resizeEvent(event);
    if (selectionModel()->hasSelection()) {
        scrollTo(currentIndex());
    }
}

void TimeRecordGrid::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && selectionModel()->hasSelection()) {
        emit EditAsked();
        return;
    }
    QTableView::keyPressEvent(event);
}

} // namespace ptk
