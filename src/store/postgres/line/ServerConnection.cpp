#include "store/postgres/line/ServerConnection.h"

#include "platform/system/Process.h"
#include "platform/text/Joined.h"
#include "platform/Waiting.h"
#include "store/postgres/line/ServerAddress.h"
#include "store/postgres/line/ServerFailure.h"
#include "store/postgres/line/ServerName.h"
#include "store/postgres/line/ServerOptions.h"

#include <fmt/format.h>
#include <poll.h>

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

namespace ptk {

namespace {

constexpr int kOldestServer = 130000;             // version 13: the edit trail needs its functions
constexpr std::chrono::milliseconds kMargin(500); // the server gives up that much before the program does, and says why
constexpr std::chrono::milliseconds kToConnect(5000);

constexpr std::size_t kInputsBetweenLooks = 256;             // of some kilobytes each
constexpr std::size_t kMostMemory = std::size_t{128} << 20U; // bytes of one answer; what the program asks for takes a tenth

constexpr const char* kGivenUp = "the wait for the server was given up";

std::string NewToken()
{
    std::random_device random;
    return fmt::format("{:08x}{:08x}", random(), random());
}

// The settings that every session relies on. Their limits keep others from waiting for a program that was stopped in the midst of a change.
// The token shows whether all of them arrived, and whether a later question goes to the same session.
std::string Settings(const LinePatience& patience, const std::string& token)
{
    const auto limit = patience.whole ? (*patience.whole - std::min(*patience.whole / 2, kMargin)).count() : 0;
    const auto forLocks = patience.whole ? limit * 9 / 10 : patience.silence.count() * 9 / 10;
    return fmt::format(" -c datestyle=ISO,YMD -c standard_conforming_strings=on -c extra_float_digits=1 -c client_min_messages=warning "
                       "-c statement_timeout={0} -c lock_timeout={1} -c idle_in_transaction_session_timeout={0} -c ptk.line={2}",
                       limit, forLocks, token);
}

// "a,a": the text once for each address.
std::string Repeated(const std::string& text, std::size_t times)
{
    std::string all = text;
    for (std::size_t i = 1; i < times; ++i) {
        all += ',' + text;
    }
    return all;
}

struct ConnectionWords
{
    std::vector<std::pair<const char*, std::string>> words;

    void Add(const char* keyword, std::string value) { words.emplace_back(keyword, std::move(value)); }

