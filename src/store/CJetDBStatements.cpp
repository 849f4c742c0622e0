// Part of CJetDB: the statements of the program's classes, and the transaction that all writing goes through.
#include "platform/Succeeds.h"
#include "store/CJetDB.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"

namespace ptk {

namespace {

constexpr std::int16_t kSnapshot = 4;
constexpr const char* kNoSqlText = "there is no statement to run";

// Whether the options that Update writes are the same.
bool SameOptions(const OptionsRow& a, const OptionsRow& b)
{
    return a.PeriodLength == b.PeriodLength && a.AutoShiftStartTime == b.AutoShiftStartTime && a.AutoShiftEndTime == b.AutoShiftEndTime;
}

} // namespace

std::shared_ptr<RecordSet> CJetDB::ExecuteSelect(const std::string& sqlstring)
{
    ForgetFailure();
    if (sqlstring.empty() && m_sql.empty()) {
        Fail(jetdb::NoSql, kNoSqlText);
        return nullptr;
    }
    m_sql = sqlstring; // even an empty one: a stored statement only spares the check above
    if (m_recordsetType == 0) {
        m_recordsetType = kSnapshot;
    }
    if (!m_databaseOpen) {
        FailWithoutDatabase();
        return nullptr;
    }
    const bool selected = Succeeds([this] { m_recSet = m_database->Select(m_sql); }, FailingWith(jetdb::StatementFailed));
    return selected ? m_recSet : nullptr;
}

std::unique_ptr<Statement> CJetDB::PrepareSelect(const std::string& sqlstring)
{
    ForgetFailure();
    if (!m_databaseOpen) {
        FailWithoutDatabase();
        return nullptr;
    }
    std::unique_ptr<Statement> statement;
    Succeeds([&] { statement = m_database->PrepareToKeep(sqlstring); }, FailingWith(jetdb::StatementFailed));
    return statement;
}

bool CJetDB::TellsNews() const
{
    return m_database != nullptr && m_database->TellsNews();
}

std::optional<std::int64_t> CJetDB::TakeNews()
{
    RequireOpen(*this);
    return m_database->TakeNews();
}

const EngineWords& CJetDB::Words() const
{
    return m_database->Words();
}

bool CJetDB::HasTrail()
{
    return m_database->HasTrail();
}

bool CJetDB::HasTable(const char* name)
{
    return m_database->HasTable(name);
}

// Runs one operation that writes: opens the file when it is closed and closes it after success, whoever opened it.
bool CJetDB::Change(std::int32_t errorNumber, const std::function<void()>& steps)
{
    ForgetFailure();
    OpenWhenClosed();
    if (!m_databaseOpen) {
        return FailWithoutDatabase();
    }
    if (!Succeeds([&] { Write(steps); }, FailingWith(errorNumber))) {
        return false; // deliberately without closing: the next operation goes on with the open file
    }
    CloseWhenOpen();
    return true;
}

void CJetDB::Write(const std::function<void()>& steps)
{
    Author author = m_memory->author;
    author.reason = m_reason;
    m_database->SignAs(std::move(author));
    m_database->StepNumber(m_stepNumber);
    try {
        m_database->Write(steps);
    } catch (const RowChanged& changed) {
        m_refusal.conflict = changed.Conflict();
        throw;
    }
    TakeStep(m_database->StepNumber());
    m_memory->newestEntry = m_database->NewestEntry();
}

// Takes the number of a write's step. Of the writes within one Step, the first that leaves an entry gives the number.
void CJetDB::TakeStep(std::int64_t step)
{
    if (m_steps == 0 || step != 0) {
        m_memory->lastStep = step;
        m_stepNumber = m_steps > 0 ? step : 0;
    }
}

bool CJetDB::ExecuteAction(const std::string& sqlstring)
{
    if (sqlstring.empty() && m_sql.empty()) {
        Fail(jetdb::NoSql, kNoSqlText);
        CloseWhenOpen();
        return false;
    }
    m_sql = sqlstring;
    return Change(jetdb::StatementFailed, [&] { m_database->Run(m_sql); });
}

bool CJetDB::ExecuteSteps(const std::function<void(Engine& engine)>& steps)
{
    return Change(jetdb::StatementFailed, [&] { steps(*m_database); });
}

bool CJetDB::SaveTimeRecords(std::span<const TimeRecordWrite> records)
{
    if (records.empty()) {
        return true;
    }
    m_sql = records.back().statement;
    return Change(jetdb::StatementFailed, [&] {
        for (const TimeRecordWrite& record : records) {
            if (record.asRead) {
                RequireAsRead(*m_database, *record.asRead);
            }
            m_database->Run(record.statement);
        }
    });
}

bool CJetDB::UpdateOptions(const std::string& sqlstring, const OptionsRow& options, const OptionsRow& asRead)
{
    m_sql = sqlstring;
    return Change(jetdb::StatementFailed, [&] {
        const OptionsRow present = PresentOptions(*m_database);
        if (SameOptions(options, present) || SameOptions(options, asRead)) {
            return; // if only somebody else changed them, those changes stay
        }
        RequireAsRead(present, asRead);
        m_database->Run(m_sql);
    });
}

void RequireOpen(CJetDB& database)
{
    if (!database.OpenDB()) {
        throw database.LastFailure();
    }
}

std::unique_ptr<Statement> RequireSelect(CJetDB& database, const std::string& sql)
{
    auto statement = database.PrepareSelect(sql);
    if (statement == nullptr) {
        throw database.LastFailure();
    }
    return statement;
}

} // namespace ptk
