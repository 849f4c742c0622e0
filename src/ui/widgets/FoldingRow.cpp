#include "ui/widgets/FoldingRow.h"

#include <algorithm>
#include <QBoxLayout>
#include <QEvent>

namespace ptk {

namespace {

// What one item gives, for each item, and the spaces between them.
template <typename Length>
int Sum(const QBoxLayout& row, Length length)
{
    int sum = (row.count() - 1) * row.spacing();
    for (int i = 0; i < row.count(); ++i) {
        sum += length(*row.itemAt(i));
    }
    return sum;
}

template <typename Length>
int Largest(const QBoxLayout& row, Length length)
{
    int largest = 0;
    for (int i = 0; i < row.count(); ++i) {
        largest = std::max(largest, length(*row.itemAt(i)));
    }
    return largest;
}

int LeastWidth(const QLayoutItem& item)
{
    return item.minimumSize().width();
}

int Height(const QLayoutItem& item)
{
    return item.sizeHint().height();
}

} // namespace

QBoxLayout* FoldingRow::Row() const
{
    return qobject_cast<QBoxLayout*>(layout());
}

bool FoldingRow::Folds(int width) const
{
    return Sum(*Row(), LeastWidth) > width;
}

QSize FoldingRow::minimumSizeHint() const
{
    return {Largest(*Row(), LeastWidth), Largest(*Row(), Height)};
}

int FoldingRow::heightForWidth(int width) const
{
    return Folds(width) ? Sum(*Row(), Height) : Largest(*Row(), Height);
}

void FoldingRow::Fold()
{
    Row()->setDirection(Folds(width()) ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

// The layout would hold the widget to the width of all its widgets in a row.
bool FoldingRow::event(QEvent* event)
{
    if (event->type() == QEvent::Polish) {
        Row()->setSizeConstraint(QLayout::SetNoConstraint);
    }
    if (event->type() == QEvent::LayoutRequest) {
        Fold();
    }
    return QWidget::event(event);
}

void FoldingRow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Fold();
}

} // namespace ptk
