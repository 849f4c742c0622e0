#include "office/person/PersonFiles.h"

#include "model/CEmployeeList.h"
#include "platform/Failure.h"
#include "platform/files/Folder.h"
#include "platform/text/Characters.h"
#include "platform/text/Text.h"
#include "store/backup/Backups.h"

#include <algorithm>
#include <filesystem>

namespace ptk {

namespace {

constexpr auto kReport = "report";
constexpr auto kBackup = "backup";
constexpr auto kCopy = "copy of a backup";
constexpr auto kReports = "reports";
constexpr auto kBackups = "backups";

// The regular files of the folder, in the order of their names; none without the folder.
std::vector<std::string> FilesIn(const std::filesystem::path& folder)
{
    std::vector<std::string> names = NamesIn(folder.string());
    std::erase_if(names, [&](const std::string& name) {
        std::error_code unknown;
        return !std::filesystem::is_regular_file(folder / name, unknown);
    });
    std::sort(names.begin(), names.end());
    return names;
}

// The employee number with which reports of one person begin: "7_2003-03-01_time_card.txt". Empty for other names.
std::string NumberOf(const std::string& file)
{
    const std::size_t end = file.find('_');
    const std::string number = file.substr(0, end == std::string::npos ? 0 : end);
    return std::all_of(number.begin(), number.end(), IsDigit) ? number : std::string();
}

// Whether the file, by its name, is about another person only.
bool IsOfAnother(const std::string& file, CEmployeeList& employees, const CEmployee& person)
{
    const std::string number = NumberOf(file);
    if (!number.empty()) {
        return number != std::to_string(person.EmployeeNumber());
    }
    const std::string lower = LowerCase(file);
    const auto names = [&](const CEmployee& employee) {
        const std::string name = LowerCase(employee.DisplayName());
        return !name.empty() && lower.find(name) != std::string::npos;
    };
    for (std::int32_t i = 1; i <= employees.Count() && !names(person); ++i) {
        const auto employee = employees.Item(i);
        if (employee != nullptr && names(*employee)) {
            return true;
        }
    }
    return false;
}

} // namespace

std::vector<PersonFile> FilesElsewhere(const PersonPlaces& places, CEmployeeList& employees, const CEmployee& person)
{
    std::vector<PersonFile> files;
    for (const std::string& name : FilesIn(std::filesystem::path(places.programFolder) / kReports)) {
        if (!IsOfAnother(name, employees, person)) {
            files.push_back({kReport, std::string(kReports) + '/' + name});
        }
    }
    for (const std::string& name : BackupsIn(BackupFolder(places.programFolder))) {
        files.push_back({kBackup, std::string(kBackups) + '/' + name});
    }
    if (!places.secondFolder.empty()) {
        for (const std::string& name : BackupsIn(places.secondFolder)) {
            files.push_back({kCopy, (std::filesystem::path(places.secondFolder) / name).string()});
        }
    }
    return files;
}

} // namespace ptk
