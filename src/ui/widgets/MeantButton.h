// Enter anywhere on a page, as in a dialog.
#pragma once

class QWidget;

namespace ptk {

// Presses the button that has the focus, or else the enabled default one of the page, where there is one.
void PressMeantButton(const QWidget& page, QWidget* focused);

} // namespace ptk
