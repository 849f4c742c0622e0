// The program's database as its classes ask for it: opens and closes the file, runs their SQL, and moves employees and companies between
// their tables and the entities through the stored queries inside the file.
#pragma once

#include "platform/Failure.h"
#include "store/engine/Author.h"
#include "store/engine/WhenHeld.h"
#include "store/RowConflict.h"
#include "store/rows/Rows.h"
#include "store/StoreErrors.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ptk {

class CDatabaseLocator;
class Engine;
struct EngineWords;
class RecordSet;
class Statement;

// One time record to be stored: its statement, and the row as it was read, where it was. See CTimeRecSQLConverter.
struct TimeRecordWrite
{
    std::string statement;
    std::optional<TimeRecordRow> asRead;
};

// A password that an operation set, be it the same. The edit trail says no more than that it changed.
struct PasswordChange
{
    std::int64_t step = 0;
    std::int32_t employeeID = 0; // 0 for a new employee
    std::string before;          // empty for a new employee
    std::string after;
};

// Not thread-safe. Closed at creation; the destructor closes an open file. No member but TakeNews, HasTrail and HasTable raises.
// ErrorNumber is never reset: it keeps the last code until another is set, and LoadCompanyList even refuses on a stale one.
//
// An open file is held exclusively, except after an operation that failed: its file stays open, but others get at it until the next
// operation takes the hold again. Whenever the hold is taken, somebody else's is waited for, up to a second.
class CJetDB
{
public:
    // While one lives, the file is held across any number of operations: all that read see the same moment, until one of them stores
    // something, and what they open and close costs nothing. Where the file could not be opened, each of them is told so at once, without
    // waiting for its own second. Holds may nest; the file is closed after the last. Not to be kept while the user is asked something.
    class Hold
    {
    public:
        // nullptr holds nothing.
        explicit Hold(std::shared_ptr<CJetDB> database);

        ~Hold();
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

    private:
        std::shared_ptr<CJetDB> m_database;
    };

    // While one lives, all that is stored is one step of the edit trail. Steps may nest.
    class Step
    {
    public:
        // nullptr: of nothing.
        explicit Step(std::shared_ptr<CJetDB> database);

        ~Step();
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;

    private:
        std::shared_ptr<CJetDB> m_database;
    };

    // While one lives, all that is stored stands in the edit trail with this reason; an empty one is none. The innermost holds.
    class Reason
    {
    public:
        // nullptr: of nothing.
        Reason(std::shared_ptr<CJetDB> database, std::string reason);

        ~Reason();
        Reason(const Reason&) = delete;
        Reason& operator=(const Reason&) = delete;

    private:
        std::shared_ptr<CJetDB> m_database;
        std::string m_former;
    };

    explicit CJetDB(std::string programFolder);
    ~CJetDB();
    CJetDB(const CJetDB&) = delete;
    CJetDB& operator=(const CJetDB&) = delete;

