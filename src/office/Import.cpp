#include "office/Import.h"

#include "office/ImportValues.h"
#include "office/OldTables.h"
#include "platform/Failure.h"
#include "platform/FileDraft.h"
#include "platform/Succeeds.h"
#include "platform/Text.h"
#include "store/Backups.h"
#include "store/DisplayNameSQL.h"
#include "store/engine/Engine.h"
#include "store/FileSteps.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <fmt/format.h>
#include <set>

namespace ptk {

namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds kLongest(24); // of reading: the rest of 25 is for the writing
constexpr std::int32_t kAdministrator = 39;

constexpr const char* kNotFound = "there is no such file";
constexpr const char* kNoFile = "it is no file that could be read";
constexpr const char* kItself = "it is the program's own database";
constexpr const char* kNotEqual = "the new database does not read back as it was written; nothing was kept of it";
constexpr const char* kRefusedForDamage =
    "the file shows signs of damage ({}); nothing was changed. What can still be read is only taken where that is accepted";

constexpr const char* kNoAccount = "the account could not be kept: ";

constexpr const char* kImpossibleKey = "impossible key";
constexpr const char* kImpossibleMoment = "impossible start or end";
constexpr const char* kDoubledKey = "key that an earlier row has";
constexpr const char* kFurtherRow = "further row of options";

// Undoes what was written of a file that shows damage.
struct DamageTold
{
};

// Takes the rows into the writer, and into account.
class Filling : public OldRowSink
{
public:
    Filling(const OldSources& sources, ImportWriter& writer, ImportAccount& account, std::int64_t& rows)
        : m_writer(writer), m_account(account), m_rows(rows)
    {
        for (std::size_t i = 0; i < kImportTableCount; ++i) {
            if (sources.tables[i]) {
                m_ids.push_back(static_cast<ImportTableId>(i));
                m_sources.push_back(&*sources.tables[i]);
                m_orders.push_back(sources.tables[i]->order);
            }
        }
    }

    [[nodiscard]] const std::vector<OldRowsOrder>& Orders() const { return m_orders; }

    void TakeRow(std::size_t order, std::span<const OldValue> values) override
    {
        ++m_rows;
        const ImportTableId id = m_ids[order];
        TableAccount& table = TableOf(id);
        ++table.found;
        if (const char* const reason = Take(id, *m_sources[order], values)) {
            ++table.leftOut[reason];
        } else {
            ++table.taken;
            CountTaken(id);
        }
    }

    void EndRows(std::size_t order, const OldRowsEnd& end) override
    {
        if (end.counted != 0 && end.read != end.counted) {
            m_account.signs.push_back(
                fmt::format("{}: {} rows read, but the table counts {}", ImportTableOf(m_ids[order]).name, end.read, end.counted));
        }
    }

    // To be called when all rows are in.
    void Conclude()
    {
        for (const ImportTableId id : m_ids) {
            m_account.figures.rows.at(static_cast<std::size_t>(id)) = TableOf(id).taken;
            if (const auto doubled = TableOf(id).leftOut.find(kDoubledKey); doubled != TableOf(id).leftOut.end()) {
                m_account.signs.push_back(fmt::format("{}: doubled keys: {}", ImportTableOf(id).name, doubled->second));
            }
        }
        for (const auto& [what, count] : m_faults) {
            m_account.signs.push_back(fmt::format("{}: {}", what, count));
        }
        CountShipped();
        CountOrphans();
    }

private:
    TableAccount& TableOf(ImportTableId id) { return m_account.tables.at(static_cast<std::size_t>(id)); }

    // Why the row is left out; nullptr where it is taken.
    const char* Take(ImportTableId id, const OldSource& source, std::span<const OldValue> values)
    {
        const auto columns = ImportTableOf(id).columns;
        m_values.clear();
        const char* reason = nullptr;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            ImportedValue value = ImportValue(columns[i], source.places[i] ? &values[*source.places[i]] : nullptr);
            CountFaults(id, columns[i], value);
            if (value.impossible && reason == nullptr) {
                reason = ReasonOf(columns[i].kind);
            }
            m_values.push_back(std::move(value.value));
        }
        if (reason != nullptr) {
            return reason;
        }
        const char* const taken = id == ImportTableId::System ? kFurtherRow : kDoubledKey;
        return m_writer.Add(id, m_values) ? nullptr : taken;
    }

