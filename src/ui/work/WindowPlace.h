// Where a window stood and how large it was, kept in the user's settings from one session to the next.
#pragma once

#include <QRect>
#include <QString>

class QWidget;

namespace ptk {

// The room on the window's screen for its content: the screen less what the window manager takes for borders and a title.
[[nodiscard]] QRect RoomFor(const QWidget& window);

// The least width in pixels of a window in whose frame the whole title is seen.
[[nodiscard]] int WidthFor(const QString& title);

// Gives the window the place and size that it last had under that name, at first the size `first`. It is never larger than its screen nor
// off it.
void RestorePlace(QWidget& window, const QString& name, QSize first);
void StorePlace(const QWidget& window, const QString& name);

// Puts the window in front of all others and gives it the keyboard, also where it was minimized.
void BringForward(QWidget& window);

} // namespace ptk
