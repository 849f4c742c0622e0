#include "store/postgres/ServerLine.h"

#include "store/postgres/ServerAddress.h"
#include "store/postgres/ServerFailure.h"

#include <fmt/format.h>
#include <poll.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace ptk {

namespace {

constexpr std::size_t kMostPrepared = 64;         // statements; those with figures in their text would never end
constexpr int kOldestServer = 130000;             // version 13: what the edit trail asks of a transaction
constexpr std::chrono::milliseconds kMargin(500); // before the program loses its patience the server says why

struct Options
{
    explicit Options(const std::string& address) : first(Library().conninfoParse(address.c_str(), &error)) {}
    ~Options()
    {
        Library().conninfoFree(first);
        Library().freemem(error);
    }
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;

    [[nodiscard]] std::string Of(std::string_view keyword) const
    {
        for (const PQconninfoOption* option = first; option != nullptr && option->keyword != nullptr; ++option) {
            if (keyword == option->keyword && option->val != nullptr) {
                return option->val;
            }
        }
        return {};
    }

    char* error = nullptr;
    PQconninfoOption* first;
};

// The library's own words would repeat the address, and with it a password.
void RefuseUnreadable(const Options& options)
{
    if (options.first == nullptr) {
        throw ServerFailure(engine::CannotOpen, "the address of the server cannot be read");
    }
    if (!options.Of("password").empty()) {
        throw ServerFailure(
            engine::CannotOpen,
            "the address of the server holds a password; put it into the password file (~/.pgpass) instead and take it out");
    }
}

// What every session relies on. Others are not to wait for a program that was stopped in the midst of a change.
std::string Settings(const std::optional<std::chrono::milliseconds>& patience)
{
    const auto limit = patience ? (*patience - std::min(*patience / 2, kMargin)).count() : 0;
    return fmt::format(" -c datestyle=ISO,YMD -c standard_conforming_strings=on -c extra_float_digits=1 -c client_min_messages=warning "
                       "-c statement_timeout={0} -c lock_timeout={1} -c idle_in_transaction_session_timeout={0}",
                       limit, limit * 9 / 10);
}

} // namespace

ServerLine::ServerLine(const std::string& address, std::optional<std::chrono::milliseconds> patience) : m_patience(patience)
{
    const Options options(address);
    RefuseUnreadable(options);
    Connect(address);
    if (Library().serverVersion(m_connection.get()) < kOldestServer) {
        throw ServerFailure(engine::CannotOpen, "the server is older than PostgreSQL 13");
    }
}

ServerLine::~ServerLine() = default;

// A password is asked for only where the server wants one and nobody has told it.
void ServerLine::Connect(const std::string& address)
{
    const auto told = passwords::Told(address);
    Try(address, told);
    if (Library().status(m_connection.get()) != CONNECTION_OK && Library().connectionNeedsPassword(m_connection.get()) != 0) {
        if (const auto password = passwords::Of(address)) {
            Try(address, password);
        }
    }
    PGconn* const connection = m_connection.get();
    if (Library().status(connection) != CONNECTION_OK) {
        passwords::Forget(address);
        std::string why = Library().errorMessage(connection);
        std::replace_if(
            why.begin(), why.end(), [](char c) { return c == '\n' || c == '\t'; }, ' ');
        why.erase(why.find_last_not_of(' ') + 1);
        throw ServerFailure(engine::CannotOpen, "the server cannot be reached or does not let in: " + why);
    }
    Require(Library().setnonblocking(connection, 1) == 0 ? 1 : 0);
    Require(Library().enterPipelineMode(connection));
}

void ServerLine::Try(const std::string& address, const std::optional<std::string>& password)
{
    const Options options(address);
    const std::string settings = options.Of("options") + Settings(m_patience);
    const std::string wait = std::to_string(m_patience.value_or(std::chrono::milliseconds(0)).count());
    const std::array<std::pair<const char*, const char*>, 7> wanted{
        {{"dbname", address.c_str()},
         {"fallback_application_name", "ptk"},
         {"client_encoding", "UTF8"},
         {"options", settings.c_str()},
         {"tcp_user_timeout", wait.c_str()},
         {password ? "password" : nullptr, password ? password->c_str() : nullptr},
         {nullptr, nullptr}}};
    std::array<const char*, wanted.size()> keywords{};
    std::array<const char*, wanted.size()> values{};
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        keywords.at(i) = wanted.at(i).first;
        values.at(i) = wanted.at(i).second;
    }
    m_connection.reset(Library().connectStartParams(keywords.data(), values.data(), 1));
    if (m_connection == nullptr) {
        throw ServerFailure(engine::NoMemory, "out of memory");
    }
    Library().setNoticeProcessor(
        m_connection.get(), [](void* /*none*/, const char* /*notice*/) {}, nullptr);
    AwaitConnection();
}

