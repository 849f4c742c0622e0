#include "ui/frame/EndFromOutside.h"

#include "platform/files/DraftsAtEnd.h"
#include "ui/work/ProgramEnd.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <QApplication>
#include <QSocketNotifier>
#include <QWidget>
#include <unistd.h>

namespace ptk {

namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};
constexpr int kBetweenTries = 50; // milliseconds

std::array<int, 2> pipeEnds{-1, -1};
std::array<struct sigaction, kSignals.size()> before;
std::atomic<bool> asked = false;

// The signal handler: tells the event loop through the pipe. A second signal, or a pipe that cannot be written, ends the process at once.
void Ask(int signal)
{
    const int error = errno;
    if (asked.exchange(true) || ::write(pipeEnds[1], "x", 1) != 1) {
        RemoveRemovedOnSignals();
        std::signal(signal, SIG_DFL);
        std::raise(signal);
    }
    errno = error;
}

void HearSignals()
{
    struct sigaction action
    {
    };
    action.sa_handler = Ask;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        ::sigaction(kSignals[i], nullptr, &before[i]);
        if (before[i].sa_handler == SIG_DFL) {
            ::sigaction(kSignals[i], &action, nullptr);
        }
    }
}

} // namespace

EndFromOutside::EndFromOutside()
{
    connect(qApp, &QGuiApplication::commitDataRequest, this, &EndFromOutside::Begin, Qt::QueuedConnection);
    connect(&m_again, &QTimer::timeout, this, &EndFromOutside::CloseWindows);
    if (::pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) == 0) {
        m_notifier = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
        connect(m_notifier.get(), &QSocketNotifier::activated, this, &EndFromOutside::Begin);
        HearSignals();
    }
}

EndFromOutside::~EndFromOutside()
{
    if (m_notifier != nullptr) {
        for (std::size_t i = 0; i < kSignals.size(); ++i) {
            ::sigaction(kSignals[i], &before[i], nullptr);
        }
        m_notifier.reset();
        ::close(pipeEnds[0]);
        ::close(pipeEnds[1]);
    }
    asked = false;
    IsEnding(false);
}

void EndFromOutside::Begin()
{
    if (m_notifier != nullptr) {
        m_notifier->setEnabled(false);
    }
    if (!IsEnding()) {
        IsEnding(true);
        m_again.start(kBetweenTries);
    }
}

// Closes the open dialog, else all windows. The caller of a dialog goes on only when the dialog's loop has returned, so this takes several
// tries. A dialog that comes up while the windows close is the progress of the last backup, and stays.
void EndFromOutside::CloseWindows()
{
    if (QWidget* modal = QApplication::activeModalWidget()) {
        modal->close();
        return;
    }
    m_again.stop();
    QApplication::closeAllWindows();
}

} // namespace ptk
