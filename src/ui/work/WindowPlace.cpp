#include "ui/work/WindowPlace.h"

#include "ui/work/KeepSettings.h"

#include <QApplication>
#include <QScreen>
#include <QSettings>
#include <QWidget>

#include <algorithm>

namespace ptk {

namespace {

constexpr int kTitleButtons = 120; // pixels beside a title: the window's icon and its buttons
constexpr double kTitleFont = 1.2; // times the application's font: a title's font can be wider
constexpr QSize kFrame(16, 48);    // pixels that window managers take for borders and title, generously

QString Key(const QString& name)
{
    return "windows/" + name;
}

} // namespace

QRect RoomFor(const QWidget& window)
{
    const QRect screen = window.screen()->availableGeometry();
    return {screen.topLeft(), screen.size() - kFrame};
}

int WidthFor(const QString& title)
{
    QFont font = QApplication::font();
    font.setBold(true);
    return static_cast<int>(QFontMetrics(font).horizontalAdvance(title) * kTitleFont) + kTitleButtons;
}

// A window that is as large as it was on a larger screen, or at a smaller scale, would have its buttons out of sight.
void RestorePlace(QWidget& window, const QString& name, QSize first)
{
    const bool kept = window.restoreGeometry(QSettings().value(Key(name)).toByteArray());
    const QRect room = RoomFor(window);
    window.resize((kept ? window.size() : first).boundedTo(room.size()));
    if (kept) {
        window.move(std::clamp(window.x(), room.left(), room.right() + 1 - window.width()),
                    std::clamp(window.y(), room.top(), room.bottom() + 1 - window.height()));
    }
}

void StorePlace(const QWidget& window, const QString& name)
{
    KeepSettings({{Key(name), window.saveGeometry()}});
}

void BringForward(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
}

} // namespace ptk
