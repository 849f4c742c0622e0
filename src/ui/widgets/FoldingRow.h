// A layout that puts its items side by side where the width allows it, and below each other where it does not.
#pragma once

#include <QBoxLayout>

namespace ptk {

// The least width is that of the widest item alone. There are no margins.
class FoldingRow final : public QBoxLayout
{
    Q_OBJECT

public:
    explicit FoldingRow(QWidget* parent = nullptr);

    QSize minimumSize() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    int minimumHeightForWidth(int width) const override { return heightForWidth(width); }
    void setGeometry(const QRect& rect) override;

private:
    [[nodiscard]] bool Folds(int width) const;
};

} // namespace ptk
