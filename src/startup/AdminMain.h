// The first and the last steps of the program, and the objects that live in between.
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

// Start makes sure that this process is the only one on the program folder: a second one says so and ends with status 0, before it touches
// anything of the first. Start then opens the error log, <program folder>\system\errorlog.txt, makes the controller and has it bring the
// program up. The controller runs the end routine, which writes the log's last lines, closes it and calls `endProcess` with the exit
// status: 0, or 1 when the start failed or was cancelled. `endProcess` should end the process at once, without returning; where it returns
// (in a test), every caller returns at once, too.
class AdminMain
{
public:
    AdminMain(std::string programFolder, Desktop& desktop, const Clock& clock, WindowFactory& windows, std::function<void(int)> endProcess);
    ~AdminMain();
    AdminMain(const AdminMain&) = delete;
    AdminMain& operator=(const AdminMain&) = delete;

    // Returns as soon as the main window is shown. If Controller() is nullptr afterwards or has no main window, the start failed: no window
    // is open, and the caller ends the process.
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
    std::unique_ptr<SoleUse> m_use; // of the program folder, until the program ends
    std::shared_ptr<CFile> m_errorLog;
    std::unique_ptr<CEnumHolder> m_enumHolder;
    std::shared_ptr<CController> m_controller;
};

} // namespace ptk
