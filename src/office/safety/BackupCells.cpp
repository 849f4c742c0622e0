#include "office/safety/BackupCells.h"

#include "office/card/CardTexts.h"
#include "platform/text/DayText.h"
#include "platform/text/Text.h"
#include "store/backup/BackupNames.h"

#include <fmt/format.h>

namespace ptk {

namespace {

constexpr std::int64_t kKilobyte = 1024;
constexpr std::int64_t kMegabyte = kKilobyte * kKilobyte;
constexpr std::size_t kShortName = 3; // of a weekday

std::string SizeText(std::int64_t size)
{
    if (size < kMegabyte) {
        return fmt::format("{} KB", (size + kKilobyte - 1) / kKilobyte);
    }
    return fmt::format("{:.1f} MB", static_cast<double>(size) / static_cast<double>(kMegabyte));
}

std::string MadeText(const std::string& name)
{
    const auto made = BackupMoment(name);
    return made ? WeekdayName(*made).substr(0, kShortName) + FormatDateTime(*made, " mm/dd/yyyy hh:mm:ss AM/PM") : name;
}

} // namespace

BackupCells BackupCellsOf(const std::string& name, std::int64_t size)
{
    return {MadeText(name), SizeText(size), {}, {}, {}};
}

BackupCells BackupCellsOf(const BackupEntry& entry)
{
    BackupCells cells = BackupCellsOf(entry.name, entry.size);
    const BackupContent content = entry.content.value_or(BackupContent());
    cells.employees = std::to_string(content.employees);
    cells.records = std::to_string(content.records);
    cells.newestShift = content.newestShift ? DayText(*content.newestShift) : std::string();
    return cells;
}

} // namespace ptk
