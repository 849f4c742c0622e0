#include "platform/Waiting.h"

#include <utility>

namespace ptk {

namespace {

WaitTurn& PresentTurn()
{
    static WaitTurn turn;
    return turn;
}

thread_local bool isTurn = false; // who waits on another thread than that of the windows waits by themselves

} // namespace

void WhileWaiting(WaitTurn turn)
{
    PresentTurn() = std::move(turn);
}

WaitingAs::WaitingAs(WaitTurn turn) : m_before(std::exchange(PresentTurn(), std::move(turn))) {}

WaitingAs::~WaitingAs()
{
    PresentTurn() = std::move(m_before);
}

bool waiting::IsTurn()
{
    return isTurn;
}

bool waiting::Turn()
{
    if (isTurn || !PresentTurn()) {
        return true;
    }
    struct InTurn
    {
        InTurn() { isTurn = true; }
        ~InTurn() { isTurn = false; }
    };
    const InTurn inTurn;
    const WaitTurn turn = PresentTurn(); // which may end with what it does
    return turn();
}

bool waiting::Turns::GoOn()
{
    if (std::chrono::steady_clock::now() < m_next) {
        return true;
    }
    const bool goesOn = Turn();
    m_next = std::chrono::steady_clock::now() + kSlice;
    return goesOn;
}

} // namespace ptk
