#include "ui/widgets/ButtonRow.h"

#include <algorithm>
#include <QWidget>

namespace ptk {

namespace {

constexpr int kSpace = 8;
constexpr int kLeastLine = 160; // pixels, enough to read the beginning of a sentence

bool Expands(const QLayoutItem& item)
{
    return item.expandingDirections().testFlag(Qt::Horizontal);
}

} // namespace

ButtonRow::ButtonRow(QWidget* parent) : QLayout(parent)
{
    setSpacing(kSpace);
    setContentsMargins(0, 0, 0, 0);
}

ButtonRow::~ButtonRow() = default;

void ButtonRow::TakeFrom(QLayout& other)
{
    while (QLayoutItem* item = other.takeAt(0)) {
        if (QWidget* widget = item->widget()) {
            addChildWidget(widget);
        }
        addItem(item);
    }
}

void ButtonRow::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
    invalidate();
}

QLayoutItem* ButtonRow::itemAt(int index) const
{
    return index < 0 || index >= count() ? nullptr : m_items[static_cast<std::size_t>(index)].get();
}

QLayoutItem* ButtonRow::takeAt(int index)
{
    if (itemAt(index) == nullptr) {
        return nullptr;
    }
    const auto place = m_items.begin() + index;
    QLayoutItem* item = place->release();
    m_items.erase(place);
    return item;
}

QSize ButtonRow::sizeHint() const
{
    QSize size(0, 0);
    for (const auto& item : m_items) {
        const QSize hint = item->sizeHint();
        size = {size.width() + hint.width() + spacing(), std::max(size.height(), hint.height())};
    }
    return size;
}

QSize ButtonRow::minimumSize() const
{
    QSize size(0, 0);
    for (const auto& item : m_items) {
        size = size.expandedTo(item->minimumSize());
    }
    return size;
}

int ButtonRow::heightForWidth(int width) const
{
    int height = 0;
    for (const Row& row : Rows(width)) {
        height += row.height + (height == 0 ? 0 : spacing());
    }
    return height;
}

void ButtonRow::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    int top = rect.top();
    for (const Row& row : Rows(rect.width())) {
        Place(row, top);
        top += row.height + spacing();
    }
}

std::vector<ButtonRow::Row> ButtonRow::Rows(int width) const
{
    std::vector<Row> rows(1);
    QLayoutItem* line = nullptr;
    for (const auto& item : m_items) {
        if (item->isEmpty()) {
            continue;
        }
        if (Expands(*item)) {
            line = item.get();
            continue;
        }
        if (!rows.back().items.empty() && rows.back().width + spacing() + item->sizeHint().width() > width) {
            rows.emplace_back();
        }
        AddTo(rows.back(), item.get());
    }
    if (line != nullptr) {
        AddLine(rows, line, width);
    }
    return rows;
}

void ButtonRow::AddTo(Row& row, QLayoutItem* item) const
{
    const QSize hint = item->sizeHint();
    row.width += hint.width() + (row.items.empty() ? 0 : spacing());
    row.height = std::max(row.height, hint.height());
    row.items.push_back(item);
}

void ButtonRow::AddLine(std::vector<Row>& rows, QLayoutItem* line, int width) const
{
    auto row = std::min_element(rows.begin(), rows.end(), [](const Row& one, const Row& other) { return one.width < other.width; });
    if (width - row->width - spacing() < std::min(kLeastLine, line->sizeHint().width())) {
        row = rows.emplace(rows.begin());
    }
    row->line = line;
    row->height = std::max(row->height, line->sizeHint().height());
}

void ButtonRow::Place(const Row& row, int top) const
{
    const QRect room = geometry();
    int left = room.right() + 1 - row.width;
    if (row.line != nullptr) {
        row.line->setGeometry(
            {QPoint(room.left(), top), QPoint(row.items.empty() ? room.right() : left - spacing() - 1, top + row.height - 1)});
    }
    for (QLayoutItem* item : row.items) {
        const QSize size = item->sizeHint();
        item->setGeometry({QPoint(left, top + (row.height - size.height()) / 2), size});
        left += size.width() + spacing();
    }
}

void FoldButtons(QBoxLayout& layout, QLayout* buttons)
{
    auto* row = new ButtonRow;
    layout.addLayout(row);
    const std::unique_ptr<QLayout> before(buttons);
    row->TakeFrom(*before);
}

} // namespace ptk