    void DatabasePath(std::string value) { m_databasePath = std::move(value); }
    [[nodiscard]] std::string DatabasePath() const { return m_databasePath; }
    void DatabaseName(std::string value) { m_databaseName = std::move(value); }
    [[nodiscard]] std::string DatabaseName() const { return m_databaseName; }
    [[nodiscard]] bool DatabaseOpen() const { return m_databaseOpen; }
    void RecordsetType(std::int16_t value) { m_recordsetType = value; }
    [[nodiscard]] std::int16_t RecordsetType() const { return m_recordsetType; }
    void SQL(std::string value) { m_sql = std::move(value); }
    [[nodiscard]] std::string SQL() const { return m_sql; }
    [[nodiscard]] std::shared_ptr<RecordSet> RecSet() const { return m_recSet; }
    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }

    // Why the last operation failed, in words for the program's users; number 0 and no text when it did not. The number is the cause's own:
    // the engine's (source "SQLite"), a conversion's, or one of those above.
    [[nodiscard]] const Failure& LastFailure() const { return m_refusal.failure; }

    // What differs, where the last operation failed because the row to be stored had been changed or removed since it was read; nothing
    // otherwise.
    [[nodiscard]] const std::optional<RowConflict>& Conflict() const { return m_refusal.conflict; }

    // Both together.
    [[nodiscard]] const Refusal& LastRefusal() const { return m_refusal; }

    // In whose name all that follows is stored, as the edit trail tells it.
    void StoredBy(Author value) { m_memory->author = std::move(value); }
    [[nodiscard]] const Author& StoredBy() const { return m_memory->author; }

    // The step of the edit trail of the last operation that stores; 0 where that changed nothing.
    [[nodiscard]] std::int64_t LastStep() const { return m_memory->lastStep; }

    // The newest entry of the edit trail by then, where it changed something.
    [[nodiscard]] std::int64_t NewestEntry() const { return m_memory->newestEntry; }

    // The passwords that were set so far, in the order of their steps.
    [[nodiscard]] const std::vector<PasswordChange>& Passwords() const { return m_memory->passwords; }

    // Another access to the same file, closed, that knows nothing of earlier failures. Author, steps and passwords are one for both.
    [[nodiscard]] std::shared_ptr<CJetDB> Afresh() const;

    // From now on a file that somebody else has is not waited for: for questions that can as well be asked later.
    void DoNotWait() { m_whenHeld = WhenHeld::Refuse; }

    // Opens the file that the locator found. An empty path opens nothing, answers false and leaves ErrorNumber alone.
    bool OpenPTKDatabase(const std::shared_ptr<CDatabaseLocator>& thedatabaselocator);

    // Opens exclusively, without ever creating a file. False with 403 (no name) or the engine's own number.
    // The connect text and the password are accepted and not used.
    bool OpenDB(const std::string& paramName = "", const std::string& paramConnect = "", const std::string& paramPassword = "");

    // False only when nothing was ever opened.
    bool CloseDB();

    // Lets others at the open file until the next operation; nothing inside a Hold.
    void GiveUpHold();

    // The caller opens and closes the database. nullptr with 403, 406 or 407.
    std::shared_ptr<RecordSet> ExecuteSelect(const std::string& sqlstring);

    // A statement for rows that are read again and again with other parameters, in the engine's own words; nullptr with 403, 406 or 407.
    // Must end before the file is closed, which the caller opens and closes.
    std::unique_ptr<Statement> PrepareSelect(const std::string& sqlstring);

    // See Engine; raises what opening the database raises.
    [[nodiscard]] bool TellsNews() const;
    [[nodiscard]] std::optional<std::int64_t> TakeNews();

    // Of the open database, for the texts that PrepareSelect takes.
    [[nodiscard]] const EngineWords& Words() const;

    // Whether the open database has the edit trail, or a table that files of earlier versions lack. Both raise the engine's failure.
    [[nodiscard]] bool HasTrail();
    [[nodiscard]] bool HasTable(const char* name);

    // Opens the database when it is closed and always leaves it closed, except after a failed statement (407). Committed on return.
    bool ExecuteAction(const std::string& sqlstring);

    // Stores time records, in one transaction and one step, provided that each row is as it was read: false with 407 and a Conflict where
    // one is not, and nothing is stored.
    bool SaveTimeRecords(std::span<const TimeRecordWrite> records);

    // Changes the options in the same way; nothing is written where they are the same already.
    bool UpdateOptions(const std::string& sqlstring, const OptionsRow& options, const OptionsRow& asRead);

    // Runs steps in one transaction, as ExecuteAction runs a statement: false with 407. A RowChanged that they raise is a Conflict.
    bool ExecuteSteps(const std::function<void(Engine& engine)>& steps);

    // Each opens the database when it is closed and closes it after success; a failed statement (412, 413) leaves it open.
    bool AddNewEmployee(const EmployeeRow& theemployee);
    bool LoadEmployeeList(EmployeeSink& thelist);

    // By display name; nobody else's row is read.
    bool LoadEmployeesNamed(EmployeeSink& thelist, const std::string& thename);

    bool UpdateEmployee(const EmployeeRow& theemployee);

    // False with 413 and a Conflict where the employee is not stored as read any more.
    bool UpdateEmployee(const EmployeeRow& theemployee, const EmployeeRow& asRead);

    // Deliberately does nothing and answers false: employees are never deleted.
    bool DeleteEmployee(const EmployeeRow& theemployee);

    bool AddNewCompany(const CompanyRow& thecompany);
    bool LoadCompanyList(CompanySink& thelist);
    bool UpdateCompany(const CompanyRow& thecompany);

    // False with 413 and a Conflict where the company is not stored as it was read any more.
    bool UpdateCompany(const CompanyRow& thecompany, const CompanyRow& asRead);

    // Deliberately does nothing and answers false.
    bool DeleteCompany(const CompanyRow& thecompany);

private:
    // Always false, as the next.
    bool Fail(std::int32_t errorNumber, const char* reason);

    bool Fail(std::int32_t errorNumber, Failure reason);
    void FailOpening(const Failure& reason);
    bool FailWithoutDatabase();

    // For Succeeds: the operation fails with this number and what was raised.
    auto FailingWith(std::int32_t errorNumber)
    {
        return [this, errorNumber](const Failure& reason) { Fail(errorNumber, reason); };
    }

    void ForgetFailure();
    [[nodiscard]] std::unique_ptr<Engine> OpenEngine(const std::string& path);
    void TakeStep(std::int64_t step);
    bool Remembering(PasswordChange password, const std::function<bool()>& change);
    bool OpenFile(const std::string& name);
    bool JoinHold();
    void CloseFile();
    void OpenWhenClosed();
    void CloseWhenOpen();
    bool Change(std::int32_t errorNumber, const std::function<void()>& steps);
    void Write(const std::function<void()>& steps);
    bool FillEmployees(EmployeeSink& thelist, const std::function<std::unique_ptr<Statement>()>& prepare);
    std::shared_ptr<RecordSet> OpenCompanyQuery();

    struct Memory
    {
        Author author;
        std::int64_t lastStep = 0;
        std::int64_t newestEntry = 0;
        std::vector<PasswordChange> passwords;
    };

    std::shared_ptr<Memory> m_memory = std::make_shared<Memory>();
    std::shared_ptr<CDatabaseLocator> m_locator;
    std::unique_ptr<Engine> m_database; // kept after a close, as an unusable handle
    std::string m_openPath;             // its, in the platform's own form
    std::shared_ptr<RecordSet> m_recSet;
    std::string m_databasePath;
    std::string m_databaseName;
    std::string m_sql;
    bool m_databaseOpen = false;
    std::int16_t m_recordsetType = 0; // 0 stands for 4, a snapshot
    std::int32_t m_errorNumber = 0;
    Refusal m_refusal;
    std::string m_reason;
    std::int32_t m_steps = 0;      // of those that live
    std::int64_t m_stepNumber = 0; // theirs, once something was stored
    std::int32_t m_holds = 0;
    WhenHeld m_whenHeld = WhenHeld::Wait;
    Failure m_holdFailure{0, "", ""}; // why the file that is to be held is not
    std::string m_programFolder;
};

// For readers that raise: the member's failure as what LastFailure says of it.
void RequireOpen(CJetDB& database);
[[nodiscard]] std::unique_ptr<Statement> RequireSelect(CJetDB& database, const std::string& sql);

} // namespace ptk
