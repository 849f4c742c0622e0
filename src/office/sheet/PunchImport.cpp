#include "office/sheet/PunchImport.h"

#include "office/sheet/SheetPeople.h"
#include "office/sheet/StoredPunches.h"
#include "platform/Failure.h"
#include "store/CheckLimits.h"
#include "store/CJetDB.h"
#include "store/engine/Engine.h"
#include "store/engine/StoredDate.h"

#include <algorithm>
#include <fmt/format.h>
#include <span>

namespace ptk {

namespace {

constexpr std::size_t kRecordsAtOnce = 1000;

constexpr auto kInsert = "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES ";
constexpr auto kOtherEnd = "{}: a record of this employee with this start and another end is there already";
constexpr auto kSums = "Lines: {}, stored {}, there already {}, refused {}";
constexpr auto kLine = "Line {}: {}";

// Finds out which records are new, by what the database holds now.
PunchAccount Judge(const PunchLines& read, const PrepareStatement& prepare)
{
    PunchAccount account;
    account.lines = read.lines;
    account.refused = read.refused;
    StoredPunches stored(prepare, read.punches);
    for (const SheetPunch& punch : read.punches) {
        switch (stored.PlaceOf(punch)) {
        case PunchPlace::New:
            stored.Take(punch);
            account.stored += punch.Lines();
            account.punches.push_back(punch);
            break;
        case PunchPlace::There:
            account.there += punch.Lines();
            break;
        case PunchPlace::OtherEnd:
            account.refused.push_back({punch.line, fmt::format(kOtherEnd, read.startColumn)});
            if (punch.outLine != 0) {
                account.refused.push_back({punch.outLine, fmt::format(kOtherEnd, read.startColumn)});
            }
            break;
        }
    }
    std::sort(account.refused.begin(), account.refused.end(),
              [](const RefusedLine& left, const RefusedLine& right) { return left.line < right.line; });
    return account;
}

// The statements hold only numbers and moments, so that no foreign text gets into them.
void Store(Engine& engine, std::span<const SheetPunch> punches, const GoesOn& goesOn)
{
    while (!punches.empty()) {
        std::string statement = kInsert;
        for (const SheetPunch& punch : punches.first(std::min(punches.size(), kRecordsAtOnce))) {
            statement += fmt::format("{}({}, '{}', '{}')", statement.back() == ')' ? ", " : "", punch.employee, StoredText(punch.start),
                                     StoredText(punch.end));
        }
        engine.RunScript(statement.c_str());
        punches = punches.subspan(std::min(punches.size(), kRecordsAtOnce));
        AskWhetherToGoOn(goesOn, 0);
    }
}

bool IsToBeStored(const PunchAccount& account, const PunchOrder& order)
{
    return !order.trial && !account.IsRefused(order.partly) && !account.punches.empty();
}

// Compares once more in the transaction that stores, because another desk may have stored some of it meanwhile.
PunchAccount JudgeAndStore(CJetDB& database, const PunchLines& read, const PunchOrder& order, const GoesOn& goesOn)
{
    PunchAccount account;
    const bool done = database.ExecuteSteps([&](Engine& engine) {
        engine.LockTable("TimeRecord"); // nobody else stores a record between the comparison and the writing
        account = Judge(read, [&](const std::string& sql) { return engine.Prepare(sql); });
        if (IsToBeStored(account, order)) {
            Store(engine, account.punches, goesOn);
            account.isStored = true;
        }
    });
    if (!done) {
        throw Failure(database.LastFailure());
    }
    return account;
}

} // namespace

bool PunchAccount::IsRefused(bool partly) const
{
    return !refused.empty() && (!partly || static_cast<std::int64_t>(refused.size()) == lines);
}

PunchAccount ImportPunches(const std::shared_ptr<CJetDB>& database, const PunchOrder& order, const GoesOn& goesOn)
{
    const std::string text = ReadSheet(order.from.file, order.from.codePage);
    PunchLines read;
    PunchAccount account;
    {
        const CJetDB::Hold hold(database);
        RequireOpen(*database);
        const PrepareStatement prepare = [&](const std::string& sql) { return RequireSelect(*database, sql); };
        read = ReadPunches(text, order.from.words, SheetPeople(prepare), LoadCheckLimits(database).longShiftHours, goesOn);
        account = Judge(read, prepare);
    }
    return IsToBeStored(account, order) ? JudgeAndStore(*database, read, order, goesOn) : account;
}

std::vector<std::string> PunchAccountLines(const PunchAccount& account)
{
    std::vector<std::string> lines;
    lines.reserve(account.refused.size() + 1);
    lines.push_back(fmt::format(kSums, account.lines, account.stored, account.there, account.refused.size()));
    for (const RefusedLine& refused : account.refused) {
        lines.push_back(fmt::format(kLine, refused.line, refused.reason));
    }
    return lines;
}

} // namespace ptk
