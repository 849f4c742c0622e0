#include "ui/frame/LastWindow.h"

#include <algorithm>
#include <QApplication>
#include <QWidget>

namespace ptk {

bool IsAnyWindowShown()
{
    const auto windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) { return window->isVisible(); });
}

LastWindow::LastWindow(std::function<void()> gone) : m_gone(std::move(gone))
{
    QApplication::instance()->installEventFilter(this);
}

bool LastWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide && watched->isWidgetType() && static_cast<QWidget*>(watched)->isWindow()) {
        QMetaObject::invokeMethod(this, &LastWindow::Look, Qt::QueuedConnection);
    }
    return false;
}

void LastWindow::Look()
{
    if (!IsAnyWindowShown()) {
        m_gone();
    }
}

} // namespace ptk
