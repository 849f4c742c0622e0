// Tells how far a longer work is, once it takes more than half a second, and lets the user end it.
#pragma once

#include "startup/Windows.h"
#include "platform/Waiting.h"

#include <cstdint>
#include <QDialog>
#include <QElapsedTimer>

class QProgressBar;

namespace ptk {

// Opens, and lets other events happen, only inside GoOn and while the database is waited for, never by a timer of its own: a box that tells
// of an employee's failure is then never covered by it.
class WorkProgress final : public QDialog, public ProgressWindow
{
    Q_OBJECT

public:
    // Without a window it blocks all that there are.
    WorkProgress(QWidget* window, const ProgressWords& words);

    bool GoOn(std::int32_t done, std::int32_t all) override;

    // By the user.
    [[nodiscard]] bool IsCancelled() const { return m_cancelled; }

    // After a box: what the user took to read it does not count.
    void Restart();

    // Cancel, Escape and the close box.
    void reject() override;

private:
    void ShowWhenLong();
    bool GoOnWaiting();

    QProgressBar* m_bar; // belongs to the dialog
    QElapsedTimer m_sinceStart;
    bool m_cancelled = false;
    WaitingAs m_waiting; // for a database: Cancel ends that, too
};

} // namespace ptk
