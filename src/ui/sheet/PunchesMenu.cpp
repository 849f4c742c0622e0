#include "ui/sheet/PunchesMenu.h"

#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "startup/CController.h"
#include "ui/page/PageHost.h"
#include "ui/page/SharedRecords.h"
#include "ui/sheet/FImportPunches.h"
#include "ui/widgets/ThemeIcon.h"

#include <QAction>

namespace ptk {

PunchesMenu::PunchesMenu(QAction& action, PageHost& host, QWidget& window) : QObject(&window), m_host(host), m_window(window)
{
    action.setIcon(ThemeIcon("import"));
    connect(&action, &QAction::triggered, this, &PunchesMenu::Import);
}

void PunchesMenu::Import()
{
    const auto import = [this] {
        const auto database = Required(m_host.Controller())->PTKDatabase();
        FImportPunches window(&m_window, [this, database](const PunchOrder& order, const GoesOn& goesOn) {
            PunchAccount account = ImportPunches(database, order, goesOn);
            if (account.isStored) {
                m_host.SharedRecords().Remember();
            }
            return account;
        });
        window.exec();
        if (!window.Stored().isEmpty()) {
            emit m_host.SharedRecords().ReadAgainWanted();
            emit Said(window.Stored());
        }
    };
    Succeeds(import, [this](const Failure& reason) { emit Said(QString::fromStdString(reason.Description())); });
}

} // namespace ptk
