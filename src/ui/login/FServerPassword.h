// The window that asks for the password of a database server.
#pragma once

#include <memory>
#include <optional>
#include <QDialog>
#include <string>

namespace Ui {
class FServerPassword;
}

namespace ptk {

// Does not keep the password: the caller does, in memory only.
class FServerPassword final : public QDialog
{
    Q_OBJECT

public:
    explicit FServerPassword(const std::string& address);
    ~FServerPassword() override;

    // Shows the window and answers what was typed; nothing when the user cancels.
    [[nodiscard]] static std::optional<std::string> Ask(const std::string& address);

private:
    std::unique_ptr<Ui::FServerPassword> m_ui;
};

} // namespace ptk
