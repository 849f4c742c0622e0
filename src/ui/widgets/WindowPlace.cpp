#include "ui/widgets/WindowPlace.h"

#include <QScreen>
#include <QSettings>
#include <QWidget>

namespace ptk {

namespace {

QString Key(const QString& name)
{
    return "windows/" + name;
}

} // namespace

void RestorePlace(QWidget& window, const QString& name, QSize first)
{
    if (!window.restoreGeometry(QSettings().value(Key(name)).toByteArray())) {
        window.resize(first.boundedTo(window.screen()->availableSize()));
    }
}

void StorePlace(const QWidget& window, const QString& name)
{
    QSettings().setValue(Key(name), window.saveGeometry());
}

} // namespace ptk
