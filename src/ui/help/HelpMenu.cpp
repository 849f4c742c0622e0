#include "ui/help/HelpMenu.h"

#include "office/business/Guide.h"
#include "platform/files/ProgramFolder.h"
#include "platform/Succeeds.h"
#include "platform/system/Desktop.h"
#include "shell/CDocLauncher.h"
#include "ui/help/FAbout.h"
#include "ui/help/FShortcuts.h"
#include "ui/page/PageHost.h"
#include "ui/widgets/ThemeIcon.h"

#include <QAction>

namespace ptk {

namespace {

constexpr auto kGuideText = "File: ...\\documentation\\PTKAdminUserGuide.doc\r\n"
                            "The path to the User's Guide is invalid or not able to be opened by Windows.";

constexpr auto kGuideNotOpened = "The user's guide could not be opened";
constexpr auto kGuideMissing = "The user's guide is missing: ";
constexpr auto kGuideNotRenewed = "The user's guide could not be renewed: ";

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
    Succeeds([this] { RenewGuide(m_programFolder, InstalledFile(kInstalledGuide)); },
             [this](const Failure& reason) { m_host.Log(reason.Number(), kGuideNotRenewed + reason.Description()); });
    CDocLauncher launcher(m_host.Desktop());
    const auto opens = [&](const char* form) { return launcher.DisplayDocument(&m_host.AsDesktopWindow(), m_programFolder + form); };
    if (opens(kGuideDocument)) {
        return;
    }
    if (launcher.ErrorNumber() == docerror::DocumentNotFound) {
        m_host.Log(launcher.ErrorNumber(), kGuideMissing + NativePath(m_programFolder + kGuideDocument).string());
        m_host.Desktop().Show(kGuideText, kNotOpenedTitle, Icon::Exclamation);
        return;
    }
    const std::string refusal = m_host.Desktop().Refusal();
    if (!opens(kGuidePage)) {
        TellNotOpened(kGuideNotOpened + (refusal.empty() ? refusal : ": " + refusal));
    }
}

void HelpMenu::TellNotOpened(const std::string& line)
{
    m_host.Log(line);
    emit Said(QString::fromStdString(line));
}

} // namespace ptk
