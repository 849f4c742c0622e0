#include "store/postgres/line/ServerLine.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace ptk {

namespace {

constexpr std::size_t kMostPrepared = 64; // statements; there is no end of those with figures in their text

constexpr const char* kOwnToken = "SELECT current_setting('ptk.line', true)";
constexpr const char* kSharedSession = "the connection does not keep its settings: between the program and the server stands something "
                                       "that shares sessions among programs. Connect to the server itself";

} // namespace

ServerLine::ServerLine(const std::string& address, LinePatience patience, std::optional<Clock::time_point> until)
    : m_connection(address, patience, until)
{
}

void ServerLine::SendOff(std::int64_t question)
{
    m_connection.Require(Library().pipelineSync(m_connection.Get()));
    m_connection.Flush();
    m_onTheirWay.push_back({std::exchange(m_awaited, {}), question, m_roundTrips});
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
    m_connection.Require(Library().sendQueryParams(m_connection.Get(), command.sql.c_str(), static_cast<int>(values.size()), nullptr,
                                                   values.data(), nullptr, nullptr, 0));
}

void ServerLine::PostPrepared(const ServerCommand& command)
{
    const std::string name = StatementName(command.sql);
    if (command.describe) {
        return m_connection.Require(Library().sendDescribePrepared(m_connection.Get(), name.c_str()));
    }
    const auto values = Pointers(command.values);
    m_connection.Require(
        Library().sendQueryPrepared(m_connection.Get(), name.c_str(), static_cast<int>(values.size()), values.data(), nullptr, nullptr, 0));
}

