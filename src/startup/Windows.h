// The windows that the start-up shows, as it knows them: the user interface above implements them and hands in the factory.
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

    // Returns when the window was hidden or closed.
    virtual void ShowModal() = 0;

    [[nodiscard]] virtual bool LoginValid() const = 0;

    // The display name, as typed; of use when the login is valid.
    [[nodiscard]] virtual std::string LoggedIn() const = 0;
};

class MainWindow
{
public:
    virtual ~MainWindow() = default;

    // Brings the window up, not modally.
    virtual void Controller(std::shared_ptr<CController> value) = 0;

    virtual bool DisplaySystemOptions(std::shared_ptr<CSystemOptions> options) = 0;

    // Hides and closes the window; its own closing steps run.
    virtual void Unload() = 0;
};

struct ProgressWords
{
    std::string title;
    std::string text;
};

// Comes up by itself once the work takes its time, and lets the user end it.
class ProgressWindow
{
public:
    // Unloads the window.
    virtual ~ProgressWindow() = default;

    // Of `all` steps. False once the user has ended the work.
    [[nodiscard]] virtual bool GoOn(std::int32_t done, std::int32_t all) = 0;
};

// Asks which backup the database is to be again.
class RestoreWindow
{
public:
    // Unloads the window.
    virtual ~RestoreWindow() = default;

    // Of the backups in the folder, or of any other place. Returns when the user has chosen: the file's path, or nothing.
    [[nodiscard]] virtual std::string Choose(const std::string& folder) = 0;
};

// The program lets go of a window from within the window's own closing steps, so its deleter must not destroy it before those have
// returned.
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
