#include "ui/dialogs/GenerationProgress.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace ptk {

namespace {

constexpr auto kTitle = "Generate Report";
constexpr auto kText = "Generating for %1 employees...";
constexpr qint64 kShownAfter = 500; // milliseconds
constexpr int kLeastWidth = 320;    // pixels

// The wait pointer would say that Cancel cannot be pressed.
void LightenPointer()
{
    if (QApplication::overrideCursor() != nullptr) {
        QApplication::changeOverrideCursor(Qt::BusyCursor);
    }
}

} // namespace

GenerationProgress::GenerationProgress(QWidget* window, std::int32_t total) : QDialog(window), m_bar(new QProgressBar(this))
{
    setObjectName("dlgProgress");
    setWindowTitle(kTitle);
    setWindowModality(Qt::WindowModal);
    setMinimumWidth(kLeastWidth);
    auto* text = new QLabel(QString(kText).arg(total), this);
    text->setObjectName("lblProgress");
    m_bar->setObjectName("barProgress");
    m_bar->setAccessibleName(kTitle);
    m_bar->setRange(0, total);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
    connect(buttons, &QDialogButtonBox::rejected, this, &GenerationProgress::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(m_bar);
    column->addWidget(buttons);
    Restart();
}

void GenerationProgress::Restart()
{
    m_sinceStart.start();
}

bool GenerationProgress::GoOn(std::int32_t done)
{
    if (!isVisible() && !m_cancelled && m_sinceStart.elapsed() >= kShownAfter) {
        show();
        LightenPointer();
    }
    if (isVisible()) {
        m_bar->setValue(done);
        QApplication::processEvents();
    }
    return !m_cancelled;
}

void GenerationProgress::reject()
{
    m_cancelled = true;
    QDialog::reject();
}

} // namespace ptk
