#include "office/import/Import.h"

#include "office/import/ImportFilling.h"
#include "office/import/OldTables.h"
#include "platform/Failure.h"
#include "platform/files/FileDraft.h"
#include "platform/files/FileSteps.h"
#include "platform/Succeeds.h"
#include "platform/text/Text.h"
#include "store/backup/Backups.h"
#include "store/DisplayNameSQL.h"
#include "store/engine/Engine.h"
#include "store/whole/DatabaseName.h"

#include <chrono>
#include <filesystem>
#include <fmt/format.h>

namespace ptk {

namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds kLongest(24); // for reading; the rest of the 25 is for writing

constexpr const char* kNotFound = "there is no such file";
constexpr const char* kNoFile = "it is no file that could be read";
constexpr const char* kItself = "it is the program's own database";
constexpr const char* kNotEqual = "the new database does not read back as it was written; nothing was kept of it";
constexpr const char* kRefusedForDamage =
    "the file shows signs of damage ({}); nothing was changed. What can still be read is only taken where that is accepted";

constexpr const char* kNoAccount = "the account could not be kept: ";

// Raised to undo what was written of a file that shows damage.
struct DamageTold
{
};

void RefuseFile(const ImportOrder& order)
{
    std::error_code ignored;
    const fs::file_status status = fs::status(order.file, ignored);
    const bool isItself = fs::equivalent(order.file, order.database, ignored);
    for (const auto& [refused, reason] :
         {std::pair(!fs::exists(status), kNotFound), std::pair(!fs::is_regular_file(status), kNoFile), std::pair(isItself, kItself)}) {
        if (refused) {
            throw Failure(0, "PTK", order.file + ": " + reason);
        }
    }
}

// Required on trial, too, so that a trial ends as the import would.
void RequireFolders(const ImportOrder& order)
{
    std::error_code ignored;
    for (const std::string& folder : {order.programFolder + "/reports", DatabaseFolder(order.database, order.programFolder)}) {
        if (!fs::is_directory(folder, ignored)) {
            throw Failure(failure::PathNotFound, "PTK", "there is no folder " + folder);
        }
    }
}

ImportAccount BeginAccount(const ImportOrder& order, const OldCatalog& catalog, const OldSources& sources)
{
    ImportAccount account;
    account.file = order.file;
    account.otherTables = sources.otherTables;
    account.furtherColumns = sources.furtherColumns;
    account.bytesBehind = catalog.bytesBehind;
    for (std::size_t i = 0; i < kImportTableCount; ++i) {
        account.tables[i].from = sources.tables[i] ? sources.tables[i]->name : "";
    }
    for (const std::string& broken : catalog.broken) {
        account.signs.push_back("the table " + broken + " cannot be read");
    }
    return account;
}

std::map<std::int32_t, std::string> ReadNames(Engine& engine)
{
    std::map<std::int32_t, std::string> names;
    const auto employees = engine.Prepare(fmt::format("SELECT EmployeeID, {} FROM Employee", kDisplayNameSql));
    employees->ForEachRow([&] { names.emplace(static_cast<std::int32_t>(employees->Int64At(0)), employees->TextAt(1)); });
    return names;
}

// Reads the opened file into the database and makes the account.
class Work
{
public:
    Work(const ImportOrder& order, const ImportProgress& progress)
        : m_order(order), m_file(order.file, order.codePage, std::chrono::steady_clock::now() + kLongest,
                                 [this, progress] { return !progress || progress(m_rows); }),
          m_catalog(m_file.ReadCatalog()), m_sources(FindSources(m_catalog)), m_earlierComplaints(m_file.Complaints())
    {
    }

    // Fills the database. May run a second time, which starts from the beginning.
    void Fill(Engine& engine)
    {
        m_account = BeginAccount(m_order, m_catalog, m_sources);
        m_rows = 0;
        const std::int64_t before = m_file.Complaints();
        ImportWriter writer(engine);
        ImportFilling filling(m_sources, writer, m_account, m_rows);
        m_file.ReadRows(filling.Orders(), filling);
        filling.Conclude();
        TellComplaints(m_earlierComplaints + m_file.Complaints() - before);
        m_account.names = ReadNames(engine);
        if (ReadFigures(engine) != m_account.figures) {
            throw Failure(0, "PTK", kNotEqual);
        }
        if (!m_account.signs.empty() && !m_order.acceptDamaged) {
            throw DamageTold();
        }
    }

    [[nodiscard]] ImportAccount& Account() { return m_account; }

private:
    void TellComplaints(std::int64_t complaints)
    {
        if (complaints != 0) {
            m_account.signs.push_back(fmt::format("warnings while reading: {}", complaints));
        }
    }

    const ImportOrder& m_order;
    std::int64_t m_rows = 0;
    OldFile m_file;
    OldCatalog m_catalog;
    OldSources m_sources;
    std::int64_t m_earlierComplaints;
    ImportAccount m_account;
};

std::string AccountPath(const ImportOrder& order)
{
    DateTime moment = order.now;
    std::string path;
    do {
        path = order.programFolder + "/reports/Import_" + FormatDateTime(moment, "yyyy-mm-dd_hhnnss") + ".txt";
        moment = DateTime::FromSeconds(moment.Seconds() + 1);
    } while (IsThere(path));
    return path;
}

std::string AccountText(const ImportAccount& account)
{
    std::string text;
    for (const std::string& line : AccountLines(account)) {
        text += line + "\r\n";
    }
    return text;
}

ImportTarget TargetOf(const ImportOrder& order)
{
    const auto keepCopy = [&order](SqliteEngine& engine) { BackUp(engine, BackupFolder(order.programFolder), order.now); };
    return {order.database, order.file, order.author, keepCopy};
}

// Stores or tries the import. False if the file shows damage that was not accepted.
bool Writes(const ImportOrder& order, Work& work)
{
    try {
        const auto fill = [&](Engine& engine) { work.Fill(engine); };
        order.trial ? TryImport(TargetOf(order), fill) : Import(TargetOf(order), fill);
        return true;
    } catch (const DamageTold&) {
        return false;
    }
}

} // namespace

ImportOutcome ImportOldDatabase(const ImportOrder& order, const ImportProgress& progress)
{
    RefuseFile(order);
    RequireFolders(order);
    RefuseUnlessEmpty(order.database);
    ImportOutcome outcome;
    std::optional<FileDraft> draft; // made first, so that an import is refused if its account has no place
    if (!order.trial) {
        outcome.accountFile = AccountPath(order);
        draft.emplace(outcome.accountFile);
    }
    Work work(order, progress);
    const bool written = Writes(order, work);
    outcome.account = std::move(work.Account());
    if (!written) {
        outcome.refusal = fmt::format(kRefusedForDamage, outcome.account.signs.size());
    } else if (draft) {
        const auto keep = [&] {
            draft->File().Write(AccountText(outcome.account));
            draft->File().Flush();
            draft->PlaceNew();
        };
        Succeeds(keep, [&](const Failure& reason) { outcome.problem = kNoAccount + reason.Description(); });
    }
    return outcome;
}

} // namespace ptk
