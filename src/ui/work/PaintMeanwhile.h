// Windows while the database is waited for.
#pragma once

class QEvent;
class QObject;

namespace ptk {

// From here on they paint, and answer the desktop, also where no progress window lets them: no key or click is taken, no timer runs, so
// that nothing comes back to the database that is being waited for.
void PaintWhileWaiting();

// The same for once; always true.
bool PaintMeanwhile();

// Before an event is delivered: whether a window was told to close in the midst of a wait. It is told so again behind the wait; a progress
// window closes at once.
bool PostponesClose(QObject& window, QEvent& event);

} // namespace ptk
