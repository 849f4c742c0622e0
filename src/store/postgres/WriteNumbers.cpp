#include "store/postgres/WriteNumbers.h"

#include <fmt/format.h>

#include <cstdlib>
#include <ctime>

namespace ptk {

namespace {

// The first entry of a step has the step's own number; the day and hour of the entries are those where the person sits.
constexpr const char* kNumber =
    "SELECT set_config('ptk.user', $1, true), set_config('ptk.program', $2, true), set_config('ptk.reason', $5, true), "
    "set_config('ptk.step', step::text, true), "
    "set_config('ptk.next', CASE WHEN $3 = '' THEN step::text ELSE '' END, true), set_config('TimeZone', $4, true), "
    "step, pg_current_xact_id()::text, current_setting('ptk.line', true) "
    "FROM (SELECT COALESCE(NULLIF($3, '')::bigint, nextval('_change_changeid_seq')) AS step) AS numbered";
constexpr int kStepColumn = 6;
constexpr int kTransactionColumn = 7;
constexpr int kLineColumn = 8;

// Asked in this order: what does not run any more is seen by the next question, or never.
constexpr const char* kIsRunning = "SELECT EXISTS (SELECT 1 FROM pg_locks WHERE locktype = 'transactionid' AND mode = 'ExclusiveLock' AND "
                                   "transactionid = $1::xid8::xid)";
constexpr const char* kIsStored = "SELECT EXISTS (SELECT 1 FROM _Change WHERE ChangeID >= $1::bigint AND Step = $1::bigint AND "
                                  "xmin = $2::xid8::xid AND ChangedBy IS NOT DISTINCT FROM NULLIF(left($3::text, 500), '') AND "
                                  "Program IS NOT DISTINCT FROM NULLIF(left($4::text, 500), ''))"; // no more of either is kept

// As the server reads a time zone: "<+0530>-05:30", east of Greenwich counting down.
std::string LocalTimeZone()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    const long minutes = local.tm_gmtoff / 60;
    const long hours = std::labs(minutes) / 60;
    const long rest = std::labs(minutes) % 60;
    return fmt::format("<{0}{1:02}{2:02}>{3}{1:02}:{2:02}", minutes < 0 ? '-' : '+', hours, rest, minutes < 0 ? '+' : '-');
}

bool IsTrue(const ServerResult& answer)
{
    return answer.Text(0, 0) == "t";
}

} // namespace

ServerCommand Numbering(const Author& author, std::int64_t wantedStep)
{
    const std::string wanted = wantedStep == 0 ? "" : std::to_string(wantedStep);
    return {kNumber, {author.name, author.program, wanted, LocalTimeZone(), author.reason}, true, false};
}

WriteNumbers NumbersIn(const ServerResult& answer, const ServerLine& line)
{
    if (answer.Text(0, kLineColumn) != line.Token()) {
        throw ServerFailure(engine::CannotOpen,
                            "something between the program and the server hands each change to another session; nothing "
                            "was stored. Connect to the server itself");
    }
    return {answer.IntegerAt(0, kStepColumn), std::string(answer.Text(0, kTransactionColumn))};
}

// The server's own word on the transaction's number is not asked for: one that crashed gives numbers of what it forgot to others.
WriteFate FateOf(const WriteNumbers& write, const Author& author, ServerLine& line, ServerLine::Clock::time_point until)
{
    const auto answers =
        line.Send({{kIsRunning, {write.transaction}, false, false},
                   {kIsStored, {std::to_string(write.step), write.transaction, author.name, author.program}, false, false}},
                  until);
    if (IsTrue(answers.at(0))) {
        return WriteFate::Unknown;
    }
    return IsTrue(answers.at(1)) ? WriteFate::Stored : WriteFate::Dropped;
}

} // namespace ptk
