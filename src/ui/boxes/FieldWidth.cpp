#include "ui/boxes/FieldWidth.h"

#include <QWidget>

namespace ptk {

// The frame and the air of the known styles take less than a line's height together.
void LimitWidth(QWidget& field, int digits)
{
    const QFontMetrics font = field.fontMetrics();
    field.setMaximumWidth(digits * font.horizontalAdvance('0') + font.height());
}

} // namespace ptk
