#include "ui/reports/WindowMenu.h"

#include "office/reports/ReportRun.h"
#include "ui/reports/QtViewerFactory.h"

#include <QMenu>
#include <QRegularExpression>

namespace ptk {

namespace {

constexpr auto kNone = "No report is open";
constexpr auto kLineName = "mnuWindowReport%1";
constexpr int kDigits = 9; // how many windows have a digit as their key

QString Caption(int number, QString title)
{
    title.replace("&", "&&");
    return number <= kDigits ? QString("&%1 %2").arg(number).arg(title) : title;
}

} // namespace

WindowMenu::WindowMenu(QMenu& menu, QtViewerFactory& viewers) : QObject(&menu), m_menu(menu), m_viewers(viewers)
{
    m_menu.addSeparator();
    connect(&m_menu, &QMenu::aboutToShow, this, &WindowMenu::ListWindows);
}

void WindowMenu::ListWindows()
{
    qDeleteAll(m_menu.findChildren<QAction*>(QRegularExpression(QString(kLineName).arg("\\d+"))));
    int number = 0;
    for (const auto& window : m_viewers.OpenViewers()) {
        QAction* line = m_menu.addAction(Caption(++number, window->windowTitle()));
        line->setObjectName(QString(kLineName).arg(number));
        connect(line, &QAction::triggered, window.get(), &ReportViewerWindow::BringUp);
    }
    if (number == 0) {
        QAction* line = m_menu.addAction(kNone);
        line->setObjectName(QString(kLineName).arg(number));
        line->setEnabled(false);
    }
}

void WindowMenu::PrintAll()
{
    const auto open = m_viewers.OpenViewers();
    std::size_t printed = 0;
    while (printed < open.size() && open[printed]->Print()) {
        ++printed;
    }
    if (printed < open.size()) {
        open[printed]->BringUp(); // its line says why
    }
    emit Done(QString::fromStdString(DescribePrinting(static_cast<int>(printed), static_cast<int>(open.size()))));
}

} // namespace ptk
