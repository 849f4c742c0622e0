// The line to a server: what goes over a connection and back.
#pragma once

#include "store/postgres/ServerConnection.h"
#include "store/postgres/ServerFailure.h"
#include "store/postgres/ServerResult.h"

#include <cstdint>
#include <deque>
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

struct NumberedQuestion
{
    std::int64_t number; // no other question has it; not 0
    ServerCommand command;
};

// Everything that waits does so in slices (WhileWaiting), for no longer than its patience, and raises 5, 9 or 10 then; a line that was
// waited for in vain is lost. So is one that answers what was not asked for, or more than memory should hold (7). After a failure that the
// server told the line goes on.
class ServerLine
{
public:
    using Clock = ServerConnection::Clock;

    // Raises 14 when the server cannot be reached or does not let in within five seconds, or its patience where that is less, and what
    // ServerOptions raises of the address. `until` is a moment before which all of it is to be done.
    ServerLine(const std::string& address, LinePatience patience, std::optional<Clock::time_point> until = std::nullopt);

    // All in one round trip, one after the other up to the first that fails, whose failure is raised. Answers one result each. The first
    // one also shows whether this is a session of its own with the settings that were asked for; raises 14 where it is not. `behind` is
    // sent along and taken later, as if it were sent ahead when this is answered.
    std::vector<ServerResult> Send(const std::vector<ServerCommand>& commands, std::optional<Clock::time_point> until = std::nullopt,
                                   const std::vector<NumberedQuestion>& behind = {});

    // Sends what ends a transaction, as Send does: that wait is not given up, since what was given up would be done all the same.
    std::vector<ServerResult> Finish(const std::vector<ServerCommand>& commands);

    // Sends what ends a transaction and does not wait for the answer, which nobody needs.
    void SendUnheard(const char* sql);

    // A question whose answer is taken later, by its number. Several can be on their way; what is asked behind them hears them first.
    // TakeAhead answers nothing when something that ends a transaction was sent since.
    void SendAhead(const NumberedQuestion& question);
    [[nodiscard]] std::optional<ServerResult> TakeAhead(std::int64_t number);

    // A question whose rows are answered one at a time, and behind the last one a result that has only their columns. What is asked before
    // that drops the rows that were not taken; NextRow raises 21 then.
    ServerResult BeginRows(const ServerCommand& command);
    ServerResult NextRow();

    // Several commands in one text, in one round trip.
    void RunScript(const char* sql);

    // A COPY ... FROM STDIN, its lines in portions, and its end, which raises what the server refused. Nothing else is sent in between;
    // a copy that was not ended makes an end of the line.
    void BeginCopy(const std::string& sql);
    void PutCopy(std::string_view lines);
    void EndCopy();

    // False where it was lost: also noticed while nothing was asked. Does not wait.
    [[nodiscard]] bool IsAlive() { return m_connection.IsAlive(); }

    // What LISTEN promised, in the order of the commits that told it; each once. Does not wait for more.
    [[nodiscard]] std::vector<std::string> TakeNotices();

    // What the setting ptk.line of this session holds, and of no other.
    [[nodiscard]] const std::string& Token() const { return m_connection.Token(); }

    // How often an answer was waited for. One that was sent off before another wait came along in that.
    [[nodiscard]] std::int64_t RoundTrips() const { return m_roundTrips; }

private:
    // An answer that is to come.
    struct Awaited
    {
        std::string prepared; // the statement, where the answer says no more than that it is prepared
        bool wanted = true;
    };

    // What was sent off together and is to be heard.
    struct Portion
    {
        std::vector<Awaited> awaited;
        std::int64_t question = 0;  // its number, where the answer is taken later
        std::int64_t sentAfter = 0; // as many waits
        bool forgotten = false;     // nor hears what it failed with
        bool rowByRow = false;
    };

    [[nodiscard]] std::vector<ServerResult> Ask(const std::vector<ServerCommand>& commands, const std::vector<NumberedQuestion>& behind);
    void RequireOwnSession(const ServerResult& told);
    void Verify();
    void Post(const ServerCommand& command);
    void PostText(const ServerCommand& command);
    void PostPrepared(const ServerCommand& command);
    [[nodiscard]] std::string NameOf(const std::string& sql);
    void SendOff(std::int64_t question = 0);
    [[nodiscard]] std::optional<ServerFailure> HearAll();
    void RaiseAfterScript(const std::optional<ServerFailure>& failure);
    [[nodiscard]] Portion TakePortion();
    void CountWait(const Portion& portion);
    [[nodiscard]] std::vector<ServerResult> Hear(const Portion& portion);
    [[nodiscard]] std::vector<ServerResult> Hear(const Portion& portion, ServerResult first);
    [[nodiscard]] ServerResult NextEnd();
    void HearNext();
    void HearPreparedInVain();
    void HearAllPortions();

    ServerConnection m_connection;
    std::map<std::string, std::string, std::less<>> m_prepared; // names by statements
    std::vector<Awaited> m_awaited;                             // of what was posted and not sent off yet
    std::deque<Portion> m_onTheirWay;                           // in the order in which they were sent off
    std::map<std::int64_t, ServerResult> m_answers;             // to questions ahead, heard and not taken yet
    std::int64_t m_roundTrips = 0;
    std::int32_t m_names = 0; // given so far
    bool m_verified = false;  // the session is its own
};

} // namespace ptk
