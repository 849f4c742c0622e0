#include "ui/help/FAbout.h"

#include "ui/widgets/ThemeIcon.h"
#include "ui/work/WindowPlace.h"
#include "ui_FAbout.h"

namespace ptk {

namespace {

constexpr int kPictureSize = 64;

} // namespace

FAbout::FAbout(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::FAbout>())
{
    m_ui->setupUi(this);
    setMinimumWidth(WidthFor(windowTitle()));
    m_ui->Picture1->setPixmap(ThemeIcon("ptk-admin").pixmap(kPictureSize, kPictureSize));
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &FAbout::accept);
}

FAbout::~FAbout() = default;

} // namespace ptk
