// The commands of ptk-console. Each answers its exit status, or raises the failure that ended it.
#pragma once

namespace ptk {

struct Console;
struct BackupArguments;
struct BackupsArguments;
struct CheckArguments;
struct CreateDatabaseArguments;
struct HistoryArguments;
struct OverviewArguments;
struct ReportArguments;
struct RestoreArguments;
struct TimeCardArguments;

int CreateDatabaseCommand(const CreateDatabaseArguments& arguments, Console& console);
int TimeCardCommand(const TimeCardArguments& arguments, Console& console);
int ReportCommand(const ReportArguments& arguments, Console& console);
int OverviewCommand(const OverviewArguments& arguments, Console& console);
int HistoryCommand(const HistoryArguments& arguments, Console& console);
int BackupCommand(const BackupArguments& arguments, Console& console);
int RestoreCommand(const RestoreArguments& arguments, Console& console);
int BackupsCommand(const BackupsArguments& arguments, Console& console);
int CheckCommand(const CheckArguments& arguments, Console& console);

} // namespace ptk
