// A line of plain text that gives way to the window's width: what does not fit ends in dots and stands whole in the tool tip.
#pragma once

#include <QLabel>

namespace ptk {

class ElidedLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr) : ElidedLabel(QString(), parent) {}
    explicit ElidedLabel(const QString& text, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ptk
