// Lets windows paint while the program waits for the database or a disk.
#pragma once

class QEvent;
class QObject;

namespace ptk {

// From this call on, windows paint and answer the desktop during each wait, also where no progress window lets them. No key or click is
// taken and no timer runs, so that nothing uses the database that is being waited for. To be called once, with the application there.
void PaintWhileWaiting();

// Lets windows paint once, without keys, clicks and timers. Always true.
bool PaintMeanwhile();

// To be asked before an event is delivered: true where it tells a window to close in the middle of a wait. The event is then ignored, and
// the window is closed after the wait. A progress window closes at once.
bool PostponesClose(QObject& window, QEvent& event);

} // namespace ptk
