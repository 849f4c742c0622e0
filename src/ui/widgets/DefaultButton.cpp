#include "ui/widgets/DefaultButton.h"

#include <QPushButton>

namespace ptk {

void PressDefaultButton(const QWidget& page, QWidget* focused)
{
    if (auto* button = qobject_cast<QPushButton*>(focused)) {
        return button->click();
    }
    for (auto* button : page.findChildren<QPushButton*>()) {
        if (button->isDefault() && button->isEnabled()) {
            return button->click();
        }
    }
}

} // namespace ptk
