// The windows that the start-up shows, as it knows them: the user interface above implements them and hands in the factory.
#pragma once

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
    virtual ~LoginWindow() = default;                                 // unloads the window
    virtual void ConfigFile(std::shared_ptr<CFileAdaptor> value) = 0; // raises Failure 13 when ShowLoginHelp is no boolean
    virtual void EmployeeList(std::shared_ptr<CEmployeeList> value) = 0;
    virtual void ShowModal() = 0; // returns when the window was hidden or closed
    virtual bool LoginValid() const = 0;
    virtual std::string LoggedIn() const = 0; // the display name, as typed; of use when the login is valid
};

class MainWindow
{
public:
    virtual ~MainWindow() = default;
    virtual void Controller(std::shared_ptr<CController> value) = 0; // brings the window up, not modally
    virtual bool DisplaySystemOptions(std::shared_ptr<CSystemOptions> options) = 0;
    virtual void Unload() = 0; // hides and closes the window; its own closing steps run
};

// The program lets go of a window from within the window's own closing steps, so its deleter must not destroy it before those have
// returned.
class WindowFactory
{
public:
    virtual ~WindowFactory() = default;
    virtual std::shared_ptr<LoginWindow> CreateLoginWindow() = 0;
    virtual std::shared_ptr<MainWindow> CreateMainWindow() = 0;
};

} // namespace ptk
