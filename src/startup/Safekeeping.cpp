#include "startup/Safekeeping.h"

#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Desktop.h"
#include "startup/Windows.h"
#include "store/backup/Restore.h"
#include "store/engine/EngineNumber.h"
#include "store/engine/EngineSource.h"

#include <filesystem>
#include <utility>

namespace ptk {

namespace {

const ProgressWords kBackingUp{"Backup", "Backing up the database..."};
const ProgressWords kRestoring{"Restore", "Restoring the database..."};

constexpr auto kBackupTitle = "Backup Error";
constexpr auto kNotBackedUp = "The database could not be backed up: ";
constexpr auto kBackedUp = "Backed up as ";
constexpr auto kButNoSecond = "The database was backed up, but ";
constexpr auto kGivenUp = "The backup was given up";

constexpr auto kRestoreTitle = "Restore Error";
constexpr auto kNotRestored = "The database could not be restored and is what it was: ";
constexpr auto kRestored = "Restored from ";

bool IsUseless(const Failure& reason)
{
    const std::int32_t number = reason.Number();
    return IsOfDatabase(reason) && (number == engine::Damaged || number == engine::CannotOpen || number == engine::NoDatabase);
}

std::string FileNameOf(const std::string& path)
{
    return std::filesystem::path(path).filename().string();
}

// The failure's text, with the backup folder where it is not a failure of the engine.
std::string Located(const Failure& reason, const BackupOrder& order)
{
    return reason.Description() + (IsOfDatabase(reason) ? "" : ": " + BackupFolder(order.programFolder));
}

std::string SecondProblem(const BackupOutcome& outcome)
{
    return outcome.secondProblem.empty() ? std::string() : kButNoSecond + outcome.secondProblem;
}

} // namespace

Safekeeping::Safekeeping(Desktop& desktop, WindowFactory& windows, std::function<void(std::int32_t number, const std::string& text)> log)
    : m_desktop(desktop), m_windows(windows), m_log(std::move(log))
{
}

void Safekeeping::Begin(const std::shared_ptr<CJetDB>& database)
{
    m_newest.reset();
    Succeeds([&] { m_newest = NewestChange(database); });
}

std::string Safekeeping::BackUpWhenDue(const BackupOrder& order)
{
    if (!BackupIsDue(order.programFolder, order.now)) {
        return {};
    }
    return NewsOf(Make(order));
}

void Safekeeping::BackUpChanges(const BackupOrder& order, const std::shared_ptr<CJetDB>& database)
{
    std::optional<std::int64_t> newest;
    Succeeds([&] { newest = NewestChange(database); });
    const bool unchanged = newest && newest == m_newest;
    if (unchanged && !BackupIsDue(order.programFolder, order.now)) {
        return;
    }
    const std::string news = NewsOf(Make(order));
    if (!news.empty()) {
        Tell(kBackupTitle, news);
    }
}

std::string Safekeeping::NewsOf(const Attempt& attempt)
{
    return attempt.outcome.secondIsNews ? SecondProblem(attempt.outcome) : attempt.problem;
}

std::string Safekeeping::BackUpNow(const BackupOrder& order)
{
    const Attempt attempt = Make(order);
    if (attempt.outcome.path.empty()) {
        return attempt.problem.empty() ? kGivenUp : attempt.problem;
    }
    const std::string second = SecondProblem(attempt.outcome);
    return second.empty() ? kBackedUp + FileNameOf(attempt.outcome.path) : second;
}

Safekeeping::Attempt Safekeeping::Make(const BackupOrder& order)
{
    const auto window = m_windows.CreateProgressWindow(kBackingUp);
    Attempt attempt;
    bool goesOn = true;
    const auto make = [&] {
        const BusyPointer busy(m_desktop);
        attempt.outcome = MakeBackup(order, [&](std::int32_t done, std::int32_t all) { return goesOn = window->GoOn(done, all); });
    };
    Succeeds(make, [&](const Failure& reason) {
        goesOn = goesOn && window->GoOn(0, 0); // the user may have stopped it while it waited for a server
        if (goesOn) {
            attempt.problem = kNotBackedUp + Located(reason, order);
            m_log(reason.Number(), attempt.problem);
        }
    });
    if (!attempt.outcome.secondProblem.empty()) {
        m_log(0, attempt.outcome.secondProblem);
    }
    return attempt;
}

std::string Safekeeping::Restore(const BackupOrder& order, const Author& author)
{
    const auto window = m_windows.CreateRestoreWindow();
    std::string file = window->Choose(BackupFolder(order.programFolder));
    while (!file.empty() && !PutBack(order, file, author)) {
        file = window->Choose(BackupFolder(order.programFolder));
    }
    return file.empty() ? std::string() : kRestored + FileNameOf(file);
}

bool Safekeeping::PutBack(const BackupOrder& order, const std::string& file, const Author& author)
{
    const auto window = m_windows.CreateProgressWindow(kRestoring);
    bool goesOn = true;
    const auto putBack = [&] {
        const BusyPointer busy(m_desktop);
        RestoreBackup(order, file, author, [&](std::int32_t done, std::int32_t all) { return goesOn = window->GoOn(done, all); });
    };
    return Succeeds(putBack, [&](const Failure& reason) {
        if (goesOn) {
            m_log(reason.Number(), kNotRestored + reason.Description());
            Tell(kRestoreTitle, kNotRestored + reason.Description());
        }
    });
}

bool Safekeeping::CanReplace(const BackupOrder& order)
{
    const auto hasBackups = [&] { return !BackupsIn(BackupFolder(order.programFolder)).empty(); };
    if (order.database.empty() || !RestoreRefusal(order.database).empty() || !Succeeds(hasBackups)) {
        return false;
    }
    bool replaceable = false;
    const auto examine = [&] { static_cast<void>(ExamineBackup(order.database)); };
    Succeeds(examine, [&](const Failure& reason) { replaceable = IsUseless(reason); });
    return replaceable;
}

void Safekeeping::Tell(const char* title, const std::string& text)
{
    m_desktop.Show(text + '.', title, Icon::Exclamation);
}

} // namespace ptk
