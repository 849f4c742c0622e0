#include "ui/boxes/FieldWidth.h"

#include <QWidget>

namespace ptk {

// In the known styles the frame and the space inside it together take less than the height of a line.
void LimitWidth(QWidget& field, int digits)
{
    const QFontMetrics font = field.fontMetrics();
    field.setMaximumWidth(digits * font.horizontalAdvance('0') + font.height());
}

} // namespace ptk
