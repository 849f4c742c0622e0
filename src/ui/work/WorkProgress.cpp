#include "ui/work/WorkProgress.h"

#include "platform/Waiting.h"
#include "ui/work/PaintMeanwhile.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace ptk {

namespace {

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

WorkProgress::WorkProgress(QWidget* window, const ProgressWords& words)
    : QDialog(window), m_bar(new QProgressBar(this)), m_waiting(std::make_unique<WaitingAs>([this] { return GoOnWaiting(); }))
{
    setObjectName("dlgProgress");
    setWindowTitle(QString::fromStdString(words.title));
    setWindowModality(window == nullptr ? Qt::ApplicationModal : Qt::WindowModal);
    setMinimumWidth(kLeastWidth);
    auto* text = new QLabel(QString::fromStdString(words.text), this);
    text->setObjectName("lblProgress");
    m_bar->setObjectName("barProgress");
    m_bar->setAccessibleName(windowTitle());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
    connect(buttons, &QDialogButtonBox::rejected, this, &WorkProgress::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(m_bar);
    column->addWidget(buttons);
    Restart();
}

WorkProgress::~WorkProgress() = default;

void WorkProgress::Restart()
{
    m_sinceStart.start();
}

void WorkProgress::ShowWhenLong()
{
    if (!isVisible() && !m_cancelled && m_sinceStart.elapsed() >= kShownAfter) {
        show();
        LightenPointer();
    }
}

// Takes the keyboard from a window that the work has opened, so that Escape ends the work. A window of another program keeps it.
void WorkProgress::TakeKeyboard()
{
    const QWidget* active = QApplication::activeWindow();
    if (active != nullptr && active != this) {
        activateWindow();
    }
}

// A turn during a question to the database. Keys and clicks may be taken: while the window is shown, Cancel is all that there is to press.
bool WorkProgress::GoOnWaiting()
{
    ShowWhenLong();
    if (isVisible()) {
        QApplication::processEvents(QEventLoop::ExcludeSocketNotifiers | QEventLoop::X11ExcludeTimers);
    } else {
        PaintMeanwhile();
    }
    return !m_cancelled;
}

bool WorkProgress::GoOn(std::int32_t done, std::int32_t all)
{
    ShowWhenLong();
    if (isVisible()) {
        m_bar->setRange(0, all);
        m_bar->setValue(done);
        TakeKeyboard();
        QApplication::processEvents();
        waiting::CameRound();
    } else {
        static_cast<void>(waiting::GoOn());
    }
    return !m_cancelled;
}

void WorkProgress::reject()
{
    m_cancelled = true;
    QDialog::reject();
}

} // namespace ptk
