#include "ui/safety/ImportMenu.h"

#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "startup/CController.h"
#include "ui/page/Workplace.h"
#include "ui/safety/FImport.h"
#include "ui/widgets/ThemeIcon.h"

#include <QAction>

namespace ptk {

namespace {

constexpr auto kImportDone = "The older database was imported";

} // namespace

ImportMenu::ImportMenu(QAction& action, Workplace& host, QWidget& window) : QObject(&window), m_host(host), m_window(window)
{
    action.setIcon(ThemeIcon("import"));
    connect(&action, &QAction::triggered, this, &ImportMenu::Import);
}

void ImportMenu::Import()
{
    const auto import = [this] {
        const auto controller = Required(m_host.Controller());
        FImport window(&m_window, [controller](const ImportOrder& order, const ImportProgress& progress) {
            return controller->ImportOldDatabase(order, progress);
        });
        window.exec();
        if (window.HasImported()) {
            emit Imported(kImportDone);
        }
    };
    Succeeds(import, [this](const Failure& reason) { emit Said(QString::fromStdString(reason.Description())); });
}

} // namespace ptk
