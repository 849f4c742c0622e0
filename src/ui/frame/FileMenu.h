// The File menu's ways to keep the records safe and to bring others in: backups, older databases, files of punches and of employees.
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

    // All outlive it. The window is the parent.
    FileMenu(Workplace& host, const Lines& lines, QWidget& window);

    // See BackupMenu.
    void Offer();
    void BackUpWhenDue();

signals:
    // What a line came to.
    void Said(const QString& outcome);

    // Everything was read again, of another database.
    void Restored(const QString& outcome);

private:
    BackupMenu* m_backups;
};

} // namespace ptk
