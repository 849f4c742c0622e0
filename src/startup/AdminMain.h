// The first and the last steps of the program, and the objects that live between them.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace ptk {

class CController;
class CEnumHolder;
class CFile;
class Clock;
class Desktop;
class SoleUse;
class WindowFactory;

// Start makes sure that it is the only one on the program folder: a second one says so and ends with status 0, before it touches anything
// of the first. It opens the error log, <program folder>\system\errorlog.txt, makes the controller and has it bring the program up. The end
// routine, which the controller runs, writes the log's last lines, closes it and calls `endProcess` with the exit status: 0, or 1 when the
// start failed or was cancelled. `endProcess` is to end the process at once, without returning; where it does return (in a test), every
// caller returns straight away as well.
class AdminMain
{
public:
    AdminMain(std::string programFolder, Desktop& desktop, const Clock& clock, WindowFactory& windows, std::function<void(int)> endProcess);
    ~AdminMain();
    AdminMain(const AdminMain&) = delete;
    AdminMain& operator=(const AdminMain&) = delete;

    // Returns as soon as the main window is shown. Where Controller() is then nullptr or has no main window, no window is open and the
    // program is over: the start failed, and the caller ends the process.
    void Start();

    // nullptr before Start and after the end routine.
    [[nodiscard]] std::shared_ptr<CController> Controller() const { return m_controller; }

private:
    [[nodiscard]] bool TakeFolder();
    void OpenErrorLog();
    void End(int status);
    void CloseErrorLog();

    std::string m_programFolder;
    Desktop& m_desktop;
    const Clock& m_clock;
    WindowFactory& m_windows;
    std::function<void(int)> m_endProcess;
    std::unique_ptr<SoleUse> m_use; // of the folder, until the program ends
    std::shared_ptr<CFile> m_errorLog;
    std::unique_ptr<CEnumHolder> m_enumHolder;
    std::shared_ptr<CController> m_controller;
};

} // namespace ptk
