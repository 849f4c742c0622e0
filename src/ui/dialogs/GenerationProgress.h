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

    // False once the user has cancelled.
    bool GoOn(std::int32_t done);

    // After a box: what the user took to read it does not count.
    void Restart();

    // Cancel, Escape and the close box.
    void reject() override;

private:
    QProgressBar* m_bar; // belongs to the dialog
    QElapsedTimer m_sinceStart;
    bool m_cancelled = false;
};

} // namespace ptk
