// The connection to a server: made, waited for, and given up when its time is over.
#pragma once

#include "store/postgres/line/ServerResult.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace ptk {

class ServerOptions;

// How long an answer is waited for. With `whole`, its end is waited for that long; without it, as long as something comes, and no longer
// than `silence` for the next part.
struct LinePatience
{
    using Milliseconds = std::chrono::milliseconds;

    LinePatience(std::optional<Milliseconds> wholeAnswer) : whole(wholeAnswer) {}
    LinePatience(std::nullopt_t /*none*/, Milliseconds longestSilence = std::chrono::seconds(60)) : silence(longestSilence) {}

    std::optional<Milliseconds> whole;
    Milliseconds silence{0};
};

// Waits in slices (WhileWaiting) and no longer than its patience. A fault of the connection itself raises 7, 9, 10 or 14 and drops the
// connection: nothing of what was on its way is of use then.
class ServerConnection
{
public:
    using Clock = std::chrono::steady_clock;

    // See ServerLine's constructor.
    ServerConnection(const std::string& address, LinePatience patience, std::optional<Clock::time_point> until);
    ~ServerConnection();
    ServerConnection(const ServerConnection&) = delete;
    ServerConnection& operator=(const ServerConnection&) = delete;

    // The library's connection; nullptr once it is dropped, which the library's functions take for a connection that is lost.
    [[nodiscard]] PGconn* Get() const { return m_handle.get(); }
    [[nodiscard]] const std::string& Token() const { return m_token; }

    // Begins a question: from here on its patience counts, or the time until `until`.
    void Begin(std::optional<Clock::time_point> until = std::nullopt, bool mayBeGivenUp = true);

    // Waits until all that was sent has left.
    void Flush();

    // Waits for the next result, which holds nothing at the end of the answers to one statement.
    [[nodiscard]] ServerResult Next();

    // Drops the connection and raises 10 when `done`, which a function of the library answered, is 0.
    void Require(int done);

    void RequireExpected(bool isExpected);
    void Drop() noexcept;
    [[nodiscard]] bool IsAlive();

private:
    struct Ending
    {
        void operator()(PGconn* connection) const { Library().finish(connection); }
    };

    void Connect(const std::string& address, const ServerOptions& options);
    void Try(const std::string& address, const ServerOptions& options, const std::optional<std::string>& password);
    void AwaitConnection();
    [[nodiscard]] Clock::time_point LatestConnection() const;
    void WaitUntil(Clock::time_point until);
    void Wait(short events);
    void TakeTurn();
    void TakeInput();
    void RequireRoom();
    [[noreturn]] void Lose(const std::string& message);

    std::unique_ptr<PGconn, Ending> m_handle;
    LinePatience m_patience;
    std::string m_token;
    Clock::time_point m_until;
    Clock::time_point m_nextTurn;
    bool m_silenceCounts = false; // each sign of life puts m_until off
    bool m_mayBeGivenUp = true;
    std::size_t m_inputs = 0; // portions of input that were taken for this answer
    std::size_t m_memory = 0; // bytes in use when this answer turned out to be a long one
};

} // namespace ptk
