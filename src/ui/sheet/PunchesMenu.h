// File > Import Punches.
#pragma once

#include <QObject>

class QAction;
class QWidget;

namespace ptk {

class PageHost;

// Has all pages read again once punches were stored, which Edit > Undo takes back as one step.
class PunchesMenu final : public QObject
{
    Q_OBJECT

public:
    // All outlive it; `window` is what the dialog belongs to.
    PunchesMenu(QAction& action, PageHost& host, QWidget& window);

signals:
    void Said(const QString& text);

private:
    void Import();

    PageHost& m_host;
    QWidget& m_window;
};

} // namespace ptk
