// The line to a server: one connection, and what goes over it and back in time.
#pragma once

#include "store/postgres/ServerFailure.h"
#include "store/postgres/ServerResult.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// A value for a parameter as the server reads it; nothing for a null.
using ServerValue = std::optional<std::string>;

// One statement, of one command, to be sent.
struct ServerCommand
{
    std::string sql;
    std::vector<ServerValue> values;
    bool keep = false;     // prepared under a name, for the next time
    bool describe = false; // not run: the result has its columns and no rows
};

// Everything that waits does so for no longer than its patience and raises 5, 9 or 10 then; a line that was waited for in vain is lost.
// After a failure that the server told the line goes on.
class ServerLine
{
public:
    // Raises 14 when the server cannot be reached or does not let in, and for an address with a password in it: what stands in the
    // configuration is read by too many. Without a patience it waits as long as it takes.
    ServerLine(const std::string& address, std::optional<std::chrono::milliseconds> patience);
    ~ServerLine();
    ServerLine(const ServerLine&) = delete;
    ServerLine& operator=(const ServerLine&) = delete;

    // All in one round trip, one after the other up to the first that fails, whose failure is raised. Answers one result each.
    std::vector<ServerResult> Send(const std::vector<ServerCommand>& commands);

    // The same without waiting for the answer, which nobody needs.
    void SendUnheard(const char* sql);

    // Several commands in one text, in one round trip.
    void RunScript(const char* sql);

    // A COPY ... FROM STDIN, its lines in portions, and its end, which raises what the server refused. Nothing else is sent in between;
    // a copy that was not ended makes an end of the line.
    void BeginCopy(const std::string& sql);
    void PutCopy(std::string_view lines);
    void EndCopy();

    // False where it was lost: also noticed while nothing was asked. Does not wait.
    [[nodiscard]] bool IsAlive();

    // What LISTEN promised, in the order of the commits that told it; each once. Does not wait for more.
    [[nodiscard]] std::vector<std::string> TakeNotices();

    // How often an answer was waited for.
    [[nodiscard]] std::int64_t RoundTrips() const { return m_roundTrips; }

private:
    using Clock = std::chrono::steady_clock;
    struct Ending
    {
        void operator()(PGconn* connection) const { Library().finish(connection); }
    };

    // An answer that is to come.
    struct Awaited
    {
        std::string prepared; // the statement, where the answer says no more than that it is prepared
        bool wanted = true;
    };

    void Connect(const std::string& address);
    void Try(const std::string& address, const std::optional<std::string>& password);
    void AwaitConnection();
    void Begin();
    void Post(const ServerCommand& command);
    void PostText(const ServerCommand& command);
    void PostPrepared(const ServerCommand& command);
    [[nodiscard]] std::string NameOf(const std::string& sql);
    void SendOff();
    void Flush();
    [[nodiscard]] std::optional<ServerFailure> HearAll();
    void RaiseAfterScript(const std::optional<ServerFailure>& failure);
    void Wait(short events);
    [[nodiscard]] ServerResult Next();
    [[nodiscard]] std::vector<ServerResult> Hear();
    void HearUnheard();
    void Require(int done);
    [[noreturn]] void Lose(const std::string& message);

    std::unique_ptr<PGconn, Ending> m_connection;
    std::map<std::string, std::string, std::less<>> m_prepared; // names by statements
    std::vector<Awaited> m_awaited;                             // what was sent and not answered yet
    std::optional<std::chrono::milliseconds> m_patience;
    Clock::time_point m_until;
    std::int64_t m_roundTrips = 0;
    std::int32_t m_names = 0; // given so far
    bool m_unheard = false;   // nobody waits for what is awaited
    bool m_lost = false;
};

} // namespace ptk
