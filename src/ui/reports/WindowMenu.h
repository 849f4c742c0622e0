// The Window menu: it lists the open report windows, and prints or closes all of them.
#pragma once

#include <QObject>

class QMenu;

namespace ptk {

class QtViewerFactory;

// Each time the menu opens, adds a line for each open window below what the menu holds already.
class WindowMenu final : public QObject
{
    Q_OBJECT

public:
    // The menu and the viewers outlive it.
    WindowMenu(QMenu& menu, QtViewerFactory& viewers);

    // Prints the windows in the order in which they were opened, until a printer refuses one. Those that were printed are hidden.
    void PrintAll();

signals:
    void Done(const QString& outcome);

private:
    void ListWindows();

    QMenu& m_menu;
    QtViewerFactory& m_viewers;
};

} // namespace ptk