void ServerLine::AwaitConnection()
{
    PGconn* const connection = m_connection.get();
    Begin();
    if (Library().status(connection) == CONNECTION_BAD) {
        return;
    }
    PostgresPollingStatusType state = PGRES_POLLING_WRITING;
    while (state != PGRES_POLLING_OK && state != PGRES_POLLING_FAILED) {
        try {
            Wait(state == PGRES_POLLING_WRITING ? POLLOUT : POLLIN);
        } catch (const ServerFailure&) {
            throw ServerFailure(engine::CannotOpen, "the server does not answer");
        }
        state = Library().connectPoll(connection);
    }
}

void ServerLine::Lose(const std::string& message)
{
    m_lost = true;
    throw ServerFailure::OfLostConnection(message);
}

void ServerLine::Require(int done)
{
    if (done == 0) {
        Lose(Library().errorMessage(m_connection.get()));
    }
}

void ServerLine::Begin()
{
    m_until = Clock::now() + m_patience.value_or(std::chrono::hours(24 * 365));
}

void ServerLine::Wait(short events)
{
    pollfd socket{Library().socket(m_connection.get()), events, 0};
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(m_until - Clock::now()).count();
    const int ready = left > 0 ? poll(&socket, 1, static_cast<int>(std::min<std::int64_t>(left, 60'000))) : 0;
    if (ready == 0 && Clock::now() >= m_until) {
        Lose("it did not answer in time");
    }
}

void ServerLine::SendOff()
{
    Require(Library().pipelineSync(m_connection.get()));
    Flush();
}

void ServerLine::Flush()
{
    int left = Library().flush(m_connection.get());
    while (left > 0) {
        Wait(POLLIN | POLLOUT);
        Require(Library().consumeInput(m_connection.get())); // or both sides would wait for the other to read
        left = Library().flush(m_connection.get());
    }
    Require(left == 0 ? 1 : 0);
}

// Empty at the end of the answers to one statement.
ServerResult ServerLine::Next()
{
    while (Library().isBusy(m_connection.get()) != 0) {
        Wait(POLLIN);
        Require(Library().consumeInput(m_connection.get()));
    }
    return ServerResult(Library().getResult(m_connection.get()));
}

void ServerLine::Post(const ServerCommand& command)
{
    if (command.keep || command.describe) {
        PostPrepared(command);
    } else {
        PostText(command);
    }
    m_awaited.emplace_back();
}

namespace {

std::vector<const char*> Pointers(const std::vector<ServerValue>& values)
{
    std::vector<const char*> pointers(values.size());
    std::transform(values.begin(), values.end(), pointers.begin(),
                   [](const ServerValue& value) { return value ? value->c_str() : nullptr; });
    return pointers;
}

} // namespace

void ServerLine::PostText(const ServerCommand& command)
{
    const auto values = Pointers(command.values);
    Require(Library().sendQueryParams(m_connection.get(), command.sql.c_str(), static_cast<int>(values.size()), nullptr, values.data(),
                                      nullptr, nullptr, 0));
}

void ServerLine::PostPrepared(const ServerCommand& command)
{
    const std::string name = NameOf(command.sql);
    if (command.describe) {
        return Require(Library().sendDescribePrepared(m_connection.get(), name.c_str()));
    }
    const auto values = Pointers(command.values);
    Require(
        Library().sendQueryPrepared(m_connection.get(), name.c_str(), static_cast<int>(values.size()), values.data(), nullptr, nullptr, 0));
}

std::string ServerLine::NameOf(const std::string& sql)
{
    if (const auto found = m_prepared.find(sql); found != m_prepared.end()) {
        return found->second;
    }
    if (m_prepared.size() >= kMostPrepared) {
        m_prepared.clear();
        PostText({"DEALLOCATE ALL", {}, false, false});
        m_awaited.push_back({{}, false});
    }
    std::string name = fmt::format("ptk{}", ++m_names);
    Require(Library().sendPrepare(m_connection.get(), name.c_str(), sql.c_str(), 0, nullptr));
    m_awaited.push_back({sql, false});
    m_prepared.emplace(sql, name);
    return name;
}

namespace {

std::string FieldOf(const ServerResult& result, int field)
{
    const char* const text = Library().resultErrorField(result.Get(), field);
    return text == nullptr ? "" : text;
}

// Of a copy, whose rows are many, the table, line and column: "COPY _change, line 3, column before: ...".
std::string PlaceIn(const ServerResult& result)
{
    const std::string context = FieldOf(result, PG_DIAG_CONTEXT);
    const std::size_t place = context.find("COPY ");
    return place == std::string::npos ? "" : " (" + context.substr(place, context.find('\n', place) - place) + ')';
}

ServerFailure FailureOf(const ServerResult& result)
{
    const char* const state = Library().resultErrorField(result.Get(), PG_DIAG_SQLSTATE);
    const std::string words = FieldOf(result, PG_DIAG_MESSAGE_PRIMARY) + PlaceIn(result);
    return state == nullptr ? ServerFailure::OfLostConnection(words) : ServerFailure::OfState(state, words);
}

} // namespace

// What was posted is answered up to the first failure; behind it nothing was done.
std::vector<ServerResult> ServerLine::Hear()
{
    std::vector<ServerResult> results;
    std::optional<ServerFailure> failure;
    for (const Awaited& awaited : std::exchange(m_awaited, {})) {
        ServerResult result = Next();
        const ExecStatusType status = Library().resultStatus(result.Get());
        if (status == PGRES_FATAL_ERROR && !failure) {
            failure = FailureOf(result);
        }
        if (failure && failure->IsLost()) {
            m_lost = true;
            throw *failure;
        }
        if (failure) {
            m_prepared.erase(awaited.prepared);
        } else if (awaited.wanted) {
            results.push_back(std::move(result));
        }
        while (Next().Get() != nullptr) {
        }
    }
    static_cast<void>(Next()); // the end of the round trip
    if (failure) {
        throw *failure;
    }
    return results;
}

std::vector<ServerResult> ServerLine::Send(const std::vector<ServerCommand>& commands)
{
    if (m_lost) {
        Lose("");
    }
    Begin();
    HearUnheard();
    for (const ServerCommand& command : commands) {
        Post(command);
    }
    SendOff();
    ++m_roundTrips;
    return Hear();
}

void ServerLine::SendUnheard(const char* sql)
{
    Begin();
    HearUnheard();
    Post({sql, {}, true, false});
    SendOff();
    m_unheard = true;
}

void ServerLine::HearUnheard()
{
    if (std::exchange(m_unheard, false)) {
        static_cast<void>(Hear());
    }
}

void ServerLine::RunScript(const char* sql)
{
    Begin();
    HearUnheard();
    Require(Library().exitPipelineMode(m_connection.get()));
    Require(Library().sendQuery(m_connection.get(), sql));
    ++m_roundTrips;
    RaiseAfterScript(HearAll());
}

std::optional<ServerFailure> ServerLine::HearAll()
{
    std::optional<ServerFailure> failure;
    for (ServerResult result = Next(); result.Get() != nullptr; result = Next()) {
        if (Library().resultStatus(result.Get()) == PGRES_FATAL_ERROR) {
            failure = FailureOf(result);
        }
    }
    return failure;
}

void ServerLine::RaiseAfterScript(const std::optional<ServerFailure>& failure)
{
    if (failure && failure->IsLost()) {
        m_lost = true;
    } else {
        Require(Library().enterPipelineMode(m_connection.get()));
    }
    if (failure) {
        throw *failure;
    }
}

void ServerLine::BeginCopy(const std::string& sql)
{
    Begin();
    HearUnheard();
    Require(Library().exitPipelineMode(m_connection.get()));
    Require(Library().sendQuery(m_connection.get(), sql.c_str()));
    Flush();
    ServerResult result = Next();
    if (Library().resultStatus(result.Get()) != PGRES_COPY_IN) {
        const ServerFailure failure = FailureOf(result);
        static_cast<void>(HearAll());
        RaiseAfterScript(failure);
    }
}

// All of it leaves before the next portion comes: what waits is in memory.
void ServerLine::PutCopy(std::string_view lines)
{
    Begin();
    Require(Library().putCopyData(m_connection.get(), lines.data(), static_cast<int>(lines.size())) == 1 ? 1 : 0);
    Flush();
}

void ServerLine::EndCopy()
{
    Begin();
    Require(Library().putCopyEnd(m_connection.get(), nullptr) == 1 ? 1 : 0);
    Flush();
    ++m_roundTrips;
    RaiseAfterScript(HearAll());
}

bool ServerLine::IsAlive()
{
    pollfd socket{Library().socket(m_connection.get()), POLLIN, 0};
    if (!m_lost && poll(&socket, 1, 0) > 0 && Library().consumeInput(m_connection.get()) == 0) {
        m_lost = true;
    }
    return !m_lost;
}

std::vector<std::string> ServerLine::TakeNotices()
{
    std::vector<std::string> notices;
    if (IsAlive()) {
        Begin();
        HearUnheard(); // what is told lies behind it
        while (PGnotify* const notice = Library().notifies(m_connection.get())) {
            notices.emplace_back(notice->extra);
            Library().freemem(notice);
        }
    }
    return notices;
}

} // namespace ptk
