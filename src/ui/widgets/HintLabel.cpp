#include "ui/widgets/HintLabel.h"

#include "ui/widgets/Spoken.h"

namespace ptk {

HintLabel::HintLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    MakeMessage(*this);
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
    TellAloud(*this);
}

} // namespace ptk
