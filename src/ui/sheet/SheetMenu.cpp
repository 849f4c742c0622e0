#include "ui/sheet/SheetMenu.h"

#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "startup/CController.h"
#include "ui/page/SharedRecords.h"
#include "ui/page/Workplace.h"
#include "ui/sheet/FImportEmployees.h"
#include "ui/sheet/FImportPunches.h"
#include "ui/widgets/ThemeIcon.h"

#include <QAction>

namespace ptk {

SheetMenu::SheetMenu(const Actions& actions, Workplace& host, QWidget& window) : QObject(&window), m_host(host), m_window(window)
{
    actions.punches.setIcon(ThemeIcon("import"));
    actions.employees.setIcon(ThemeIcon("import"));
    connect(&actions.punches, &QAction::triggered, this, [this] { Run<FImportPunches>(&ImportPunches); });
    connect(&actions.employees, &QAction::triggered, this, [this] { Run<FImportEmployees>(&ImportEmployees); });
}

template <typename Window, typename Order, typename Account>
void SheetMenu::Run(Account (*import)(const std::shared_ptr<CJetDB>& database, const Order& order, const GoesOn& goesOn))
{
    const auto show = [&] {
        const auto database = Required(m_host.Controller())->PTKDatabase();
        Window window(&m_window, [this, database, import](const Order& order, const GoesOn& goesOn) {
            Account account = import(database, order, goesOn);
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
    Succeeds(show, [this](const Failure& reason) { emit Said(QString::fromStdString(reason.Description())); });
}

} // namespace ptk
