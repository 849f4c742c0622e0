// The end of the program that the system or the desktop asks for, without a question.
#pragma once

#include <memory>
#include <QObject>
#include <QTimer>

class QSocketNotifier;

namespace ptk {

// From its making on, SIGTERM, SIGHUP and SIGINT (where they would end the process) and the end of the desktop's session close all windows
// as Exit does: the day's backup where it is due, the options, the configuration, the log's end. Whatever box or dialog is open goes first;
// a second signal ends the process at once. One at a time.
class EndFromOutside final : public QObject
{
    Q_OBJECT

public:
    EndFromOutside();

    // Signals are again what they were.
    ~EndFromOutside() override;

private:
    void Begin();
    void CloseWindows();

    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_again;
};

} // namespace ptk
