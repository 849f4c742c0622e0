// What Enter does anywhere on a page, as in a dialog.
#pragma once

class QWidget;

namespace ptk {

// Presses the button that has the focus, or else the page's default button where there is one and it is enabled.
void PressDefaultButton(const QWidget& page, QWidget* focused);

} // namespace ptk
