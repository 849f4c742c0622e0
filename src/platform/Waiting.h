// What happens while a database that others keep has to be waited for. This layer knows no windows: they hand in what is to be done.
#pragma once

#include <chrono>
#include <functional>

namespace ptk {

// Done at least every 50 ms of a wait, on the thread that waits; false gives the wait up, which raises 9. It must not come back to the
// database: what it asks there is refused with 5.
using WaitTurn = std::function<bool()>;

// Of the whole program, to be set before the first database is opened. Without it nothing is done meanwhile.
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

inline constexpr std::chrono::milliseconds kSlice(50);

// False where the wait is to be given up.
[[nodiscard]] bool Turn();

// Whether a turn is being done right now.
[[nodiscard]] bool IsTurn();

// A wait by looking again and again: takes the turns that fall due in it.
class Turns
{
public:
    // To be asked at each look. False where the wait is to be given up.
    [[nodiscard]] bool GoOn();

private:
    std::chrono::steady_clock::time_point m_next = std::chrono::steady_clock::now() + kSlice;
};

} // namespace waiting

} // namespace ptk
