// Tells how far a longer work is, once it takes more than half a second, and lets the user end it.
#pragma once

#include "startup/Windows.h"

#include <cstdint>
#include <memory>
#include <QDialog>
#include <QElapsedTimer>

class QProgressBar;

namespace ptk {

class WaitingAs;

// Opens, and lets other events happen, only inside GoOn and while the database is waited for, never by a timer of its own: a box that tells
// of an employee's failure is then never covered by it.
class WorkProgress final : public QDialog, public ProgressWindow
{
    Q_OBJECT

public:
    // Without a window it blocks all that there are.
    WorkProgress(QWidget* window, const ProgressWords& words);
    ~WorkProgress() override;

    bool GoOn(std::int32_t done, std::int32_t all) override;

    // By the user.
    [[nodiscard]] bool IsCancelled() const { return m_cancelled; }

    // After a box: what the user took to read it does not count.
    void Restart();

    // Cancel, Escape and the close box.
    void reject() override;

private:
    void ShowWhenLong();
    void TakeKeyboard();
    bool GoOnWaiting();

    QProgressBar* m_bar; // belongs to the dialog
    QElapsedTimer m_sinceStart;
    bool m_cancelled = false;
    std::unique_ptr<WaitingAs> m_waiting; // for a database: Cancel ends that, too
};

} // namespace ptk
