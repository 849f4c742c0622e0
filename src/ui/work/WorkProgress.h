// The progress window: it comes up once a work has taken half a second, tells how far the work is, and lets the user end it.
#pragma once

#include "startup/Windows.h"

#include <cstdint>
#include <memory>
#include <QDialog>
#include <QElapsedTimer>

class QProgressBar;

namespace ptk {

class WaitingAs;

// Opens, and lets other events happen, only inside GoOn and while the database is waited for, never by a timer of its own. So it never
// covers a box that tells of a failure during the work.
class WorkProgress final : public QDialog, public ProgressWindow
{
    Q_OBJECT

public:
    // Blocks `window` while it is shown; nullptr: it blocks all windows.
    WorkProgress(QWidget* window, const ProgressWords& words);
    ~WorkProgress() override;

    bool GoOn(std::int32_t done, std::int32_t all) override;

    // Whether the user has ended the work.
    [[nodiscard]] bool IsCancelled() const { return m_cancelled; }

    // Starts the half second anew. To be called after a box, so that the time that the user took to read it does not count.
    void Restart();

    // Ends the work: by Cancel, Escape or the close box.
    void reject() override;

private:
    void ShowWhenLong();
    void TakeKeyboard();
    bool GoOnWaiting();

    QProgressBar* m_bar; // belongs to the dialog
    QElapsedTimer m_sinceStart;
    bool m_cancelled = false;
    std::unique_ptr<WaitingAs> m_waiting; // so that Cancel also ends a wait for the database
};

} // namespace ptk