std::string ServerLine::StatementName(const std::string& sql)
{
    if (const auto found = m_prepared.find(sql); found != m_prepared.end()) {
        return found->second;
    }
    if (m_prepared.size() >= kMostPrepared) {
        m_prepared.clear();
        PostText({"DEALLOCATE ALL", {}, false, false});
        m_awaited.push_back({{}, false});
    }
    std::string name = fmt::format("ptk{}_{}", m_connection.Token(), ++m_names); // unlike the names of others who come to the same session
    m_connection.Require(Library().sendPrepare(m_connection.Get(), name.c_str(), sql.c_str(), 0, nullptr));
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

// Where a copy failed, whose rows are many: "COPY _change, line 3, column before: ..." names the table, line and column.
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

namespace {

// Whether a result answers a question, by a failure or by one of the ends of what was asked. A copy is begun by BeginCopy alone.
bool IsAnswer(const ServerResult& result)
{
    switch (Library().resultStatus(result.Get())) {
    case PGRES_EMPTY_QUERY:
    case PGRES_COMMAND_OK:
    case PGRES_TUPLES_OK:
    case PGRES_FATAL_ERROR:
    case PGRES_PIPELINE_ABORTED:
        return true;
    default:
        return false;
    }
}

} // namespace

std::vector<ServerResult> ServerLine::Hear(const Portion& portion)
{
    return Hear(portion, NextEnd());
}

// Answers the end of what was asked, past the rows that nobody took.
ServerResult ServerLine::NextEnd()
{
    ServerResult result = m_connection.Next();
    while (result.IsOneOfMany()) {
        result = m_connection.Next();
    }
    return result;
}

// Takes the answers to what was sent off together, up to the first failure; behind it nothing was done.
std::vector<ServerResult> ServerLine::Hear(const Portion& portion, ServerResult first)
{
    std::vector<ServerResult> results;
    std::optional<ServerFailure> failure;
    ServerResult result = std::move(first);
    for (const Awaited& awaited : portion.awaited) {
        m_connection.RequireExpected(IsAnswer(result));
        if (Library().resultStatus(result.Get()) == PGRES_FATAL_ERROR && !failure) {
            failure = FailureOf(result);
        }
        if (failure && failure->IsLost()) {
            m_connection.Drop();
            throw *failure;
        }
        if (failure) {
            m_prepared.erase(awaited.prepared);
        } else if (awaited.wanted) {
            results.push_back(std::move(result));
        }
        m_connection.RequireExpected(m_connection.Next().Get() == nullptr);
        result = m_connection.Next();
    }
    m_connection.RequireExpected(Library().resultStatus(result.Get()) == PGRES_PIPELINE_SYNC); // the end of the round trip
    if (failure) {
        throw *failure;
    }
    return results;
}

std::vector<ServerResult> ServerLine::Send(const std::vector<ServerCommand>& commands, std::optional<Clock::time_point> until,
                                           const std::vector<NumberedQuestion>& behind)
{
    m_connection.Begin(until);
    return Ask(commands, behind);
}

std::vector<ServerResult> ServerLine::Finish(const std::vector<ServerCommand>& commands)
{
    m_connection.Begin(std::nullopt, false);
    auto results = Ask(commands, {});
    m_answers.clear();
    return results;
}

std::vector<ServerResult> ServerLine::Ask(const std::vector<ServerCommand>& commands, const std::vector<NumberedQuestion>& behind)
{
    HearPreparedInVain();
    const bool verifies = !m_verified;
    if (verifies) {
        Post({kOwnToken, {}, false, false});
    }
    for (const ServerCommand& command : commands) {
        Post(command);
    }
    const std::size_t before = m_onTheirWay.size();
    SendOff();
    for (const NumberedQuestion& question : behind) {
        Post(question.command);
        SendOff(question.number);
    }
    for (std::size_t i = 0; i < before; ++i) {
        HearNext();
    }
    const Portion own = TakePortion();
    CountWait(own);
    std::vector<ServerResult> results = Hear(own);
    if (verifies) {
        RequireOwnSession(results.front());
        results.erase(results.begin());
    }
    return results;
}

// Something between the program and the server may drop settings without a word, or hand each transaction to another session.
void ServerLine::RequireOwnSession(const ServerResult& told)
{
    const char* const encoding = Library().parameterStatus(m_connection.Get(), "client_encoding");
    if (told.RowCount() != 1 || told.Text(0, 0) != m_connection.Token() || encoding == nullptr || std::string_view(encoding) != "UTF8") {
        m_connection.Drop();
        throw ServerFailure(engine::CannotOpen, kSharedSession);
    }
    m_verified = true;
}

void ServerLine::Verify()
{
    if (!m_verified) {
        static_cast<void>(Send({}));
    }
}

// A question on its way that fails has ended the transaction as well, so nobody needs to hear of its failure.
void ServerLine::SendWithoutWaiting(const char* sql)
{
    m_connection.Begin();
    for (Portion& portion : m_onTheirWay) {
        portion.question = 0;
        portion.forgotten = true;
    }
    m_answers.clear();
    Post({sql, {}, true, false});
    SendOff();
}

ServerLine::Portion ServerLine::TakePortion()
{
    Portion portion = std::move(m_onTheirWay.front());
    m_onTheirWay.pop_front();
    return portion;
}

void ServerLine::CountWait(const Portion& portion)
{
    if (portion.sentAfter == m_roundTrips) {
        ++m_roundTrips;
    }
}

void ServerLine::HearNext()
{
    const Portion portion = TakePortion();
    try {
        if (portion.question == 0) {
            static_cast<void>(Hear(portion));
            return;
        }
        CountWait(portion);
        m_answers.emplace(portion.question, std::move(Hear(portion).back()));
    } catch (const ServerFailure& failure) {
        if (failure.IsLost() || !portion.forgotten) {
            throw;
        }
    }
}

// After a failure the server prepared nothing of what stood behind it. This must be heard before anybody asks for that by its name.
void ServerLine::HearPreparedInVain()
{
    const auto mayBeInVain = [](const Portion& portion) {
        return portion.forgotten && std::ranges::any_of(portion.awaited, [](const Awaited& awaited) { return !awaited.prepared.empty(); });
    };
    while (std::ranges::any_of(m_onTheirWay, mayBeInVain)) {
        HearNext();
    }
}

void ServerLine::HearAllPortions()
{
    while (!m_onTheirWay.empty()) {
        HearNext();
    }
}

void ServerLine::SendAhead(const NumberedQuestion& question)
{
    m_connection.Begin();
    HearPreparedInVain();
    Post(question.command);
    SendOff(question.number);
}

std::optional<ServerResult> ServerLine::TakeAhead(std::int64_t number)
{
    m_connection.Begin();
    while (!m_answers.contains(number) && !m_onTheirWay.empty()) {
        HearNext();
    }
    const auto found = m_answers.extract(number);
    return found.empty() ? std::nullopt : std::optional(std::move(found.mapped()));
}

ServerResult ServerLine::BeginRows(const ServerCommand& command)
{
    Verify();
    m_connection.Begin();
    HearAllPortions();
    Post(command);
    SendOff();
    m_onTheirWay.back().rowByRow = true;
    m_connection.Require(Library().setSingleRowMode(m_connection.Get()));
    CountWait(m_onTheirWay.back());
    return NextRow();
}

ServerResult ServerLine::NextRow()
{
    if (m_onTheirWay.empty() || !m_onTheirWay.front().rowByRow) {
        throw ServerFailure(engine::Misuse, "something else was asked before all rows were read");
    }
    m_connection.Begin();
    ServerResult row = m_connection.Next();
    if (row.IsOneOfMany()) {
        return row;
    }
    return std::move(Hear(TakePortion(), std::move(row)).back());
}

void ServerLine::RunScript(const char* sql)
{
    Verify();
    m_connection.Begin();
    HearAllPortions();
    m_connection.Require(Library().exitPipelineMode(m_connection.Get()));
    m_connection.Require(Library().sendQuery(m_connection.Get(), sql));
    ++m_roundTrips;
    RaiseAfterScript(HearAll());
}

std::optional<ServerFailure> ServerLine::HearAll()
{
    std::optional<ServerFailure> failure;
    for (ServerResult result = m_connection.Next(); result.Get() != nullptr; result = m_connection.Next()) {
        m_connection.RequireExpected(IsAnswer(result));
        if (Library().resultStatus(result.Get()) == PGRES_FATAL_ERROR) {
            failure = FailureOf(result);
        }
    }
    return failure;
}

void ServerLine::RaiseAfterScript(const std::optional<ServerFailure>& failure)
{
    if (failure && failure->IsLost()) {
        m_connection.Drop();
    } else {
        m_connection.Require(Library().enterPipelineMode(m_connection.Get()));
    }
    if (failure) {
        throw *failure;
    }
}

void ServerLine::BeginCopy(const std::string& sql)
{
    Verify();
    m_connection.Begin();
    HearAllPortions();
    m_connection.Require(Library().exitPipelineMode(m_connection.Get()));
    m_connection.Require(Library().sendQuery(m_connection.Get(), sql.c_str()));
    m_connection.Flush();
    const ServerResult result = m_connection.Next();
    if (Library().resultStatus(result.Get()) != PGRES_COPY_IN) {
        m_connection.RequireExpected(Library().resultStatus(result.Get()) == PGRES_FATAL_ERROR);
        const ServerFailure failure = FailureOf(result);
        static_cast<void>(HearAll());
        RaiseAfterScript(failure);
    }
}

// Sends a portion whole before the next one comes, since what waits to be sent is in memory.
void ServerLine::PutCopy(std::string_view lines)
{
    m_connection.Begin();
    m_connection.Require(Library().putCopyData(m_connection.Get(), lines.data(), static_cast<int>(lines.size())) == 1 ? 1 : 0);
    m_connection.Flush();
}

void ServerLine::EndCopy()
{
    m_connection.Begin();
    m_connection.Require(Library().putCopyEnd(m_connection.Get(), nullptr) == 1 ? 1 : 0);
    m_connection.Flush();
    ++m_roundTrips;
    RaiseAfterScript(HearAll());
}

std::vector<std::string> ServerLine::TakeNotices()
{
    std::vector<std::string> notices;
    if (IsAlive()) {
        m_connection.Begin();
        HearAllPortions(); // the notices come behind these answers
        while (PGnotify* const notice = Library().notifies(m_connection.Get())) {
            notices.emplace_back(notice->extra);
            Library().freemem(notice);
        }
    }
    return notices;
}

} // namespace ptk
