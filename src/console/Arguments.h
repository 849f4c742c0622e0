// Reads and checks the command line of ptk-console.
#pragma once

#include "office/sheet/EmployeeFields.h"
#include "office/sheet/SheetColumns.h"
#include "platform/text/DateTime.h"
#include "reports/forms/ReportForms.h"
#include "reports/ReportCatalog.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace ptk {

struct CreateDatabaseArguments
{
    bool sample = false;
    std::optional<DateTime> today; // the last day of the sample; only with `sample`
};

struct TimeCardArguments
{
    std::string employee; // a display name
    DateTime from;
    DateTime to; // inclusive
    bool check = false;
};

struct ReportArguments
{
    const ReportEntry& report;
    std::vector<std::string> employees; // display names in the order given; none: all that are offered
    std::optional<DateTime> from;
    std::optional<DateTime> to;
    ReportForm form = ReportForm::Text;
    std::optional<std::string> output;  // a file; none: the standard output
    std::optional<std::string> profile; // of the accountant's table, for a review only; none: the report in its form
};

struct ProfilesArguments
{
};

struct OverviewArguments
{
    std::vector<std::string> employees; // display names in the order given; none: all that are offered
    std::optional<DateTime> from;
    std::optional<DateTime> to;
    std::string format; // one of text, csv, json
    bool all = false;   // also those who are not offered but have records in the period
    bool remedies = false;
};

enum class PaydayTask
{
    Close,
    Reopen,
    Account
};

struct PaydayArguments
{
    PaydayTask task;
    DateTime from;
    DateTime to;                        // inclusive
    std::vector<std::string> employees; // display names in the order given; none: all that the task is for. Not for an account
    ReportForm form = ReportForm::Text; // of an account only, as is `output`
    std::optional<std::string> output;  // a file; none: the standard output
};

struct HistoryArguments
{
    std::optional<std::string> employee; // a display name, present or former; none: all entries
    std::optional<DateTime> from;
    std::optional<DateTime> to; // inclusive
    std::string format;         // one of text, csv, json
};

struct BackupArguments
{
    std::optional<std::string> to; // a file; none: into the folder of backups
};

struct RestoreArguments
{
    std::string file;
};

struct BackupsArguments
{
};

struct ImportArguments
{
    std::string file;
    bool dryRun = false;
    bool acceptDamaged = false;
    std::optional<int> codePage; // one that is known
};

struct ImportPunchesArguments
{
    std::string file;
    bool dryRun = false;
    bool partly = false;
    std::optional<int> codePage; // one that is known
    SheetWords words;
};

struct ImportEmployeesArguments
{
    std::string file;
    bool dryRun = false;
    std::vector<EmployeeField> change;
};

struct PersonArguments
{
    std::string name;                   // a display name
    std::optional<std::int32_t> number; // the employee number, where several have the name
    ReportForm form = ReportForm::Json; // or Pdf
    std::optional<std::string> output;  // a file; none: the standard output
};

struct KeptArguments
{
    std::int32_t years = 0;
};

struct CopyDatabaseArguments
{
    std::optional<std::string> from; // a file or an address; none: the configured database
    std::string to;
};

struct CheckArguments
{
};

using Command =
    std::variant<CreateDatabaseArguments, TimeCardArguments, ReportArguments, ProfilesArguments, OverviewArguments, PaydayArguments,
                 HistoryArguments, BackupArguments, RestoreArguments, BackupsArguments, ImportArguments, ImportPunchesArguments,
                 ImportEmployeesArguments, PersonArguments, KeptArguments, CopyDatabaseArguments, CheckArguments>;

struct Arguments
{
    std::string programFolder; // empty: not given
    Command command;
};

// The answer instead of arguments when there is no command to run: the text that was asked for (help, version), or what is wrong.
struct UsageAnswer
{
    bool wrong = false;
    std::string text; // without a line end at its end
};

// Reads `words`, the command line without the program's name. The year of a date without one is that of `today`.
[[nodiscard]] std::variant<Arguments, UsageAnswer> ReadArguments(const std::vector<std::string>& words, DateTime today);

} // namespace ptk
