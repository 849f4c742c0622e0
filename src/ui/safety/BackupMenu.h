// What the File menu offers for the safety of the data.
#pragma once

#include <QObject>

class QAction;

namespace ptk {

class Workplace;

class BackupMenu final : public QObject
{
    Q_OBJECT

public:
    // All outlive it.
    BackupMenu(QAction& backUp, QAction& restore, Workplace& host, QObject* parent);

    // Offers what can be done with the controller's database; the rest says why not. REQUIRES: there is a controller.
    void Offer();

    // The day's first backup, where there is none yet.
    void BackUpWhenDue();

signals:
    void Done(const QString& outcome);

    // All that the windows show is of another database.
    void Restored(const QString& outcome);

private:
    void BackUpNow();
    void Restore();

    QAction& m_restore;
    Workplace& m_host;
};

} // namespace ptk
