#include "ui/widgets/HintLabel.h"

#include <QAccessible>

namespace ptk {

HintLabel::HintLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

void HintLabel::KeepRoom(int lines)
{
    setAlignment(Qt::AlignLeading | Qt::AlignTop);
    setMinimumHeight(lines * fontMetrics().lineSpacing());
}

void HintLabel::Say(const QString& text)
{
    if (text == this->text()) {
        return;
    }
    setText(text);
    if (!text.isEmpty()) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

} // namespace ptk
