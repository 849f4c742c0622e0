// The line File > Import Older Database.
#pragma once

#include <QObject>

class QAction;
class QWidget;

namespace ptk {

class Workplace;

class ImportMenu final : public QObject
{
    Q_OBJECT

public:
    // All outlive it; `window` is what the dialog belongs to.
    ImportMenu(QAction& action, Workplace& host, QWidget& window);

signals:
    // An older database was imported: all windows still show what the database held before.
    void Imported(const QString& outcome);

    void Said(const QString& text);

private:
    void Import();

    Workplace& m_host;
    QWidget& m_window;
};

} // namespace ptk
