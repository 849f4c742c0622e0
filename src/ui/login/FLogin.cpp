#include "ui/login/FLogin.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/Desktop.h"
#include "platform/text/Text.h"
#include "shell/CFileAdaptor.h"
#include "ui/login/FLoginHelp.h"
#include "ui_FLogin.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QProxyStyle>

namespace ptk {

namespace {

constexpr auto kInvalidTitle = "Invalid Login";
constexpr auto kNullText = "You may not log in with a null name or password.";
constexpr auto kInvalidText = "Invalid Login Name or Password.";
constexpr auto kShowLoginHelp = "ShowLoginHelp";

class AsteriskStyle final : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const override
    {
        return hint == SH_LineEdit_PasswordCharacter ? '*' : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

} // namespace

FLogin::FLogin(ptk::Desktop& desktop) : m_ui(std::make_unique<Ui::FLogin>()), m_desktop(desktop)
{
    m_ui->setupUi(this);
    auto* asterisks = new AsteriskStyle;
    asterisks->setParent(this);
    m_ui->txtPassword->setStyle(asterisks);
    connect(m_ui->cmdLogin, &QPushButton::clicked, this, &FLogin::Login);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &FLogin::reject);
    connect(m_ui->cmdHelp, &QPushButton::clicked, this, &FLogin::Help);
}

FLogin::~FLogin() = default;

void FLogin::ConfigFile(std::shared_ptr<CFileAdaptor> value)
{
    m_configFile = std::move(value);
    ReadShowLoginHelp();
}

void FLogin::EmployeeList(std::shared_ptr<CEmployeeList> value)
{
    m_employeeList = std::move(value);
}

void FLogin::ShowModal()
{
    exec();
}

bool FLogin::ReadShowLoginHelp()
{
    m_showHelp = ToBoolean(Required(m_configFile)->FindKeyValue(kShowLoginHelp));
    m_ui->cmdHelp->setVisible(m_showHelp);
    return m_showHelp;
}

bool FLogin::SaveShowLoginHelp()
{
    return m_configFile != nullptr && m_configFile->ReplaceLine(kShowLoginHelp, BooleanText(m_showHelp));
}

// Any failure in here counts as a refused login.
bool FLogin::ValidateLogin()
{
    return Succeeds([this] {
        const auto employee = Required(m_employeeList)->GetEmployeeByName(m_ui->txtName->text().toStdString());
        if (employee == nullptr || employee->Password().empty()) {
            return false;
        }
        m_loginValid = employee->Password() == m_ui->txtPassword->text().toStdString();
        m_loggedIn = employee->DisplayName();
        return m_loginValid;
    });
}

void FLogin::Login()
{
    if (m_ui->txtName->text().isEmpty() || m_ui->txtPassword->text().isEmpty()) {
        m_desktop.Show(kNullText, kInvalidTitle, Icon::Exclamation);
        return;
    }
    if (!ValidateLogin()) {
        m_desktop.Show(kInvalidText, kInvalidTitle, Icon::Exclamation);
        return;
    }
    SaveShowLoginHelp();
    accept();
}

// FLoginHelp answers "do not show again" whether or not its box was ticked. So once the help was read, the next successful login stores
// that it is not offered any more.
void FLogin::Help()
{
    FLoginHelp help(this);
    help.exec();
    m_showHelp = help.ShowHelp();
}

void FLogin::reject()
{
    m_loginValid = false;
    QDialog::reject();
}

void FLogin::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && m_ui->txtName->hasFocus() && !m_ui->txtName->text().isEmpty() && m_ui->txtPassword->text().isEmpty()) {
        return m_ui->txtPassword->setFocus();
    }
    QDialog::keyPressEvent(event);
}

void FLogin::closeEvent(QCloseEvent* event)
{
    m_employeeList = nullptr;
    QDialog::closeEvent(event);
}

} // namespace ptk
