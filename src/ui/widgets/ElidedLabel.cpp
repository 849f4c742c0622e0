#include "ui/widgets/ElidedLabel.h"

#include <QPainter>

namespace ptk {

ElidedLabel::ElidedLabel(const QString& text, QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setText(text);
}

void ElidedLabel::Cut(Qt::TextElideMode where)
{
    m_cut = where;
    update();
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    const QString shown = fontMetrics().elidedText(text(), m_cut, contentsRect().width());
    setToolTip(shown == text() ? QString() : text());
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

} // namespace ptk
