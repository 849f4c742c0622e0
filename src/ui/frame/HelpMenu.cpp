#include "ui/frame/HelpMenu.h"

#include "platform/system/Desktop.h"
#include "shell/CDocLauncher.h"
#include "ui/frame/FAbout.h"
#include "ui/frame/FShortcuts.h"
#include "ui/page/PageHost.h"
#include "ui/widgets/ThemeIcon.h"

#include <QAction>

namespace ptk {

namespace {

constexpr auto kGuidePath = "\\documentation\\PTKAdminUserGuide.doc";
constexpr auto kGuideText = "File: ...\\documentation\\PTKAdminUserGuide.doc\r\n"
                            "The path to the User's Guide is invalid or not able to be opened by Windows.";

constexpr auto kGuideNotOpened = "The user's guide could not be opened: no program for it took it.";

} // namespace

HelpMenu::HelpMenu(QWidget& window, const Lines& lines, PageHost& host, std::string programFolder)
    : QObject(&window), m_window(window), m_host(host), m_programFolder(std::move(programFolder))
{
    lines.about.setIcon(ThemeIcon("about"));
    lines.contents.setIcon(ThemeIcon("guide"));
    connect(&lines.about, &QAction::triggered, this, &HelpMenu::About);
    connect(&lines.contents, &QAction::triggered, this, &HelpMenu::UsersGuide);
    connect(&lines.shortcuts, &QAction::triggered, this, &HelpMenu::Shortcuts);
}

void HelpMenu::About()
{
    FAbout(&m_window).exec();
}

void HelpMenu::Shortcuts()
{
    FShortcuts(m_window).exec();
}

void HelpMenu::UsersGuide()
{
    CDocLauncher launcher(m_host.Desktop());
    if (launcher.DisplayDocument(&m_host.AsDesktopWindow(), m_programFolder + kGuidePath)) {
        return;
    }
    m_host.Log(kGuideNotOpened);
    if (launcher.ErrorNumber() == docerror::DocumentNotFound) {
        m_host.Desktop().Show(kGuideText, kNotOpenedTitle, Icon::Exclamation);
    } else {
        emit Said(kGuideNotOpened);
    }
}

} // namespace ptk
