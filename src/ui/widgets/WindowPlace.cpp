#include "ui/widgets/WindowPlace.h"

#include <QScreen>
#include <QSettings>
#include <QWidget>

namespace ptk {

namespace {

constexpr QSize kFrame(16, 48); // pixels that window managers take for borders and title, generously

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

void RestorePlace(QWidget& window, const QString& name, QSize first)
{
    if (!window.restoreGeometry(QSettings().value(Key(name)).toByteArray())) {
        window.resize(first.boundedTo(RoomFor(window).size()));
    }
}

void StorePlace(const QWidget& window, const QString& name)
{
    QSettings().setValue(Key(name), window.saveGeometry());
}

} // namespace ptk
