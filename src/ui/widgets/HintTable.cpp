#include "ui/widgets/HintTable.h"

#include <QPainter>

namespace ptk {

namespace {

constexpr int kMargin = 12; // pixels around the hint

} // namespace

void HintTable::SetHint(const QString& text)
{
    m_hint = text;
    setAccessibleDescription(text);
    viewport()->update();
}

void HintTable::paintEvent(QPaintEvent* event)
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
