// What the tab strip of the main window does by itself: it turns by keys and by the left mouse button only, and shows its icons where
// there is room for them.
#pragma once

#include <QIcon>
#include <QList>
#include <QObject>

class QTabBar;

namespace ptk {

class PageTabs final : public QObject
{
    Q_OBJECT

public:
    // The strip holds all its tabs, with their icons. The keys are those of its window.
    explicit PageTabs(QTabBar& strip);

    // Pixels that there are for the strip.
    void FitInto(int width);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ConnectKeys();

    QTabBar& m_strip;
    QList<QIcon> m_icons;
    int m_width; // of the tabs with their icons
};

} // namespace ptk
