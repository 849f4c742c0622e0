// An open database on a server.
#pragma once

#include "store/engine/Engine.h"
#include "store/engine/WhenHeld.h"
#include "store/postgres/line/ServerConnection.h"
#include "store/postgres/PostgresWords.h"
#include "store/postgres/WriteNumbers.h"

#include <chrono>
#include <map>
#include <optional>

namespace ptk {

class ServerFailure;
class ServerLine;
class ServerResult;
struct NumberedQuestion;
struct ServerCommand;

// Tag for a server's database that is about to get its tables.
struct NewStructure
{
};

// For work that takes its time: no answer is given up for taking long, only a server that says nothing at all.
struct Unhurried
{
    std::chrono::milliseconds silence = std::chrono::seconds(60);
};

// Whether a statement only reads or changes something.
enum class Intent
{
    Read,
    Change
};

// Failures carry the source "PostgreSQL". The hold is a transaction that only reads and begins with the first question: its answers are all
// of one moment, and nobody waits for it. A write is a transaction of its own; it waits for those who write the same rows, never for
// others. The engine waits for an answer for five seconds at most, a second try over a new line included; meanwhile the turns of
// platform/Waiting are taken.
//
// The connection outlives Close. A lost one is made anew where nothing can have been done over it: before an operation's first answer.
// Where the answer to a commit was lost, the engine asks over a new connection what became of the write.
class PostgresEngine final : public Engine
{
public:
    // Raises 14 (the server cannot be reached or does not let in) or 26 (no database of this program, or of a newer structure).
    explicit PostgresEngine(const std::string& address, WhenHeld whenHeld = WhenHeld::Wait);

    PostgresEngine(const std::string& address, Unhurried unhurried);

    // Opens any database, whatever is in it, and waits as Unhurried does.
    PostgresEngine(const std::string& address, NewStructure);
    ~PostgresEngine() override;

    [[nodiscard]] bool IsOpen() const override { return m_open; }
    void Close() override;
    bool Reopen() override;
    void Hold() override;
    void GiveUp() noexcept override;
    void Write(const std::function<void()>& steps) override;
    void WithoutTrail(const std::function<void()>& steps) override;
    void AddWholeEntry(const char* action, const std::string& file) override;
    [[nodiscard]] bool HasTrail() override { return true; }
    [[nodiscard]] bool HasTable(const char* /*name*/) override { return true; }
    void WillChangeNext() override { m_signsBehind = true; }
    [[nodiscard]] bool TellsNews() const override { return true; }
    [[nodiscard]] std::optional<std::int64_t> TakeNews() override;
    [[nodiscard]] const EngineWords& Words() const override { return kPostgresWords; }
    std::unique_ptr<Statement> Prepare(std::string_view sql) override;
    std::unique_ptr<Statement> PrepareToKeep(std::string_view sql) override;
    std::unique_ptr<Statement> PrepareForAllRows(std::string_view sql) override;
    void BeginMany() override;
    void RunScript(const char* sql) override;
    [[nodiscard]] std::int64_t LastKey() override;
    void Commit() override;
    std::unique_ptr<RowSink> Fill(const StoredTable& table) override;

    // Runs one statement within the hold or the write.
    [[nodiscard]] ServerResult Ask(const ServerCommand& command, Intent intent = Intent::Read);

    // Asks a question whose rows come one at a time, see ServerLine::BeginRows.
    [[nodiscard]] ServerResult BeginRows(const ServerCommand& command);
    [[nodiscard]] ServerResult NextRow();

    // Takes an INSERT, UPDATE or DELETE that answers no rows, of a write that has its numbers. It is sent with the next question or with
    // the end of the write, and may fail there. Answers false, and takes nothing, where the statement has to be run by itself.
    [[nodiscard]] bool Post(const ServerCommand& change);

    // Sends a question whose answer is taken later, by the number that this answers. Before the hold or the write has begun, it goes with
    // the first question.
    [[nodiscard]] std::int64_t AskAhead(const ServerCommand& command);

    // Takes the answer to the question of that number; nothing where it is lost, and for 0.
    [[nodiscard]] std::optional<ServerResult> TakeAhead(std::int64_t number);

    // True within the steps of Write and from BeginMany to Commit.
    [[nodiscard]] bool IsWriting() const { return m_transaction != Transaction::Read; }

    // How often an answer was waited for, over all connections.
    [[nodiscard]] std::int64_t RoundTrips() const;

protected:
    std::string StoredText(std::string_view query) override;

private:
    enum class Transaction
    {
        Read,
        Write, // of a step of the trail
        Many   // of no step
    };

    using Moment = std::optional<std::chrono::steady_clock::time_point>;

    void Connect(Moment until = std::nullopt);
    void RequireLine();
    void RequireOpen() const;
    void Begin(Transaction transaction);
    [[nodiscard]] ServerCommand Beginning() const;
    [[nodiscard]] bool IsToBeSigned(Intent intent) const;
    void TakeNumbers(const ServerResult& answer);
    void RequireBegun();
    void RequireSigned();
    void Flush();
    [[nodiscard]] std::vector<ServerResult> SendFirst(const std::vector<ServerCommand>& commands);
    void WriteOnce(const std::function<void()>& steps);
    void CommitWrite();
    void Settle(const ServerFailure& lost);
    [[nodiscard]] WriteFate FateOfWrite(ServerLine::Clock::time_point until);
    void Release() noexcept;

    std::string m_address;
    LinePatience m_patience;
    std::unique_ptr<ServerLine> m_line;
    bool m_checks = true; // the structure of what it connects to
    bool m_open = true;
    bool m_listens = false;
    bool m_begun = false; // a transaction that the server knows of
    Transaction m_transaction = Transaction::Read;
    WriteNumbers m_write;                   // of the write that runs or was the last
    bool m_signsBehind = false;             // the write is signed behind the next question
    std::vector<ServerCommand> m_posted;    // changes that were not sent yet
    std::vector<NumberedQuestion> m_behind; // to go with the first question
    std::int64_t m_questions = 0;           // asked ahead so far, over all connections
    std::int64_t m_formerRoundTrips = 0;
    std::map<std::string, std::string, std::less<>> m_storedTexts; // as they were when first asked for
};

} // namespace ptk