    // Without these a row makes no sense.
    static const char* ReasonOf(ImportKind kind)
    {
        if (kind == ImportKind::Key) {
            return kImpossibleKey;
        }
        return kind == ImportKind::Moment ? kImpossibleMoment : nullptr;
    }

    void CountFaults(ImportTableId id, const ImportColumn& column, const ImportedValue& value)
    {
        if (value.impossible) {
            ++m_faults[fmt::format("{}.{}: impossible values", ImportTableOf(id).name, column.name)];
        }
        if (value.partlyRead) {
            ++m_faults[fmt::format("{}.{}: texts with unreadable characters", ImportTableOf(id).name, column.name)];
        }
    }

    void CountTaken(ImportTableId id)
    {
        if (id == ImportTableId::Employee) {
            m_employees.insert(m_values[0].ToInt32());
        } else if (id == ImportTableId::TimeRecord) {
            const Value& employee = m_values[1];
            m_account.figures.Count(employee.IsNull() ? std::nullopt : std::optional(employee.ToInt32()), m_values[3].ToDateTime(),
                                    m_values[4].ToDateTime());
        }
    }

    // What ships with a database and gave way to no row.
    void CountShipped()
    {
        for (std::size_t i = 0; i < kImportTableCount; ++i) {
            m_account.figures.rows[i] += m_writer.ShippedRows(static_cast<ImportTableId>(i));
        }
        if (m_writer.ShippedRows(ImportTableId::Employee) != 0) {
            m_employees.insert(kAdministrator);
        }
    }

    void CountOrphans()
    {
        for (const auto& [employee, hours] : m_account.figures.hours) {
            if (!employee || !m_employees.contains(*employee)) {
                m_account.figures.orphans += hours.records;
            }
        }
    }

    ImportWriter& m_writer;
    ImportAccount& m_account;
    std::int64_t& m_rows;
    std::vector<ImportTableId> m_ids; // by order, as the two below
    std::vector<const OldSource*> m_sources;
    std::vector<OldRowsOrder> m_orders;
    std::vector<Value> m_values;
    std::set<std::int32_t> m_employees;
    std::map<std::string, std::int64_t> m_faults;
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

// A trial is to end as the import would.
void RequireFolders(const ImportOrder& order)
{
    std::error_code ignored;
    for (const std::string& folder : {order.programFolder + "/reports", fs::path(order.database).parent_path().string()}) {
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

// Everything between the opened file and the finished account.
class Work
{
public:
    Work(const ImportOrder& order, const ImportProgress& progress)
        : m_order(order), m_file(order.file, order.codePage, std::chrono::steady_clock::now() + kLongest,
                                 [this, progress] { return !progress || progress(m_rows); }),
          m_catalog(m_file.ReadCatalog()), m_sources(FindSources(m_catalog)), m_earlierComplaints(m_file.Complaints())
    {
    }

    // Also a second time, from the beginning.
    void Fill(Engine& engine)
    {
        m_account = BeginAccount(m_order, m_catalog, m_sources);
        m_rows = 0;
        const std::int64_t before = m_file.Complaints();
        ImportWriter writer(engine);
        Filling filling(m_sources, writer, m_account, m_rows);
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
    const auto keepCopy = [&order](Engine& engine) { BackUp(engine, BackupFolder(order.programFolder), order.now); };
    return {order.database, order.file, order.author, keepCopy};
}

// False where the file shows damage that nobody accepted.
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
    if (IsThere(order.database)) {
        RefuseUnlessEmpty(order.database);
    }
    ImportOutcome outcome;
    std::optional<FileDraft> draft; // first, so that an import without a place for its account is refused
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
