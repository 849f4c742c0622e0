// The end of the program that the system or the desktop asks for, without a question.
#pragma once

#include <memory>
#include <QObject>
#include <QTimer>

class QSocketNotifier;

namespace ptk {

// While it lives, SIGTERM, SIGHUP and SIGINT (where they would end the process) and the end of the desktop's session close all windows as
// Exit does: with the day's backup where it is due, the options, the configuration and the end of the log. An open box or dialog is closed
// first; a second signal ends the process at once. There is one of it at a time.
class EndFromOutside final : public QObject
{
    Q_OBJECT

public:
    EndFromOutside();

    // Gives the signals back to what handled them before.
    ~EndFromOutside() override;

private:
    void Begin();
    void CloseWindows();

    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_again;
};

} // namespace ptk
