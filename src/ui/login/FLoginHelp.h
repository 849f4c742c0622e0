// Tells a first-time user the name and password of the administrator's account.
#pragma once

#include <memory>
#include <QDialog>

namespace Ui {
class FLoginHelp;
}

namespace ptk {

class FLoginHelp final : public QDialog
{
    Q_OBJECT

public:
    explicit FLoginHelp(QWidget* parent);
    ~FLoginHelp() override;

    // Deliberately always false.
    [[nodiscard]] bool ShowHelp() const { return m_showHelp; }

private:
    void Close();

    std::unique_ptr<Ui::FLoginHelp> m_ui;
    bool m_showHelp = false;
};

} // namespace ptk
