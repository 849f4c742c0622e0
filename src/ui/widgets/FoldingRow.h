// Widgets side by side where the width allows it, below each other where it does not.
#pragma once

#include <QWidget>

class QBoxLayout;

namespace ptk {

// Its layout must be a box layout of widgets; the row turns its direction. The least width is that of the widest widget alone.
class FoldingRow : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QBoxLayout* Row() const;
    bool Folds(int width) const;
    void Fold();
};

} // namespace ptk
