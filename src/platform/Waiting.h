// What the program does while it waits for a disk, a server or another program. This layer knows no windows: they hand in what is to be
// done.
#pragma once

#include <chrono>
#include <functional>

namespace ptk {

// What is done at least every 50 ms of a wait, on the thread that waits. False gives the wait up, and the operation raises 9. It must not
// use the database: what it asks there is refused with 5.
using WaitTurn = std::function<bool()>;

// Sets the turn of the calling thread; that of the windows calls it before the first database is opened. A thread without one just waits.
void WhileWaiting(WaitTurn turn);

// While an object of this class lives, its turn takes the place of the thread's: for a work that shows its progress and can be cancelled.
class WaitingAs
{
public:
    explicit WaitingAs(WaitTurn turn);
    ~WaitingAs();
    WaitingAs(const WaitingAs&) = delete;
    WaitingAs& operator=(const WaitingAs&) = delete;

private:
    WaitTurn m_before;
};

namespace waiting {

inline constexpr std::chrono::milliseconds kSlice(25); // so that a slice and a short step between two of them stay below 50

// Takes a turn of this thread, if it has one. False where the wait is to be given up.
[[nodiscard]] bool Turn();

// Whether this thread is inside a turn right now.
[[nodiscard]] bool IsTurn();

// Says that the event loop has come round by itself: the next turn of this thread is due a slice from now.
void CameRound();

// When the next turn of this thread falls due; a moment in the past where there was no turn yet.
[[nodiscard]] std::chrono::steady_clock::time_point NextTurn();

// Takes the turn that is due, if one is; false where the wait is to be given up. To be called often in a wait and in work that may be slow.
[[nodiscard]] bool GoOn();

// Runs `work` to its end, on a thread of its own while this thread takes its turns; on this thread where it has no turn or no other thread
// can be started. The work is never given up. Raises what the work raises.
void Behind(const std::function<void()>& work);

} // namespace waiting

} // namespace ptk
