#include "office/safety/BackupRun.h"

#include "platform/Failure.h"
#include "platform/files/FileDraft.h"
#include "platform/files/Folder.h"
#include "platform/files/ProgramFolder.h"
#include "platform/Succeeds.h"
#include "shell/CFileAdaptor.h"
#include "store/backup/BackupNames.h"
#include "store/backup/Restore.h"
#include "store/trail/TrailReader.h"

#include <filesystem>
#include <system_error>

namespace ptk {

namespace {

namespace fs = std::filesystem;

constexpr const char* kKey = "BackupFolder";
constexpr const char* kSection = "[PTK]";
constexpr const char* kTold = ".second-copy-missing"; // holds the folder whose problem was told
constexpr const char* kNotWhole = "The second folder must be named whole, from its first \"/\" on.";
constexpr const char* kNotSecond = "The second folder must be another than the one of the backups themselves.";
constexpr const char* kNotKept = "A folder with a comma, a quotation mark or a line break in its name cannot be remembered.";

// The 1-based position of the first line that matches, or 0.
template <typename Matches>
std::int16_t FindLineWhere(CFileAdaptor& configuration, Matches matches)
{
    for (std::int16_t i = 1; i <= configuration.FileLineCount(); ++i) {
        if (matches(configuration.GetLine(i))) {
            return i;
        }
    }
    return 0;
}

bool IsBackupFolder(const std::string& folder, const std::string& programFolder)
{
    std::error_code ignored; // for folders that do not exist yet the names decide
    const fs::path first = BackupFolder(programFolder);
    const fs::path second = NativePath(folder);
    return fs::equivalent(first, second, ignored) || fs::weakly_canonical(first, ignored) == fs::weakly_canonical(second, ignored);
}

// Whether this was not told before: a disk that was taken away is told of once, not every day.
bool IsNews(const std::string& folder, const std::string& second)
{
    const std::string told = folder + '/' + kTold;
    bool news = true;
    Succeeds([&] { news = PutFile(told, second); }); // what cannot be noted is told again
    return news;
}

void CopyToSecond(const BackupOrder& order, BackupOutcome& outcome)
{
    const std::string folder = BackupFolder(order.programFolder);
    const std::string second = NativePath(order.secondFolder).string();
    const auto tell = [&](const Failure& reason) {
        outcome.secondProblem = "there is no second copy in " + second + ": " + reason.Description();
        outcome.secondIsNews = IsNews(folder, second);
    };
    if (IsBackupFolder(order.secondFolder, order.programFolder)) {
        return tell(Failure(0, "PTK", "it is the folder of the backups themselves"));
    }
    if (Succeeds([&] { CopyBackup(outcome.path, second); }, tell)) {
        std::error_code ignored; // if it stays, the next problem is not told
        fs::remove(folder + '/' + kTold, ignored);
    }
}

} // namespace

std::string SecondBackupFolder(CFileAdaptor& configuration)
{
    return configuration.FindKeyValue(kKey);
}

void SecondBackupFolder(CFileAdaptor& configuration, const std::string& folder)
{
    const auto present = FindLineWhere(configuration, [&](const std::string&) { return configuration.KeyString() == kKey; });
    if (present != 0) {
        configuration.RemoveLine(present);
    }
    if (folder.empty()) {
        return;
    }
    const auto section = FindLineWhere(configuration, [](const std::string& line) { return line == kSection; });
    const auto place = present != 0 ? present : static_cast<std::int16_t>((section != 0 ? section : configuration.FileLineCount()) + 1);
    configuration.InsertLine(std::string(kKey) + '=' + folder, place);
}

std::string SecondFolderRefusal(const std::string& folder, const std::string& programFolder)
{
    if (folder.empty()) {
        return {};
    }
    if (folder.find_first_of(",\"\r\n") != std::string::npos) {
        return kNotKept;
    }
    if (!fs::path(folder).is_absolute()) {
        return kNotWhole;
    }
    return IsBackupFolder(folder, programFolder) ? kNotSecond : std::string();
}

BackupOutcome MakeBackup(const BackupOrder& order, const CopyProgress& progress)
{
    const std::string folder = BackupFolder(order.programFolder);
    BackupOutcome outcome{BackUp(order.database, folder, order.now, progress), {}};
    PruneBackups(folder, fs::path(outcome.path).filename().string());
    if (!order.secondFolder.empty()) {
        CopyToSecond(order, outcome);
    }
    return outcome;
}

bool BackupIsDue(const std::string& programFolder, DateTime today)
{
    std::vector<std::string> names;
    static_cast<void>(
        Succeeds([&] { names = NamesIn(BackupFolder(programFolder)); })); // else a backup is due, which tells what is wrong there
    return std::none_of(names.begin(), names.end(), [&](const std::string& name) {
        const auto made = BackupMoment(name);
        return made && DaysBetween(today, *made) == 0;
    });
}

std::int64_t NewestChange(const std::shared_ptr<CJetDB>& database)
{
    TrailQuery query;
    query.most = 1;
    const auto newest = ReadTrail(database, query);
    return newest.empty() ? 0 : newest.front().id;
}

std::string RestoreBackup(const BackupOrder& order, const std::string& file, const Author& author, const CopyProgress& progress)
{
    const std::string folder = BackupFolder(order.programFolder);
    std::string kept = Restore({file, order.database, folder, order.now, author}, progress);
    if (!kept.empty()) {
        PruneBackups(folder, fs::path(kept).filename().string(), file);
    }
    return kept;
}

} // namespace ptk
