// How backups are named, and which of them are kept.
#pragma once

#include "platform/text/DateTime.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// "ptk_11-YYYY-MM-DD-HHMMSS.mdb".
[[nodiscard]] std::string BackupName(DateTime made);

// When the backup of this name was made; nothing for any other name.
[[nodiscard]] std::optional<DateTime> BackupMoment(std::string_view name);

// Which of these names may go, now that the newest backup was made at `newest`. Kept are the ten newest, and the newest of each day (that
// of `newest` and the 13 before), of each week from Sunday (its own and the 7 before) and of each month (its own and the 23 before). Names
// dated later than `newest`, by a clock that went wrong, stay and take nobody's place; what is no backup's name stays. Nothing may go where
// `newest` lies more than 40 days after the newest backup of an earlier day: its own clock may be wrong.
[[nodiscard]] std::vector<std::string> DispensableBackups(std::span<const std::string> names, DateTime newest);

} // namespace ptk
