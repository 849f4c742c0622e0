#include "store/postgres/PostgresEngine.h"

#include "platform/text/Text.h"
#include "platform/Waiting.h"
#include "store/postgres/line/ServerFailure.h"
#include "store/postgres/line/ServerLine.h"
#include "store/postgres/PostgresSink.h"
#include "store/postgres/PostgresStatement.h"
#include "store/postgres/ServerStructure.h"

#include <algorithm>
#include <cstdlib>
#include <thread>
#include <utility>

namespace ptk {

namespace {

constexpr std::chrono::seconds kPatience(5);
constexpr std::chrono::seconds kShortPatience(1); // of those who can as well ask later
constexpr int kMostTries = 5;                     // of a write that stood in another's way
constexpr std::size_t kMostPosted = 100;

constexpr const char* kBeginRead = "BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY";
constexpr const char* kBeginWrite = "BEGIN ISOLATION LEVEL READ COMMITTED"; // what a lock was waited for is seen as it is then

constexpr const char* kNewest = "SELECT COALESCE(NULLIF(current_setting('ptk.last', true), '')::bigint, 0)";

// What another tool put into a stored query may be anything.
bool OnlyChanges(const std::string& sql)
{
    const std::string text = LowerCase(sql);
    const bool changes = text.starts_with("insert ") || text.starts_with("update ") || text.starts_with("delete ");
    return changes && text.find("returning") == std::string::npos;
}

} // namespace

PostgresEngine::PostgresEngine(const std::string& address, WhenHeld whenHeld)
    : m_address(address), m_patience(whenHeld == WhenHeld::Wait ? LinePatience(kPatience) : LinePatience(kShortPatience))
{
    Connect();
}

PostgresEngine::PostgresEngine(const std::string& address, Unhurried unhurried)
    : m_address(address), m_patience(std::nullopt, unhurried.silence)
{
    Connect();
}

PostgresEngine::PostgresEngine(const std::string& address, NewStructure /*tag*/)
    : m_address(address), m_patience(std::nullopt), m_checks(false)
{
    Connect();
}

PostgresEngine::~PostgresEngine() = default;

void PostgresEngine::Connect(Moment until)
{
    m_formerRoundTrips = RoundTrips();
    m_line.reset();
    m_begun = false;
    m_listens = false;
    auto line = std::make_unique<ServerLine>(m_address, m_patience, until);
    if (m_checks) {
        RequireStructure(*line);
    }
    m_line = std::move(line);
}

// Outside a transaction: one that is not known to be lost.
void PostgresEngine::RequireLine()
{
    if (m_line == nullptr || !m_line->IsAlive()) {
        Connect();
    }
}

std::int64_t PostgresEngine::RoundTrips() const
{
    return m_formerRoundTrips + (m_line == nullptr ? 0 : m_line->RoundTrips());
}

void PostgresEngine::RequireOpen() const
{
    if (!m_open) {
        throw ServerFailure(engine::Misuse, "the database is closed");
    }
}

// Who comes back while a question is being waited for finds it as it is.
void PostgresEngine::Close()
{
    if (waiting::IsTurn()) {
        return;
    }
    Release();
    m_open = false;
}

bool PostgresEngine::Reopen()
{
    if (waiting::IsTurn()) {
        throw ServerFailure(engine::Busy, "the database is being waited for already");
    }
    RequireLine();
    m_open = true;
    m_transaction = Transaction::Read;
    return true;
}

void PostgresEngine::Hold()
{
    RequireOpen();
}

void PostgresEngine::GiveUp() noexcept
{
    Release();
}

// Nobody waits for the answer: what could go wrong has then ended the transaction as well.
void PostgresEngine::Release() noexcept
{
    if (waiting::IsTurn()) {
        return;
    }
    if (std::exchange(m_begun, false)) {
        try {
            m_line->SendWithoutWaiting("ROLLBACK");
        } catch (const ServerFailure&) {
            // deliberately: a lost line has no transaction any more, and the next who asks hears of it
        }
    }
    m_transaction = Transaction::Read;
    m_posted.clear();
    m_behind.clear();
}

void PostgresEngine::Begin(Transaction transaction)
{
    RequireOpen();
    Release();
    m_transaction = transaction;
}

ServerCommand PostgresEngine::Beginning() const
{
    return {m_transaction == Transaction::Read ? kBeginRead : kBeginWrite, {}, true, false};
}

// A write is signed as late as it can be, with its first statement that is to change something: the rows that it locked to look at are its
// own by then, so that the entries of a row have their numbers in the order of its changes.
bool PostgresEngine::IsToBeSigned(Intent intent) const
{
    return m_transaction == Transaction::Write && m_write.transaction.empty() && intent == Intent::Change;
}

void PostgresEngine::TakeNumbers(const ServerResult& answer)
{
    m_write = NumbersIn(answer, *m_line);
    TookStep(m_write.step);
}

ServerResult PostgresEngine::Ask(const ServerCommand& command, Intent intent)
{
    RequireOpen();
    std::vector<ServerCommand> commands = std::exchange(m_posted, {});
    if (!m_begun) {
        commands.push_back(Beginning());
    }
    const bool signsBehind = std::exchange(m_signsBehind, false) && IsToBeSigned(Intent::Change);
    const bool signsBefore = !signsBehind && IsToBeSigned(intent);
    if (signsBefore) {
        commands.push_back(Numbering(Signature(), WantedStep()));
    }
    commands.push_back(command);
    if (signsBehind) {
        commands.push_back(Numbering(Signature(), WantedStep()));
    }
    std::vector<ServerResult> results = m_begun ? m_line->Send(commands) : SendFirst(commands);
    if (signsBehind) {
        TakeNumbers(results.back());
        results.pop_back();
    }
    if (signsBefore) {
        TakeNumbers(results.at(results.size() - 2));
    }
    return std::move(results.back());
}

bool PostgresEngine::Post(const ServerCommand& change)
{
    RequireOpen();
    const bool isNumbered = m_begun && m_transaction == Transaction::Write && !m_write.transaction.empty();
    if (!isNumbered || m_posted.size() >= kMostPosted || !OnlyChanges(change.sql)) {
        return false;
    }
    m_posted.push_back(change);
    return true;
}

void PostgresEngine::Flush()
{
    if (!m_posted.empty()) {
        static_cast<void>(m_line->Send(std::exchange(m_posted, {})));
    }
}

std::int64_t PostgresEngine::AskAhead(const ServerCommand& command)
{
    RequireOpen();
    Flush();
    const NumberedQuestion question{++m_questions, command};
    if (m_begun) {
        m_line->SendAhead(question);
    } else {
        m_behind.push_back(question);
    }
    return question.number;
}

std::optional<ServerResult> PostgresEngine::TakeAhead(std::int64_t number)
{
    const auto waits = std::find_if(m_behind.begin(), m_behind.end(), [&](const auto& question) { return question.number == number; });
    if (waits != m_behind.end()) {
        const ServerCommand command = waits->command;
        m_behind.erase(waits);
        return Ask(command);
    }
    return number != 0 && m_begun ? m_line->TakeAhead(number) : std::nullopt;
}

ServerResult PostgresEngine::BeginRows(const ServerCommand& command)
{
    RequireOpen();
    RequireBegun();
    return m_line->BeginRows(command);
}

ServerResult PostgresEngine::NextRow()
{
    return m_line->NextRow();
}

// For what does not go through Ask.
void PostgresEngine::RequireBegun()
{
    Flush();
    if (!m_begun) {
        static_cast<void>(SendFirst({Beginning()}));
    }
}

void PostgresEngine::RequireSigned()
{
    RequireBegun();
    if (m_transaction == Transaction::Write && m_write.transaction.empty()) {
        TakeNumbers(m_line->Send({Numbering(Signature(), WantedStep())}).front());
    }
}

// Over a new line where the old one turns out to be lost: nothing of this transaction was committed. Whether it is lost is not asked
// before, as Reopen just did.
std::vector<ServerResult> PostgresEngine::SendFirst(const std::vector<ServerCommand>& commands)
{
    const auto patient = std::chrono::steady_clock::now() + m_patience.whole.value_or(m_patience.silence);
    const Moment until = m_patience.whole ? Moment(patient) : std::nullopt;
    const std::vector<NumberedQuestion> behind = std::exchange(m_behind, {});
    try {
        if (m_line == nullptr) {
            Connect(until);
        }
        m_begun = true;
        return m_line->Send(commands, until, behind);
    } catch (const ServerFailure& failure) {
        if (!failure.IsLost() || std::chrono::steady_clock::now() >= patient) {
            throw;
        }
    }
    Connect(until);
    m_begun = true;
    return m_line->Send(commands, until, behind);
}

void PostgresEngine::Write(const std::function<void()>& steps)
{
    int tries = 0;
    while (true) {
        try {
            return WriteOnce(steps);
        } catch (const ServerFailure& failure) {
            if (!failure.MayBeTriedAgain() || ++tries == kMostTries) {
                throw;
            }
        }
    }
}

void PostgresEngine::WriteOnce(const std::function<void()>& steps)
{
    Begin(Transaction::Write);
    TookStep(0);
    m_write = {};
    m_signsBehind = false;
    try {
        steps();
    } catch (...) {
        Release();
        throw;
    }
    CommitWrite();
}

// With the changes that were not sent yet. Also asks whether the step left any entry.
void PostgresEngine::CommitWrite()
{
    if (!m_begun) { // nothing was asked
        return Release();
    }
    try {
        std::vector<ServerCommand> commands = std::exchange(m_posted, {});
        commands.push_back({kNewest, {}, true, false});
        commands.push_back({"COMMIT", {}, true, false});
        const auto results = m_line->Finish(commands);
        const std::int64_t newest = results.at(results.size() - 2).IntegerAt(0, 0);
        TookStep(newest == 0 ? 0 : StepNumber());
        LeftEntry(newest);
    } catch (const ServerFailure& failure) {
        if (!failure.IsLost()) {
            Release();
            throw;
        }
        Settle(failure);
    }
    m_begun = false;
    m_transaction = Transaction::Read;
}

// The answer to a commit was lost. What became of it stands in the trail, also after the server was started anew.
void PostgresEngine::Settle(const ServerFailure& lost)
{
    if (m_write.transaction.empty()) { // nothing was changed
        throw lost;
    }
    const auto until = ServerLine::Clock::now() + kPatience;
    do {
        switch (FateOfWrite(until)) {
        case WriteFate::Stored:
            return;
        case WriteFate::Dropped:
            throw lost;
        case WriteFate::Unknown:
            std::this_thread::sleep_for(waiting::kSlice);
            static_cast<void>(waiting::Turn()); // not to be given up: something was stored, or not
        }
    } while (std::chrono::steady_clock::now() < until);
    throw ServerFailure(engine::Lost, "the connection to the server was lost while a change was stored, and whether it was stored is not "
                                      "known: look before you enter it again");
}

WriteFate PostgresEngine::FateOfWrite(ServerLine::Clock::time_point until)
{
    try {
        Connect(until);
        return FateOf(m_write, Signature(), *m_line, until);
    } catch (const ServerFailure&) {
        return WriteFate::Unknown;
    }
}

std::optional<std::int64_t> PostgresEngine::TakeNews()
{
    RequireOpen();
    Release();
    RequireLine();
    if (!std::exchange(m_listens, true)) {
        static_cast<void>(m_line->Send({{"LISTEN ptk_change", {}, false, false}}));
        return 0;
    }
    std::optional<std::int64_t> first;
    for (const std::string& notice : m_line->TakeNotices()) {
        const std::int64_t told = std::strtoll(notice.c_str(), nullptr, 10);
        first = first ? std::min(*first, told) : told;
    }
    return first;
}

void PostgresEngine::WithoutTrail(const std::function<void()>& steps)
{
    const auto tell = [this](const char* untold) {
        static_cast<void>(Ask({"SELECT set_config('ptk.untold', $1, true)", {untold}, false, false}));
    };
    tell("1");
    steps(); // a failure ends the transaction, and the setting with it
    tell("");
}

void PostgresEngine::AddWholeEntry(const char* action, const std::string& file)
{
    RequireSigned();
    static_cast<void>(Ask({"SELECT ptk_add_entry($1, $2)", {action, file}, false, false}));
}

std::unique_ptr<Statement> PostgresEngine::Prepare(std::string_view sql)
{
    RequireOpen();
    return std::make_unique<PostgresStatement>(*this, sql, Usage::Once);
}

std::unique_ptr<Statement> PostgresEngine::PrepareToKeep(std::string_view sql)
{
    RequireOpen();
    return std::make_unique<PostgresStatement>(*this, sql, Usage::Often);
}

std::unique_ptr<Statement> PostgresEngine::PrepareForAllRows(std::string_view sql)
{
    RequireOpen();
    return std::make_unique<PostgresStatement>(*this, sql, Usage::RowByRow);
}

// All of them by one question: there are few.
std::string PostgresEngine::StoredText(std::string_view query)
{
    if (m_storedTexts.empty()) {
        const auto all = Prepare("SELECT name, sql FROM _StoredQuery");
        all->ForEachRow([&] { m_storedTexts.emplace(all->TextAt(0), all->TextAt(1)); });
    }
    const auto found = m_storedTexts.find(query);
    return found != m_storedTexts.end() ? found->second : m_storedTexts.emplace(query, Engine::StoredText(query)).first->second;
}

void PostgresEngine::BeginMany()
{
    if (!m_begun || m_transaction != Transaction::Many) {
        Begin(Transaction::Many);
    }
}

void PostgresEngine::RunScript(const char* sql)
{
    RequireSigned();
    m_line->RunScript(sql);
}

std::int64_t PostgresEngine::LastKey()
{
    return Ask({"SELECT lastval()", {}, true, false}).IntegerAt(0, 0);
}

void PostgresEngine::Commit()
{
    if (std::exchange(m_begun, false)) {
        static_cast<void>(m_line->Finish({{"COMMIT", {}, true, false}}));
    }
    m_transaction = Transaction::Read;
}

std::unique_ptr<RowSink> PostgresEngine::Fill(const StoredTable& table)
{
    RequireSigned();
    return std::make_unique<PostgresSink>(*m_line, table);
}

} // namespace ptk
