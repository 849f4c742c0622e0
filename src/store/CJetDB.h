// The database as the program's classes use it: opens and closes it, runs their SQL, and moves employees and companies between their tables
// and the entities through the stored queries inside the database.
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

// One time record to be stored: its statement (see CTimeRecSQLConverter), and the row as it was read, if it was read.
struct TimeRecordWrite
{
    std::string statement;
    std::optional<TimeRecordRow> asRead;
};

// A password that an operation stored, even if it is the same as before. The edit trail only says that it changed.
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
    // While an object of this class lives, the file is held across any number of operations: all that read see the same moment, until one
    // of them stores something, and their opening and closing costs nothing. Where the file could not be opened, each operation fails at
    // once, without waiting for its own second. Holds may nest; the last closes the file. Not to be kept while the user is asked.
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

    // While an object of this class lives, all that is stored is one step of the edit trail. Steps may nest.
    class Step
    {
    public:
        // nullptr does nothing.
        explicit Step(std::shared_ptr<CJetDB> database);

        ~Step();
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;

    private:
        std::shared_ptr<CJetDB> m_database;
    };

    // While an object of this class lives, all that is stored has this reason in the edit trail; "" is none. The innermost reason counts.
    class Reason
    {
    public:
        // nullptr does nothing.
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
    // the engine's (source "SQLite" or "PostgreSQL"), a conversion's, or one of jetdb (StoreErrors.h).
    [[nodiscard]] const Failure& LastFailure() const { return m_refusal.failure; }

    // How the stored row differs from the one that was read, where the last operation failed because somebody had changed or removed it
    // since; nothing otherwise.
    [[nodiscard]] const std::optional<RowConflict>& Conflict() const { return m_refusal.conflict; }

    // LastFailure and Conflict together.
    [[nodiscard]] const Refusal& LastRefusal() const { return m_refusal; }

    // Sets whom the edit trail names for all that is stored from now on.
    void StoredBy(Author value) { m_memory->author = std::move(value); }
    [[nodiscard]] const Author& StoredBy() const { return m_memory->author; }

    // The step of the edit trail of the last operation that stores. 0 where that changed nothing; within a Step the number then stays.
    [[nodiscard]] std::int64_t LastStep() const { return m_memory->lastStep; }

    // The number of the edit trail's newest entry after the last operation that stores, where that changed something.
    [[nodiscard]] std::int64_t NewestEntry() const { return m_memory->newestEntry; }

    // The passwords that were stored so far, in the order of their steps.
    [[nodiscard]] const std::vector<PasswordChange>& Passwords() const { return m_memory->passwords; }

    // Another object for the same database, closed, that knows of no earlier failures. Author, steps and passwords are shared by both.
    [[nodiscard]] std::shared_ptr<CJetDB> SecondAccess() const;

    // Sets that from now on an operation fails at once where somebody else has the file: for questions that can as well be asked later.
    void DoNotWait() { m_whenHeld = WhenHeld::Refuse; }

    // Opens the database that the locator found. An empty path opens nothing, answers false and leaves ErrorNumber unchanged.
    bool OpenPTKDatabase(const std::shared_ptr<CDatabaseLocator>& thedatabaselocator);

    // Opens the database exclusively; never creates a file. False with 403 (no name) or the engine's own number. Connect text and password
    // are not used.
    bool OpenDB(const std::string& paramName = "", const std::string& paramConnect = "", const std::string& paramPassword = "");

    // Closes the database, which a Hold keeps ready all the same. False only when nothing was ever opened.
    bool CloseDB();

    // Lets others use the open file until the next operation; does nothing inside a Hold.
    void GiveUpHold();

    // Answers the rows of a select; nullptr with 403, 406 or 407. The caller opens and closes the database.
    std::shared_ptr<RecordSet> ExecuteSelect(const std::string& sqlstring);

    // A statement in the engine's own words, for rows that are read again and again with other parameters; nullptr with 403 or 407. The
    // caller opens and closes the database; the statement must end before it is closed.
    std::unique_ptr<Statement> PrepareSelect(const std::string& sqlstring);

    // Whether the database tells of changes, and what it told: see Engine. TakeNews opens the database and raises what that raises.
    [[nodiscard]] bool TellsNews() const;
    [[nodiscard]] std::optional<std::int64_t> TakeNews();

    // The engine's words for the texts that PrepareSelect takes. REQUIRES: the database is open.
    [[nodiscard]] const EngineWords& Words() const;

    // Whether the database has the edit trail, or a table that files of earlier versions lack. Both raise the engine's failure. REQUIRES:
    // the database is open.
    [[nodiscard]] bool HasTrail();
    [[nodiscard]] bool HasTable(const char* name);

    // Runs a statement that changes rows; on disk when it answers true. Opens the database when it is closed and always leaves it closed,
    // except after a failed statement (407).
    bool ExecuteAction(const std::string& sqlstring);

    // Stores time records in one transaction and one step, if each row is stored as it was read; else false with 407 and a Conflict, and
    // nothing is stored.
    bool SaveTimeRecords(std::span<const TimeRecordWrite> records);

    // Changes the options, if they are stored as they were read; else false with 407 and a Conflict. Nothing is written where `options` are
    // stored already or are those that were read.
    bool UpdateOptions(const std::string& sqlstring, const OptionsRow& options, const OptionsRow& asRead);

    // Runs steps in one transaction, and opens and closes as ExecuteAction does: false with 407. A RowChanged that they raise becomes the
    // Conflict.
    bool ExecuteSteps(const std::function<void(Engine& engine)>& steps);

    // Members for employees and companies open the database when it is closed and close it after success; failed (411 to 413), they leave
    // it open.
    bool AddNewEmployee(const EmployeeRow& theemployee);
    bool LoadEmployeeList(EmployeeSink& thelist);

    // Loads the employees with that display name; nobody else's row is read.
    bool LoadEmployeesNamed(EmployeeSink& thelist, const std::string& thename);

    bool UpdateEmployee(const EmployeeRow& theemployee);

    // Stores the employee; false with 413 and a Conflict where the stored row is not as it was read any more.
    bool UpdateEmployee(const EmployeeRow& theemployee, const EmployeeRow& asRead);

    // Deliberately does nothing and answers false: employees are never deleted.
    bool DeleteEmployee(const EmployeeRow& theemployee);

    bool AddNewCompany(const CompanyRow& thecompany);
    bool LoadCompanyList(CompanySink& thelist);
    bool UpdateCompany(const CompanyRow& thecompany);

    // Stores the company; false with 413 and a Conflict where the stored row is not as it was read any more.
    bool UpdateCompany(const CompanyRow& thecompany, const CompanyRow& asRead);

    // Deliberately does nothing and answers false: companies are never deleted.
    bool DeleteCompany(const CompanyRow& thecompany);

private:
    // Notes the failure and gives the hold up. Always false.
    bool Fail(std::int32_t errorNumber, const char* reason);

    bool Fail(std::int32_t errorNumber, Failure reason);
    void FailOpening(const Failure& reason);
    bool FailWithoutDatabase();

    // A handler for Succeeds: the operation fails with this number and what was raised.
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
    std::string m_openPath;             // of m_database, in the platform's own form
    std::shared_ptr<RecordSet> m_recSet;
    std::string m_databasePath;
    std::string m_databaseName;
    std::string m_sql;
    bool m_databaseOpen = false;
    std::int16_t m_recordsetType = 0; // 0 stands for 4, a snapshot
    std::int32_t m_errorNumber = 0;
    Refusal m_refusal;
    std::string m_reason;
    std::int32_t m_steps = 0;      // how many Step objects live
    std::int64_t m_stepNumber = 0; // their common number, once something was stored
    std::int32_t m_holds = 0;
    WhenHeld m_whenHeld = WhenHeld::Wait;
    Failure m_holdFailure{0, "", ""}; // why the file could not be opened for the Hold
    std::string m_programFolder;
};

// OpenDB and PrepareSelect for readers that raise: a failure is raised as LastFailure tells it.
void RequireOpen(CJetDB& database);
[[nodiscard]] std::unique_ptr<Statement> RequireSelect(CJetDB& database, const std::string& sql);

} // namespace ptk
