// A line of plain text that gives way to the window's width: what does not fit gives way to dots and stands whole in the tool tip.
#pragma once

#include <QLabel>

namespace ptk {

class ElidedLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr) : ElidedLabel(QString(), parent) {}
    explicit ElidedLabel(const QString& text, QWidget* parent = nullptr);

    // Where what does not fit is left out, at the end unless told otherwise.
    void Cut(Qt::TextElideMode where);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::TextElideMode m_cut = Qt::ElideRight;
};

} // namespace ptk
