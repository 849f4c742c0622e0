#include "ui/pages/TimeRecordGrid.h"

#include <QKeyEvent>
#include <QPainter>

namespace ptk {

namespace {

constexpr int kMargin = 12; // pixels around the hint

} // namespace

TimeRecordGrid::TimeRecordGrid(QWidget* parent) : QTableView(parent)
{
    connect(this, &QTableView::doubleClicked, this, &TimeRecordGrid::EditAsked);
}

void TimeRecordGrid::SetHint(const QString& text)
{
    m_hint = text;
    setAccessibleDescription(text);
    viewport()->update();
}

QSize TimeRecordGrid::sizeHint() const
{
    return {QTableView::sizeHint().width(), minimumHeight()};
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

void TimeRecordGrid::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (model()->rowCount() > 0) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QRect room = viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    painter.drawText(room, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, m_hint);
}

} // namespace ptk
