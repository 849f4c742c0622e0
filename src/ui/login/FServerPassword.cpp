#include "ui/login/FServerPassword.h"

#include "store/postgres/line/ServerAddress.h"
#include "ui_FServerPassword.h"

namespace ptk {

namespace {

constexpr auto kWanted = "The server of the database wants a password:\n%1";

} // namespace

FServerPassword::FServerPassword(const std::string& address) : m_ui(std::make_unique<Ui::FServerPassword>())
{
    m_ui->setupUi(this);
    m_ui->lblServer->setText(QString(kWanted).arg(QString::fromStdString(SaidServer(address))));
    setMinimumSize(sizeHint()); // so that all lines of a long address are seen
    connect(m_ui->cmdConnect, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

FServerPassword::~FServerPassword() = default;

std::optional<std::string> FServerPassword::Ask(const std::string& address)
{
    FServerPassword window(address);
    if (window.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return window.m_ui->txtServerPassword->text().toStdString();
}

} // namespace ptk
