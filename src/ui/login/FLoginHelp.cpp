#include "ui/login/FLoginHelp.h"

#include "ui_FLoginHelp.h"

namespace ptk {

FLoginHelp::FLoginHelp(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::FLoginHelp>())
{
    m_ui->setupUi(this);
    m_ui->cmdOK->setFocus();
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &FLoginHelp::Close);
}

FLoginHelp::~FLoginHelp() = default;

void FLoginHelp::Close()
{
    if (m_ui->chkHideDialog->isChecked()) {
        m_showHelp = false;
    }
    accept();
}

} // namespace ptk
