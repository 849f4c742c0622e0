// The File menu's backups and imports: backups and their restoring, older databases, files of punches and of employees.
#pragma once

#include <QObject>

class QAction;
class QWidget;

namespace ptk {

class BackupMenu;
class Workplace;

class FileMenu final : public QObject
{
    Q_OBJECT

public:
    struct Lines
    {
        QAction& backUp;
        QAction& restore;
        QAction& import;
        QAction& punches;
        QAction& employees;
    };

    // Everything that is handed in outlives the menu; the window is its parent.
    FileMenu(Workplace& host, const Lines& lines, QWidget& window);

    // Both do what they do in BackupMenu. REQUIRES of Offer: there is a controller.
    void Offer();
    void BackUpWhenDue();

signals:
    // A line of the menu has done its work, or could not; `outcome` says which.
    void Said(const QString& outcome);

    // The database was replaced by a restore or an import, and the windows still show records of the former one.
    void Restored(const QString& outcome);

private:
    BackupMenu* m_backups;
};

} // namespace ptk
