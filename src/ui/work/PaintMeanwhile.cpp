#include "ui/work/PaintMeanwhile.h"

#include "platform/Waiting.h"
#include "ui/work/WorkProgress.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWindow>

namespace ptk {

namespace {

constexpr int kBehindTheWait = 10; // milliseconds

} // namespace

void PaintWhileWaiting()
{
    WhileWaiting(PaintMeanwhile);
}

bool PaintMeanwhile()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers | QEventLoop::X11ExcludeTimers);
    return true;
}

bool PostponesClose(QObject& window, QEvent& event)
{
    if (event.type() != QEvent::Close || !waiting::IsTurn() || qobject_cast<WorkProgress*>(QApplication::activeModalWidget()) != nullptr) {
        return false;
    }
    event.ignore();
    QTimer::singleShot(kBehindTheWait, &window, [&window] { // no timer runs before
        if (auto* const widget = qobject_cast<QWidget*>(&window)) {
            widget->close();
        } else if (auto* const bare = qobject_cast<QWindow*>(&window)) {
            bare->close();
        }
    });
    return true;
}

} // namespace ptk
