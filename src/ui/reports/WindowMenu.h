// The Window menu: the open report windows, and what is done to all of them.
#pragma once

#include <functional>
#include <QObject>

class QMenu;

namespace ptk {

class QtViewerFactory;

// Adds a line for each open window below what the menu holds already, each time it opens.
class WindowMenu final : public QObject
{
    Q_OBJECT

public:
    // Both outlive it.
    WindowMenu(QMenu& menu, QtViewerFactory& viewers);

    // In the order of their opening, until a printer refuses one; those printed are hidden.
    void PrintAll();

signals:
    void Done(const QString& outcome);

private:
    void ListWindows();

    QMenu& m_menu;
    QtViewerFactory& m_viewers;
};

} // namespace ptk
