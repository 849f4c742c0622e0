#include "ui/widgets/FoldingRow.h"

#include <algorithm>

namespace ptk {

namespace {

// The lengths of all items and the spaces between them.
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

FoldingRow::FoldingRow(QWidget* parent) : QBoxLayout(LeftToRight, parent)
{
    setContentsMargins(0, 0, 0, 0);
}

bool FoldingRow::Folds(int width) const
{
    return Sum(*this, LeastWidth) > width;
}

QSize FoldingRow::minimumSize() const
{
    return {Largest(*this, LeastWidth), Largest(*this, Height)};
}

int FoldingRow::heightForWidth(int width) const
{
    return Folds(width) ? Sum(*this, Height) : Largest(*this, Height);
}

void FoldingRow::setGeometry(const QRect& rect)
{
    setDirection(Folds(rect.width()) ? TopToBottom : LeftToRight);
    QBoxLayout::setGeometry(rect);
}

} // namespace ptk
