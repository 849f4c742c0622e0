// Makes the program's windows for the start-up.
#pragma once

#include "startup/Windows.h"

#include <string>

namespace ptk {

class Clock;
class Desktop;

// The windows that it makes for login and main work are deleted by the event loop, once nothing on the stack uses them any more. The
// desktop and the clock must outlive all windows.
class QtWindowFactory final : public WindowFactory
{
public:
    QtWindowFactory(std::string programFolder, Desktop& desktop, const Clock& clock);

    // Sets the icon, the style and the help for screen readers of all windows, for those too that come up before there is any factory.
    static void DressWindows();

    std::shared_ptr<LoginWindow> CreateLoginWindow() override;
    std::shared_ptr<MainWindow> CreateMainWindow() override;
    std::shared_ptr<RestoreWindow> CreateRestoreWindow() override;
    std::shared_ptr<ProgressWindow> CreateProgressWindow(const ProgressWords& words) override;

private:
    std::string m_programFolder;
    Desktop& m_desktop;
    const Clock& m_clock;
};

} // namespace ptk
