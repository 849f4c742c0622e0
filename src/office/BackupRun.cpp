#include "office/BackupRun.h"

#include "platform/Failure.h"
#include "platform/ProgramFolder.h"
#include "platform/Succeeds.h"
#include "shell/CFileAdaptor.h"
#include "store/BackupNames.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace ptk {

std::string SecondBackupFolder(CFileAdaptor& configuration)
{
    return configuration.FindKeyValue("BackupFolder");
}

BackupOutcome MakeBackup(const BackupOrder& order, const CopyProgress& progress)
{
    const std::string folder = BackupFolder(order.programFolder);
    BackupOutcome outcome{BackUp(order.database, folder, order.now, progress), {}};
    PruneBackups(folder, std::filesystem::path(outcome.path).filename().string());
    if (!order.secondFolder.empty()) {
        const std::string second = NativePath(order.secondFolder).string();
        Succeeds(
            [&] { CopyBackup(outcome.path, second); },
            [&](const Failure& reason) { outcome.secondProblem = "there is no second copy in " + second + ": " + reason.Description(); });
    }
    return outcome;
}

bool BackupIsDue(const std::string& programFolder, DateTime today)
{
    std::error_code error;
    for (std::filesystem::directory_iterator at(BackupFolder(programFolder), error), end; !error && at != end; at.increment(error)) {
        const auto made = BackupMoment(at->path().filename().string());
        if (made && DaysBetween(today, *made) >= 0) {
            return false;
        }
    }
    return true;
}

} // namespace ptk
