// The behaviour of the main window's tab strip: it turns by keys and by the left mouse button only, and shows its icons where there is room
// for them.
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
    // The strip already holds all its tabs, with their icons. The keys work in the strip's whole window.
    explicit PageTabs(QTabBar& strip);

    // Shows the icons where the strip then fits into `width` pixels, and hides them otherwise.
    void FitInto(int width);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ConnectKeys();

    QTabBar& m_strip;
    QList<QIcon> m_icons;
    int m_width; // of the strip with all icons, in pixels
};

} // namespace ptk
