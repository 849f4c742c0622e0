#include "ui/frame/QtWindowFactory.h"

#include "ui/frame/FController.h"
#include "ui/login/FLogin.h"
#include "ui/safety/FRestore.h"
#include "ui/widgets/AiryStyle.h"
#include "ui/widgets/Spoken.h"
#include "ui/widgets/ThemeIcon.h"
#include "ui/work/WorkProgress.h"

#include <QApplication>

namespace ptk {

namespace {

constexpr auto kDeleteLater = [](QObject* window) { window->deleteLater(); };

} // namespace

QtWindowFactory::QtWindowFactory(std::string programFolder, Desktop& desktop, const Clock& clock)
    : m_programFolder(std::move(programFolder)), m_desktop(desktop), m_clock(clock)
{
    DressWindows();
}

void QtWindowFactory::DressWindows()
{
    QApplication::setWindowIcon(ThemeIcon("ptk-admin"));
    QApplication::setStyle(new AiryStyle);
    TellScreenReaders();
}

std::shared_ptr<LoginWindow> QtWindowFactory::CreateLoginWindow()
{
    return std::shared_ptr<FLogin>(new FLogin(m_desktop), kDeleteLater);
}

std::shared_ptr<MainWindow> QtWindowFactory::CreateMainWindow()
{
    return std::shared_ptr<FController>(new FController(m_programFolder, m_desktop, m_clock), kDeleteLater);
}

std::shared_ptr<RestoreWindow> QtWindowFactory::CreateRestoreWindow()
{
    return std::make_shared<FRestore>(QApplication::activeWindow());
}

std::shared_ptr<ProgressWindow> QtWindowFactory::CreateProgressWindow(const ProgressWords& words)
{
    return std::make_shared<WorkProgress>(QApplication::activeWindow(), words);
}

} // namespace ptk
