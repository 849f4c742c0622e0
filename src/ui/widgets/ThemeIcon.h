// The program's own icons, drawn in the colours of the user's theme.
#pragma once

#include <QIcon>

namespace ptk {

// The icon data/icons/NAME.svg. What is drawn there in "currentColor" takes the colour of the palette's window text each time it is
// painted, so that both light and dark themes show it, at any scaling.
[[nodiscard]] QIcon ThemeIcon(const QString& name);

} // namespace ptk
