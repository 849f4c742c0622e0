// Tells how far a report over several employees is, once it takes longer than half a second, and lets the user stop it.
#pragma once

#include <cstdint>
#include <QDialog>
#include <QElapsedTimer>

class QProgressBar;

namespace ptk {

// Opens, and lets other events happen, only inside GoOn, never by a timer of its own: a box that tells of an employee's failure is then
// never covered by it.
class GenerationProgress final : public QDialog
{
    Q_OBJECT

public:
    GenerationProgress(QWidget* window, std::int32_t total);

    bool GoOn(std::int32_t done); // false once the user has cancelled
    void Restart();               // after a box: what the user took to read it does not count

    void reject() override; // Cancel, Escape and the close box

private:
    QProgressBar* m_bar; // belongs to the dialog
    QElapsedTimer m_sinceStart;
    bool m_cancelled = false;
};

} // namespace ptk
