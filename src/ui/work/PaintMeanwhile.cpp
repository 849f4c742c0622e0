#include "ui/work/PaintMeanwhile.h"

#include "platform/Waiting.h"
#include "ui/work/WorkProgress.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QObject>
#include <QTimer>
#include <QWindow>

namespace ptk {

namespace {

constexpr int kBehindTheWait = 10; // milliseconds

// Watches for events that only the event loop delivers. After each, the work that follows has a whole slice before its first turn is due.
class LoopWatch final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* /*receiver*/, QEvent* event) override
    {
        const QEvent::Type type = event->type();
        if (event->spontaneous() || type == QEvent::Timer || type == QEvent::MetaCall || type == QEvent::SockAct) {
            waiting::CameRound();
        }
        return false;
    }
};

} // namespace

void PaintWhileWaiting()
{
    WhileWaiting(PaintMeanwhile);
    QCoreApplication::instance()->installEventFilter(new LoopWatch(QCoreApplication::instance()));
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
    QTimer::singleShot(kBehindTheWait, &window, [&window] { // no timer runs during the wait
        if (auto* const widget = qobject_cast<QWidget*>(&window)) {
            widget->close();
        } else if (auto* const bare = qobject_cast<QWindow*>(&window)) {
            bare->close();
        }
    });
    return true;
}

} // namespace ptk
