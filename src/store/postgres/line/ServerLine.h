// The line to a server: what goes over a connection and back.
#pragma once

#include "store/postgres/line/ServerConnection.h"
#include "store/postgres/line/ServerFailure.h"
#include "store/postgres/line/ServerResult.h"

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

// A statement to be sent, which holds one command.
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

// Each wait is cut in slices (WhileWaiting) and ends with the line's patience. It raises 10 when the time is over, 9 when it was given up,
// and 5 when it is asked for within the turn of another wait. A line that was waited for in vain is lost. So is one that answers what was
// not asked for (10), or more than memory should hold (7). After a failure that the server told the line goes on.
class ServerLine
{
public:
    using Clock = ServerConnection::Clock;

    // Connects. Raises 14 when the server cannot be reached or does not let in within five seconds, or its patience where that is less, and
    // what ServerOptions raises for the address. All of it is done before `until`, unless somebody types a password, after which the time
    // begins anew.
    ServerLine(const std::string& address, LinePatience patience, std::optional<Clock::time_point> until = std::nullopt);

    // Sends all commands in one round trip. The server runs one after the other up to the first that fails, whose failure is raised.
    // Answers one result each. The first call also checks whether this is a session of its own with the settings that were asked for, and
    // raises 14 where it is not. `behind` is sent along; its answers are taken later, as if SendAhead had sent it.
    std::vector<ServerResult> Send(const std::vector<ServerCommand>& commands, std::optional<Clock::time_point> until = std::nullopt,
                                   const std::vector<NumberedQuestion>& behind = {});

    // Sends what ends a transaction, as Send does. The wait is not given up, since the transaction would end all the same.
    std::vector<ServerResult> Finish(const std::vector<ServerCommand>& commands);

    // Sends what ends a transaction and does not wait for the answer, which nobody needs.
    void SendWithoutWaiting(const char* sql);

    // Sends a question whose answer TakeAhead takes later, by its number. Several can be on their way; what is asked after them takes their
    // answers in first. TakeAhead answers nothing when something that ends a transaction was sent since.
    void SendAhead(const NumberedQuestion& question);
    [[nodiscard]] std::optional<ServerResult> TakeAhead(std::int64_t number);

    // Asks a question whose rows come one at a time. Both answer the next row, or behind the last one a result that has only the columns.
    // Whatever else is asked before that drops the rows that were not taken; NextRow raises 21 then.
    ServerResult BeginRows(const ServerCommand& command);
    ServerResult NextRow();

    // Runs several commands of one text, in one round trip.
    void RunScript(const char* sql);

    // A COPY ... FROM STDIN: PutCopy sends its lines in portions, and EndCopy raises what the server refused. Nothing else is sent in
    // between. A copy that is not ended makes the line useless.
    void BeginCopy(const std::string& sql);
    void PutCopy(std::string_view lines);
    void EndCopy();

    // False when the line was lost, also while nothing was asked. Does not wait.
    [[nodiscard]] bool IsAlive() { return m_connection.IsAlive(); }

    // The notices that LISTEN asked for, in the order of the commits that sent them; each is answered once. Does not wait for more.
    [[nodiscard]] std::vector<std::string> TakeNotices();

    // The value of the setting ptk.line in this session, which no other session has.
    [[nodiscard]] const std::string& Token() const { return m_connection.Token(); }

    // How often an answer was waited for. A question that was sent off before the wait for another began costs no wait of its own.
    [[nodiscard]] std::int64_t RoundTrips() const { return m_roundTrips; }

private:
    // An answer that is to come.
    struct Awaited
    {
        std::string prepared; // the statement's text, where the answer only says that it is prepared
        bool wanted = true;
    };

    // Commands that were sent off together and whose answers are still to be taken.
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
    [[nodiscard]] std::string StatementName(const std::string& sql);
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
    std::map<std::string, std::string, std::less<>> m_prepared; // names of prepared statements, by their text
    std::vector<Awaited> m_awaited;                             // answers to what was posted and not sent off yet
    std::deque<Portion> m_onTheirWay;                           // in the order in which they were sent off
    std::map<std::int64_t, ServerResult> m_answers;             // to questions ahead, that came and were not taken yet
    std::int64_t m_roundTrips = 0;
    std::int32_t m_names = 0; // names given so far
    bool m_verified = false;  // whether the session was found to be its own
};

} // namespace ptk
