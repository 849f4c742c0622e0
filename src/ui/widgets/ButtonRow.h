// The layout of a page's buttons and of the quiet line beside them: one row where the width allows it, several where it does not.
#pragma once

#include <memory>
#include <QBoxLayout>
#include <QLayout>
#include <vector>

namespace ptk {

// Buttons keep their own sizes and stand at the right. The one item that expands, the quiet line, takes what is left of the emptiest row,
// or a row of its own above the others where that is too little for its text. The least width is that of the widest button.
class ButtonRow final : public QLayout
{
    Q_OBJECT

public:
    explicit ButtonRow(QWidget* parent = nullptr);
    ~ButtonRow() override;

    // Takes over all items of the other layout, in their order.
    void TakeFrom(QLayout& other);

    // Takes ownership of the item.
    void addItem(QLayoutItem* item) override;

    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    // The size of all items in one row.
    QSize sizeHint() const override;

    QSize minimumSize() const override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    void setGeometry(const QRect& rect) override;

private:
    struct Row
    {
        std::vector<QLayoutItem*> items; // from left to right
        QLayoutItem* line = nullptr;     // the expanding one, left of them
        int width = 0;                   // of the items and the spaces between them
        int height = 0;
    };

    [[nodiscard]] std::vector<Row> Rows(int width) const;
    void AddTo(Row& row, QLayoutItem* item) const;
    void AddLine(std::vector<Row>& rows, QLayoutItem* line, int width) const;
    void Place(const Row& row, int top) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

// Puts the items of `buttons` into a ButtonRow at the end of the window's layout, and deletes `buttons`.
void FoldButtons(QBoxLayout& layout, QLayout* buttons);

} // namespace ptk
