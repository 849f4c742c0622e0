// The command line of ptk-console, read and checked.
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
    std::optional<std::string> profile; // of the accountant's table, of a review alone; none: the report in its form
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
    bool all = false;   // those who are not offered and have records in the period, too
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
    std::vector<std::string> employees; // as above; none: all that the task is for. Not of an account
    ReportForm form = ReportForm::Text; // of an account, as the next
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
    std::optional<std::int32_t> number; // of namesakes
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

// What stands instead of arguments when there is nothing to do any more: the text asked for (help, version) or what is wrong.
struct UsageAnswer
{
    bool wrong = false;
    std::string text; // without a line end at its end
};

// `words`: the command line without the program's name. `today` tells the year of a date without one.
[[nodiscard]] std::variant<Arguments, UsageAnswer> ReadArguments(const std::vector<std::string>& words, DateTime today);

} // namespace ptk
