// Interfaces of the windows that the start-up shows. The user interface above implements them and hands in the factory.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace ptk {

class CController;
class CEmployeeList;
class CFileAdaptor;
class CSystemOptions;

class LoginWindow
{
public:
    // Unloads the window.
    virtual ~LoginWindow() = default;

    // Raises Failure 13 when ShowLoginHelp is no boolean.
    virtual void ConfigFile(std::shared_ptr<CFileAdaptor> value) = 0;

    virtual void EmployeeList(std::shared_ptr<CEmployeeList> value) = 0;

    // Shows the window and returns when it was hidden or closed.
    virtual void ShowModal() = 0;

    [[nodiscard]] virtual bool LoginValid() const = 0;

    // The display name, as it was typed. REQUIRES: the login is valid.
    [[nodiscard]] virtual std::string LoggedIn() const = 0;
};

class MainWindow
{
public:
    virtual ~MainWindow() = default;

    // Gives the window its controller and shows it, not modally.
    virtual void Controller(std::shared_ptr<CController> value) = 0;

    virtual bool DisplaySystemOptions(std::shared_ptr<CSystemOptions> options) = 0;

    // Hides and closes the window; the window's own closing steps run.
    virtual void Unload() = 0;
};

struct ProgressWords
{
    std::string title;
    std::string text;
};

// Shows itself once the work takes long, and lets the user stop the work.
class ProgressWindow
{
public:
    // Unloads the window.
    virtual ~ProgressWindow() = default;

    // Shows that `done` of `all` steps are done. False once the user has stopped the work.
    [[nodiscard]] virtual bool GoOn(std::int32_t done, std::int32_t all) = 0;
};

// Asks which backup is to be restored.
class RestoreWindow
{
public:
    // Unloads the window.
    virtual ~RestoreWindow() = default;

    // Lets the user choose one of the backups in the folder, or a file elsewhere. Answers its path; empty where the user chose none.
    [[nodiscard]] virtual std::string Choose(const std::string& folder) = 0;
};

// The program releases a window from within the window's own closing steps, so the deleter of its pointer must not destroy it before these
// have returned.
class WindowFactory
{
public:
    virtual ~WindowFactory() = default;
    virtual std::shared_ptr<LoginWindow> CreateLoginWindow() = 0;
    virtual std::shared_ptr<MainWindow> CreateMainWindow() = 0;
    virtual std::shared_ptr<RestoreWindow> CreateRestoreWindow() = 0;
    virtual std::shared_ptr<ProgressWindow> CreateProgressWindow(const ProgressWords& words) = 0;
};

} // namespace ptk
