// The commands of ptk-console. Each answers its exit status, or raises the failure that ended it.
#pragma once

namespace ptk {

struct Console;
struct BackupArguments;
struct BackupsArguments;
struct CheckArguments;
struct CopyDatabaseArguments;
struct CreateDatabaseArguments;
struct HistoryArguments;
struct ImportArguments;
struct ImportEmployeesArguments;
struct ImportPunchesArguments;
struct KeptArguments;
struct OverviewArguments;
struct PaydayArguments;
struct PersonArguments;
struct ProfilesArguments;
struct ReportArguments;
struct RestoreArguments;
struct TimeCardArguments;

[[nodiscard]] int CreateDatabaseCommand(const CreateDatabaseArguments& arguments, Console& console);
[[nodiscard]] int TimeCardCommand(const TimeCardArguments& arguments, Console& console);
[[nodiscard]] int ReportCommand(const ReportArguments& arguments, Console& console);

// Writes the accountant's table by the profile that the arguments name. REQUIRES: they name one.
[[nodiscard]] int ReportByProfile(const ReportArguments& arguments, Console& console);

[[nodiscard]] int ProfilesCommand(const ProfilesArguments& arguments, Console& console);
[[nodiscard]] int OverviewCommand(const OverviewArguments& arguments, Console& console);
[[nodiscard]] int PaydayCommand(const PaydayArguments& arguments, Console& console);
[[nodiscard]] int HistoryCommand(const HistoryArguments& arguments, Console& console);
[[nodiscard]] int BackupCommand(const BackupArguments& arguments, Console& console);
[[nodiscard]] int RestoreCommand(const RestoreArguments& arguments, Console& console);
[[nodiscard]] int BackupsCommand(const BackupsArguments& arguments, Console& console);
[[nodiscard]] int ImportCommand(const ImportArguments& arguments, Console& console);
[[nodiscard]] int ImportPunchesCommand(const ImportPunchesArguments& arguments, Console& console);
[[nodiscard]] int ImportEmployeesCommand(const ImportEmployeesArguments& arguments, Console& console);
[[nodiscard]] int PersonCommand(const PersonArguments& arguments, Console& console);
[[nodiscard]] int KeptCommand(const KeptArguments& arguments, Console& console);
[[nodiscard]] int CopyDatabaseCommand(const CopyDatabaseArguments& arguments, Console& console);
[[nodiscard]] int CheckCommand(const CheckArguments& arguments, Console& console);

} // namespace ptk
