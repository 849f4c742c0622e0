// The login window, shown before the main window opens. Checks a name and a password against the employees.
#pragma once

#include "startup/Windows.h"

#include <memory>
#include <QDialog>
#include <string>

namespace Ui {
class FLogin;
}

namespace ptk {

class Desktop;

// Any employee with a password may log in. The stored ShowLoginHelp changes only with a successful login.
class FLogin final : public QDialog, public LoginWindow
{
    Q_OBJECT

public:
    explicit FLogin(ptk::Desktop& desktop);
    ~FLogin() override;

    // Shows the Help button as ShowLoginHelp says. Raises Failure 91 for nullptr, 13 when ShowLoginHelp is no boolean.
    void ConfigFile(std::shared_ptr<CFileAdaptor> value) override;

    void EmployeeList(std::shared_ptr<CEmployeeList> value) override;
    void ShowModal() override;
    bool LoginValid() const override { return m_loginValid; }
    std::string LoggedIn() const override { return m_loggedIn; }

    // Deliberately always empty.
    [[nodiscard]] std::string UserName() const { return m_userName; }

    // Ends the login as not valid: by Cancel, Escape or the close box.
    void reject() override;

protected:
    // Enter in the box of the name moves to the box of the password where that is still empty.
    void keyPressEvent(QKeyEvent* event) override;

    void closeEvent(QCloseEvent* event) override;

private:
    bool ReadShowLoginHelp();
    bool SaveShowLoginHelp();
    bool ValidateLogin();
    void Login();
    void Help();

    std::unique_ptr<Ui::FLogin> m_ui;
    ptk::Desktop& m_desktop;
    std::shared_ptr<CFileAdaptor> m_configFile;
    std::shared_ptr<CEmployeeList> m_employeeList;
    bool m_loginValid = false;
    bool m_showHelp = true;
    std::string m_userName;
    std::string m_loggedIn;
};

} // namespace ptk
