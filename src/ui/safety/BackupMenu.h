// The lines of the File menu that make and restore backups.
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

    // Enables Restore where the controller's database can be replaced by a backup; else its tool tip says why not. REQUIRES: there is a
    // controller.
    void Offer();

    // Makes a backup where there is none of this day yet. A failure is logged.
    void BackUpWhenDue();

signals:
    void Done(const QString& outcome);

    // A backup was restored: all windows still show what the database held before.
    void Restored(const QString& outcome);

private:
    void BackUpNow();
    void Restore();

    QAction& m_restore;
    Workplace& m_host;
};

} // namespace ptk
