// Where a window stood and how large it was, kept in the user's settings from one session to the next.
#pragma once

#include <QRect>
#include <QString>

class QWidget;

namespace ptk {

// What the window's screen has to give, less what the window manager takes for borders and a title.
[[nodiscard]] QRect RoomFor(const QWidget& window);

// How wide a window has to be at least for the whole title to stand in its frame.
[[nodiscard]] int WidthFor(const QString& title);

// Gives the window the size it last had under that name, `first` before that; never larger than its screen nor off any screen.
void RestorePlace(QWidget& window, const QString& name, QSize first);
void StorePlace(const QWidget& window, const QString& name);

// Before all others, with the keyboard, also where it was minimized.
void BringForward(QWidget& window);

} // namespace ptk