    [[nodiscard]] PGconn* Start() const
    {
        std::vector<const char*> keywords;
        std::vector<const char*> values;
        for (const auto& [keyword, value] : words) {
            keywords.push_back(keyword);
            values.push_back(value.c_str());
        }
        keywords.push_back(nullptr);
        values.push_back(nullptr);
        return Library().connectStartParams(keywords.data(), values.data(), 1);
    }
};

} // namespace

ServerConnection::ServerConnection(const std::string& address, LinePatience patience, std::optional<Clock::time_point> until)
    : m_patience(patience), m_token(NewToken())
{
    WaitUntil(std::min(until.value_or(LatestConnection()), LatestConnection()));
    Connect(address, ServerOptions(address));
    if (Library().serverVersion(m_handle.get()) < kOldestServer) {
        throw ServerFailure(engine::CannotOpen, "the server is older than PostgreSQL 13");
    }
}

ServerConnection::~ServerConnection() = default;

ServerConnection::Clock::time_point ServerConnection::LatestConnection() const
{
    return Clock::now() + std::min(m_patience.whole.value_or(kToConnect), kToConnect);
}

// A password is asked for only where the server wants one and nobody has told it.
void ServerConnection::Connect(const std::string& address, const ServerOptions& options)
{
    const auto told = passwords::Told(address);
    Try(address, options, told);
    if (Library().status(m_handle.get()) != CONNECTION_OK && Library().connectionNeedsPassword(m_handle.get()) != 0) {
        if (const auto password = passwords::Of(address)) {
            WaitUntil(LatestConnection()); // the time a person took to type does not count
            Try(address, options, password);
        }
    }
    PGconn* const connection = m_handle.get();
    if (Library().status(connection) != CONNECTION_OK) {
        passwords::Forget(address);
        throw ServerFailure(engine::CannotOpen,
                            "the server cannot be reached or does not let in: " + options.Cleaned(Library().errorMessage(connection)));
    }
    Require(Library().setnonblocking(connection, 1) == 0 ? 1 : 0);
    Require(Library().enterPipelineMode(connection));
}

void ServerConnection::Try(const std::string& address, const ServerOptions& options, const std::optional<std::string>& password)
{
    ConnectionWords wanted;
    wanted.Add("dbname", address);
    wanted.Add("fallback_application_name", "ptk");
    wanted.Add("client_encoding", "UTF8");
    wanted.Add("options", options.Of("options") + Settings(m_patience, m_token));
    wanted.Add("tcp_user_timeout", std::to_string(m_patience.whole.value_or(m_patience.silence).count()));
    if (const std::string mode = options.ImpliedProtection(); !mode.empty()) {
        wanted.Add("sslmode", mode);
    }
    if (const std::string name = options.NameToLookUp(); !name.empty()) { // the library would wait for it in one piece
        const std::vector<std::string> addresses = LookUpServer(name, m_until);
        wanted.Add("host", Repeated(name, addresses.size()));
        wanted.Add("hostaddr", Joined(addresses, ","));
    }
    if (password) {
        wanted.Add("password", *password);
    }
    m_handle.reset(wanted.Start());
    if (m_handle == nullptr) {
        throw ServerFailure(engine::NoMemory, "out of memory");
    }
    Library().setNoticeProcessor(
        m_handle.get(), [](void* /*none*/, const char* /*notice*/) {}, nullptr);
    AwaitConnection();
}

void ServerConnection::AwaitConnection()
{
    if (Library().status(m_handle.get()) == CONNECTION_BAD) {
        return;
    }
    PostgresPollingStatusType state = PGRES_POLLING_WRITING;
    while (state != PGRES_POLLING_OK && state != PGRES_POLLING_FAILED) {
        try {
            Wait(state == PGRES_POLLING_WRITING ? POLLOUT : POLLIN);
        } catch (const ServerFailure& failure) {
            if (!failure.IsLost()) {
                throw;
            }
            throw ServerFailure(engine::CannotOpen, "the server does not answer");
        }
        state = Library().connectPoll(m_handle.get());
    }
}

// Closes the connection, which tells the server at once: it need not wait to see that the transaction has ended.
void ServerConnection::Drop() noexcept
{
    m_handle.reset();
}

void ServerConnection::Lose(const std::string& message)
{
    Drop();
    throw ServerFailure::OfLostConnection(message);
}

void ServerConnection::Require(int done)
{
    if (done == 0) {
        Lose(Library().errorMessage(m_handle.get()));
    }
}

void ServerConnection::RequireExpected(bool isExpected)
{
    if (!isExpected) {
        Lose("it answered what was not asked for");
    }
}

void ServerConnection::Begin(std::optional<Clock::time_point> until, bool mayBeGivenUp)
{
    if (m_handle == nullptr) {
        Lose("");
    }
    WaitUntil(until.value_or(Clock::now() + m_patience.whole.value_or(m_patience.silence)));
    m_silenceCounts = !until && !m_patience.whole;
    m_mayBeGivenUp = mayBeGivenUp;
    m_inputs = 0;
}

void ServerConnection::WaitUntil(Clock::time_point until)
{
    if (waiting::IsTurn()) {
        throw ServerFailure(engine::Busy, "the database is being waited for already");
    }
    m_until = until;
    m_nextTurn = waiting::NextTurn(); // many short waits in a row take turns, too
}

void ServerConnection::Wait(short events)
{
    pollfd socket{Library().socket(m_handle.get()), events, 0};
    int ready = 0;
    while (ready <= 0) {
        const auto now = Clock::now();
        if (now >= m_until) {
            Lose("it did not answer in time");
        }
        if (now >= m_nextTurn) {
            TakeTurn();
            continue;
        }
        const auto slice = std::chrono::ceil<std::chrono::milliseconds>(std::min(m_until, m_nextTurn) - now);
        ready = poll(&socket, 1, static_cast<int>(slice.count()));
    }
    if (m_silenceCounts) {
        m_until = Clock::now() + m_patience.silence;
    }
}

void ServerConnection::TakeTurn()
{
    const bool goesOn = waiting::Turn();
    if (!goesOn && m_mayBeGivenUp) {
        Drop();
        throw ServerFailure(engine::Interrupted, kGivenUp);
    }
    m_nextTurn = Clock::now() + waiting::kSlice;
}

void ServerConnection::TakeInput()
{
    Require(Library().consumeInput(m_handle.get()));
    if (++m_inputs % kInputsBetweenLooks == 0) {
        RequireRoom();
    }
}

// Refuses an answer that is too long: the library keeps it whole in memory, however long somebody makes it.
void ServerConnection::RequireRoom()
{
    const std::size_t now = MemoryInUse();
    m_memory = m_inputs == kInputsBetweenLooks ? now : m_memory;
    if (now > m_memory + kMostMemory) {
        Drop();
        throw ServerFailure(engine::NoMemory, "the server answered more than memory should hold");
    }
}

void ServerConnection::Flush()
{
    int left = Library().flush(m_handle.get());
    while (left > 0) {
        Wait(POLLIN | POLLOUT);
        TakeInput(); // or both sides would wait for the other to read
        left = Library().flush(m_handle.get());
    }
    Require(left == 0 ? 1 : 0);
}

ServerResult ServerConnection::Next()
{
    while (Library().isBusy(m_handle.get()) != 0) {
        Wait(POLLIN);
        TakeInput();
    }
    return ServerResult(Library().getResult(m_handle.get()));
}

bool ServerConnection::IsAlive()
{
    if (m_handle == nullptr) {
        return false;
    }
    pollfd socket{Library().socket(m_handle.get()), POLLIN, 0};
    if (poll(&socket, 1, 0) > 0 && Library().consumeInput(m_handle.get()) == 0) {
        Drop();
    }
    return m_handle != nullptr;
}

} // namespace ptk
