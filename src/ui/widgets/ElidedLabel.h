// A label for one line of plain text. What does not fit its width is replaced by dots; the whole text then stands in the tool tip.
#pragma once

#include <QLabel>

namespace ptk {

class ElidedLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr) : ElidedLabel(QString(), parent) {}
    explicit ElidedLabel(const QString& text, QWidget* parent = nullptr);

    // Sets where the text is cut; at the end unless this is called.
    void Cut(Qt::TextElideMode where);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::TextElideMode m_cut = Qt::ElideRight;
};

} // namespace ptk
