#include "ui/frame/PageTabs.h"

#include <QMouseEvent>
#include <QShortcut>
#include <QTabBar>

namespace ptk {

namespace {

constexpr int kForward = 1;
constexpr int kBackward = -1;

} // namespace

PageTabs::PageTabs(QTabBar& strip) : QObject(&strip), m_strip(strip), m_width(strip.sizeHint().width())
{
    for (int tab = 0; tab < strip.count(); ++tab) {
        m_icons << strip.tabIcon(tab);
    }
    strip.installEventFilter(this);
    ConnectKeys();
}

void PageTabs::ConnectKeys()
{
    struct Turn
    {
        const char* keys;
        int step;
    };
    for (const Turn& turn :
         {Turn{"Ctrl+Tab", kForward}, {"Ctrl+PgDown", kForward}, {"Ctrl+Shift+Tab", kBackward}, {"Ctrl+PgUp", kBackward}}) {
        connect(new QShortcut(QKeySequence(turn.keys), m_strip.window()), &QShortcut::activated, this,
                [this, step = turn.step] { m_strip.setCurrentIndex((m_strip.currentIndex() + step + m_strip.count()) % m_strip.count()); });
    }
}

void PageTabs::FitInto(int width)
{
    const bool shown = m_width <= width;
    for (int tab = 0; tab < m_strip.count(); ++tab) {
        if (m_strip.tabIcon(tab).isNull() == shown) {
            m_strip.setTabIcon(tab, shown ? m_icons.at(tab) : QIcon());
        }
    }
}

// Keeps clicks of the other mouse buttons from the strip, which would announce them like those of the left one.
bool PageTabs::eventFilter(QObject* watched, QEvent* event)
{
    const bool press = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    return (press && static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) || QObject::eventFilter(watched, event);
}

} // namespace ptk
