#include "platform/Waiting.h"

#include <future>
#include <optional>
#include <utility>

namespace ptk {

namespace {

using SteadyClock = std::chrono::steady_clock;

WaitTurn& PresentTurn()
{
    thread_local WaitTurn turn;
    return turn;
}

thread_local bool isTurn = false;
thread_local SteadyClock::time_point lastTurn;

// Starts the work on a thread of its own; nothing where the system has no thread to spare.
std::optional<std::future<void>> Started(const std::function<void()>& work)
{
    try {
        return std::async(std::launch::async, work);
    } catch (const std::exception&) { // no thread, or no memory for one
        return std::nullopt;
    }
}

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
    const WaitTurn turn = PresentTurn(); // a copy: what the turn does may replace the present one
    const bool goesOn = turn();
    CameRound();
    return goesOn;
}

void waiting::CameRound()
{
    lastTurn = SteadyClock::now();
}

std::chrono::steady_clock::time_point waiting::NextTurn()
{
    return lastTurn + kSlice;
}

bool waiting::GoOn()
{
    return isTurn || !PresentTurn() || SteadyClock::now() < NextTurn() || Turn();
}

void waiting::Behind(const std::function<void()>& work)
{
    auto done = isTurn || !PresentTurn() ? std::nullopt : Started(work);
    if (!done) {
        return work();
    }
    while (done->wait_until(NextTurn()) != std::future_status::ready) {
        static_cast<void>(Turn());
    }
    done->get();
}

} // namespace ptk
