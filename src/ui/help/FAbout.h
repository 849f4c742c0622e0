// The About box.
#pragma once

#include <memory>
#include <QDialog>

namespace Ui {
class FAbout;
}

namespace ptk {

class FAbout final : public QDialog
{
    Q_OBJECT

public:
    explicit FAbout(QWidget* parent);
    ~FAbout() override;

private:
    std::unique_ptr<Ui::FAbout> m_ui;
};

} // namespace ptk
