#include "ui/safety/BackupMenu.h"

#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "startup/CController.h"
#include "ui/page/Workplace.h"
#include "ui/widgets/ThemeIcon.h"

#include <QAction>

namespace ptk {

BackupMenu::BackupMenu(QAction& backUp, QAction& restore, Workplace& host, QObject* parent)
    : QObject(parent), m_restore(restore), m_host(host)
{
    backUp.setIcon(ThemeIcon("backup"));
    restore.setIcon(ThemeIcon("restore"));
    connect(&backUp, &QAction::triggered, this, &BackupMenu::BackUpNow);
    connect(&restore, &QAction::triggered, this, &BackupMenu::Restore);
}

void BackupMenu::Offer()
{
    const auto refusal = QString::fromStdString(Required(m_host.Controller())->RestoreRefusal());
    m_restore.setEnabled(refusal.isEmpty());
    m_restore.setToolTip(refusal);
    m_restore.setStatusTip(refusal);
}

void BackupMenu::BackUpWhenDue()
{
    const auto backUp = [this] {
        const auto told = QString::fromStdString(Required(m_host.Controller())->BackUpWhenDue());
        if (!told.isEmpty()) {
            emit Done(told);
        }
    };
    Succeeds(backUp, [this](const Failure& reason) { m_host.Log(reason.Number(), reason.Description()); });
}

void BackupMenu::BackUpNow()
{
    const auto backUp = [this] { emit Done(QString::fromStdString(Required(m_host.Controller())->BackUpNow())); };
    Succeeds(backUp, [this](const Failure& reason) { emit Done(QString::fromStdString(reason.Description())); });
}

void BackupMenu::Restore()
{
    const auto restore = [this] {
        const auto restored = QString::fromStdString(Required(m_host.Controller())->Restore());
        if (!restored.isEmpty()) {
            emit Restored(restored);
        }
    };
    Succeeds(restore, [this](const Failure& reason) { emit Done(QString::fromStdString(reason.Description())); });
}

} // namespace ptk
