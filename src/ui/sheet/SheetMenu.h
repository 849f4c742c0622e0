// The lines File > Import Punches and File > Import Employees.
#pragma once

#include "office/sheet/SheetFile.h"

#include <memory>
#include <QObject>

class QAction;
class QWidget;

namespace ptk {

class CJetDB;
class Workplace;

// Once something was stored, has all pages read again. Edit > Undo takes it back as one step.
class SheetMenu final : public QObject
{
    Q_OBJECT

public:
    struct Actions
    {
        QAction& punches;
        QAction& employees;
    };

    // All outlive it; `window` is what the dialogs belong to.
    SheetMenu(const Actions& actions, Workplace& host, QWidget& window);

signals:
    void Said(const QString& text);

private:
    template <typename Window, typename Order, typename Account>
    void Run(Account (*import)(const std::shared_ptr<CJetDB>& database, const Order& order, const GoesOn& goesOn));

    Workplace& m_host;
    QWidget& m_window;
};

} // namespace ptk
