// What happens while a disk, a server or another program has to be waited for. This layer knows no windows: they hand in what is to be
// done.
#pragma once

#include <chrono>
#include <functional>

namespace ptk {

// Done at least every 50 ms of a wait, on the thread that waits; false gives the wait up, which raises 9. It must not come back to the
// database: what it asks there is refused with 5.
using WaitTurn = std::function<bool()>;

// Of the thread that asks, which is that of the windows, to be set before the first database is opened. Without it nothing is done
// meanwhile, and other threads wait by themselves.
void WhileWaiting(WaitTurn turn);

// While one lives, its turn takes the place of the one before: that of a work which shows how far it is and can be ended.
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

// False where the wait is to be given up.
[[nodiscard]] bool Turn();

// Whether a turn is being done right now.
[[nodiscard]] bool IsTurn();

// The event loop has come round by itself: the next turn of this thread is due a slice from now.
void CameRound();

// When a turn of this thread falls due; in the past where there was none yet.
[[nodiscard]] std::chrono::steady_clock::time_point NextTurn();

// To be asked again and again in a wait, and between the steps of work that may be slow: takes the turn that is due. False where it is to
// be given up.
[[nodiscard]] bool GoOn();

// Done when it returns, on a thread of its own while this one takes its turns where it has any; never given up. Raises what the work
// raises.
void Behind(const std::function<void()>& work);

} // namespace waiting

} // namespace ptk
