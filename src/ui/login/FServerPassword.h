// Asks for the password that a database server wants.
#pragma once

#include <memory>
#include <optional>
#include <QDialog>
#include <string>

namespace Ui {
class FServerPassword;
}

namespace ptk {

// What is typed is kept by whoever asks, in memory alone.
class FServerPassword final : public QDialog
{
    Q_OBJECT

public:
    explicit FServerPassword(const std::string& address);
    ~FServerPassword() override;

    // Nothing when the person would rather not say.
    [[nodiscard]] static std::optional<std::string> Ask(const std::string& address);

private:
    std::unique_ptr<Ui::FServerPassword> m_ui;
};

} // namespace ptk
