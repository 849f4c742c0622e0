#include "ui/frame/FileMenu.h"

#include "ui/page/Workplace.h"
#include "ui/safety/BackupMenu.h"
#include "ui/safety/ImportMenu.h"
#include "ui/sheet/SheetMenu.h"

#include <QAction>
#include <QWidget>

namespace ptk {

FileMenu::FileMenu(Workplace& host, const Lines& lines, QWidget& window)
    : QObject(&window), m_backups(new BackupMenu(lines.backUp, lines.restore, host, &window))
{
    connect(m_backups, &BackupMenu::Done, this, &FileMenu::Said);
    connect(m_backups, &BackupMenu::Restored, this, &FileMenu::Restored);
    auto* import = new ImportMenu(lines.import, host, window);
    connect(import, &ImportMenu::Imported, this, &FileMenu::Restored);
    connect(import, &ImportMenu::Said, this, &FileMenu::Said);
    auto* sheets = new SheetMenu({lines.punches, lines.employees}, host, window);
    connect(sheets, &SheetMenu::Said, this, &FileMenu::Said);
}

void FileMenu::Offer()
{
    m_backups->Offer();
}

void FileMenu::BackUpWhenDue()
{
    m_backups->BackUpWhenDue();
}

} // namespace ptk
