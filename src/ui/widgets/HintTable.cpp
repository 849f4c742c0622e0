#include "ui/widgets/HintTable.h"

#include <QPainter>

namespace ptk {

namespace {

constexpr int kMargin = 12; // pixels around the hint

} // namespace

void HintTable::SetHint(const QString& text)
{
    m_hint = text;
    TellHint();
    viewport()->update();
}

void HintTable::reset()
{
    QTableView::reset();
    TellHint();
}

void HintTable::rowsInserted(const QModelIndex& parent, int first, int last)
{
    QTableView::rowsInserted(parent, first, last);
    TellHint();
}

bool HintTable::IsEmpty() const
{
    return model() == nullptr || model()->rowCount() == 0;
}

void HintTable::TellHint()
{
    setAccessibleDescription(IsEmpty() ? m_hint : QString());
}

void HintTable::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (!IsEmpty()) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QRect room = viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    painter.drawText(room, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, m_hint);
}

} // namespace ptk
