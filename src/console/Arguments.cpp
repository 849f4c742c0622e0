#include "console/Arguments.h"

#include "console/AddCommand.h"
#include "console/PeopleArguments.h"
#include "platform/system/Version.h"
#include "platform/text/CodePage.h"
#include "platform/text/TypedTime.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <map>
#include <sstream>

namespace ptk {

namespace {

void TakesFormat(CLI::App& command, std::string& format)
{
    command.add_option("--format", format, "How: text, csv or json")->type_name("FORMAT")->check(CLI::IsMember({"text", "csv", "json"}));
}

void TakesCodePage(CLI::Option* option)
{
    const auto known = [](const std::string& text) {
        const auto number = text.size() < 6 && text.find_first_not_of("0123456789") == std::string::npos ? std::atoi(text.c_str()) : 0;
        return IsKnownCodePage(number) ? std::string() : "no code page that is known: " + text;
    };
    option->type_name("N")->check(CLI::Validator([known](std::string& text) { return known(text); }, ""));
}

const std::map<std::string, ReportForm>& ReportForms()
{
    static const std::map<std::string, ReportForm> forms{
        {"text", ReportForm::Text}, {"csv", ReportForm::Csv}, {"json", ReportForm::Json}, {"pdf", ReportForm::Pdf}};
    return forms;
}

std::vector<std::string> ConsoleNames()
{
    std::vector<std::string> names;
    for (const ReportEntry& entry : ReportCatalog()) {
        names.emplace_back(entry.consoleName);
    }
    return names;
}

// The words of the line as CLI11 stores them. Dates are checked while the line is read and converted afterwards.
struct Words
{
    std::string programFolder;
    bool sample = false;
    bool check = false;
    bool all = false;
    bool remedies = false;
    std::string format = "text";
    std::string today;
    std::string employee;
    std::string from;
    std::string to;
    std::string report;
    std::string output;
    std::string target;
    std::string file;
    bool dryRun = false;
    bool acceptDamaged = false;
    bool partly = false;
    std::string columns;
    std::string profile;
    int codePage = 0;
    std::vector<std::string> employees;
};

class Grammar
{
public:
    explicit Grammar(DateTime today);
    std::variant<Arguments, UsageAnswer> Read(std::vector<std::string> words);

private:
    void DescribeCreateDatabase();
    void DescribeTimeCard();
    void DescribeReport();
    void DescribeOverview();
    void DescribePayday();
    void DescribeHistory();
    void DescribeBackups();
    void DescribeImport();
    void DescribeImportPunches();
    void DescribeCopy();
    void TakesDay(CLI::Option* option) const;
    void TakesPeriod(CLI::App& command);
    CLI::Option* TakesEmployees(CLI::App& command, const char* about);
    CLI::Option* TakesReportForm(CLI::App& command);
    void CheckReport(const CLI::App& report) const;
    std::variant<Arguments, UsageAnswer> Answer(const CLI::ParseError& error) const;
    ReportArguments ReportResult(const CLI::App& report) const;
    PaydayArguments PaydayResult(PaydayTask task, const CLI::App& command) const;

    // Adds a command; `result` makes its arguments of the words.
    template <typename Describe, typename Result>
    void Add(CLI::App& app, const char* name, const char* about, Describe describe, Result result)
    {
        AddCommand(app, name, about, describe, [this, result](const CLI::App& command) { m_result.emplace(result(command)); });
    }

    // A date read as in the date boxes of the windows: "3/5" is in this year.
    std::optional<DateTime> Day(const std::string& text) const { return ReadTypedDate(text, m_today); }

    DateTime m_today;
    Words m_words;
    CLI::App m_app{"PTK - Administrator for terminals and scheduled jobs: time cards and reports from the program folder's database",
                   "ptk-console"};
    std::optional<PeopleGrammar> m_people;
    std::optional<Command> m_result; // the command that was given, with its arguments
};

Grammar::Grammar(DateTime today) : m_today(today)
{
    m_app.set_help_flag("-h,--help", "Show this help");
    m_app.set_version_flag("--version", std::string("ptk-console ") + Version(), "Show the version");
    m_app
        .add_option(
            "--program-folder", m_words.programFolder,
            "The folder with system/ and reports/; else PTK_PROGRAM_FOLDER, else the folder of ptk-console where it is one, else the one "
            "chosen at the first start, else ptk-admin in the folder for your data")
        ->type_name("DIR");
    m_app.require_subcommand(1);
    m_app.fallthrough();
    m_app.footer("Exit status: 0 done, 1 the operation failed, 2 wrong usage, 3 done and problems found. A date is "
                 "month/day, of this year, or month/day/year; 2026-03-05 is one, too.");
    DescribeCreateDatabase();
    DescribeTimeCard();
    DescribeReport();
    DescribeOverview();
    DescribePayday();
    DescribeHistory();
    DescribeBackups();
    DescribeImport();
    DescribeImportPunches();
    m_people.emplace(m_app, [this](Command command) { m_result.emplace(std::move(command)); });
    DescribeCopy();
    Add(m_app, "check", "Verify the database's integrity and schema and print its row counts", TakesNothing,
        [](const CLI::App&) { return CheckArguments{}; });
}

void Grammar::DescribeCreateDatabase()
{
    constexpr auto about = "Make the database file that the configuration names; an existing one stays";
    const auto describe = [this](CLI::App& command) {
        CLI::Option* sample = command.add_flag("--sample", m_words.sample, "Fill in a small business with half a year of shifts");
        TakesDay(command.add_option("--today", m_words.today, "The last day of the sample's shifts; else today")->needs(sample));
    };
    Add(m_app, "create-database", about, describe, [this](const CLI::App&) {
        return CreateDatabaseArguments{m_words.sample, Day(m_words.today)};
    });
}

void Grammar::DescribeTimeCard()
{
    const auto describe = [this](CLI::App& command) {
        command.add_option("--employee", m_words.employee, "First and last name, or the last name alone where there is no first one")
            ->type_name("NAME")
            ->required();
        TakesPeriod(command);
        command.add_flag("--check", m_words.check, "Say below the card what is wrong with it");
    };
    Add(m_app, "time-card", "Print an employee's time card", describe, [this](const CLI::App&) {
        return TimeCardArguments{m_words.employee, Day(m_words.from).value(), Day(m_words.to).value(), m_words.check};
    });
}

void Grammar::DescribeReport()
{
    const auto describe = [this](CLI::App& command) {
        command.add_option("report", m_words.report, "Which one")->type_name("KIND")->check(CLI::IsMember(ConsoleNames()))->required();
        TakesEmployees(command, "An employee's name, may be repeated; else all that the Reports page lists");
        TakesDay(command.add_option("--from", m_words.from, "First day; else as the Reports page offers"));
        TakesDay(command.add_option("--to", m_words.to, "Last day; else as the Reports page offers"));
        command.add_option("--profile", m_words.profile, "Of a review: only the accountant's table, as the profile of this name wants it")
            ->type_name("NAME")
            ->excludes(TakesReportForm(command));
        command
            .add_option("-o,--output", m_words.output,
                        "Into this file instead of printing it; all reports into one, and each into the reports folder as well")
            ->type_name("FILE");
    };
    Add(m_app, "report", "Write a report to the reports folder and print it", describe,
        [this](const CLI::App& command) { return ReportResult(command); });
    Add(m_app, "profiles", "List the profiles of the accountant's table", TakesNothing,
        [](const CLI::App&) { return ProfilesArguments{}; });
}

void Grammar::DescribeOverview()
{
    const auto describe = [this](CLI::App& command) {
        CLI::Option* employee = TakesEmployees(command, "An employee's name, may be repeated; else all that are offered time cards");
        command.add_flag("--all", m_words.all, "Everybody else who has records in the period, too")->excludes(employee);
        command.add_flag("--remedies", m_words.remedies, "What can be done about each finding, and the hours after it");
        TakesDay(command.add_option("--from", m_words.from,
                                    "First day; else the day after what was closed last, or as the Reports page offers"));
        TakesDay(command.add_option("--to", m_words.to, "Last day, inclusive; else by the length of a pay period"));
        TakesFormat(command, m_words.format);
    };
    Add(m_app, "overview", "Print whom one can pay for a period, whom not yet, and why", describe, [this](const CLI::App&) {
        return OverviewArguments{m_words.employees, Day(m_words.from), Day(m_words.to), m_words.format, m_words.all, m_words.remedies};
    });
}

void Grammar::DescribePayday()
{
    CLI::App& payday = *m_app.add_subcommand("payday", "Keep what is paid for a period, take that back, or print what became of it");
    payday.require_subcommand(1);
    const auto takesPeopleOfPeriod = [this](CLI::App& task) {
        TakesPeriod(task);
        TakesEmployees(task, "An employee's name, may be repeated");
    };
    const auto takesForm = [this](CLI::App& account) {
        TakesPeriod(account);
        TakesReportForm(account);
        account.add_option("-o,--output", m_words.output, "Into this file instead of printing it")->type_name("FILE");
    };
    Add(payday, "close", "Keep for each person what is paid for the period; without names, of all who have no problem", takesPeopleOfPeriod,
        [this](const CLI::App& close) { return PaydayResult(PaydayTask::Close, close); });
    Add(payday, "reopen", "Take the newest closing of the period back; without names, of all who have one", takesPeopleOfPeriod,
        [this](const CLI::App& reopen) { return PaydayResult(PaydayTask::Reopen, reopen); });
    Add(payday, "account", "Print what was paid, what the cards say now, and what was changed since", takesForm,
        [this](const CLI::App& account) { return PaydayResult(PaydayTask::Account, account); });
}

void Grammar::DescribeHistory()
{
    constexpr auto about = "Print who changed what, when, from what to what; the newest change first";
    const auto describe = [this](CLI::App& command) {
        command.add_option("--employee", m_words.employee, "Only what was changed of this employee and of the time records")
            ->type_name("NAME");
        TakesDay(command.add_option("--from", m_words.from, "First day of the changes"));
        TakesDay(command.add_option("--to", m_words.to, "Last day of the changes, inclusive"));
        TakesFormat(command, m_words.format);
    };
    Add(m_app, "history", about, describe, [this](const CLI::App& command) {
        return HistoryArguments{Given(command, "--employee", m_words.employee), Day(m_words.from), Day(m_words.to), m_words.format};
    });
}

void Grammar::DescribeBackups()
{
    const auto takesTarget = [this](CLI::App& command) {
        command.add_option("--to", m_words.target, "Into this new file instead, and remove nothing")->type_name("FILE");
    };
    const auto takesBackup = [this](CLI::App& command) {
        command.add_option("file", m_words.file, "The backup, or the name of one in the folder backups")->type_name("FILE")->required();
    };
    Add(m_app, "backup", "Back the database up into the folder backups, and remove backups that need not be kept", takesTarget,
        [this](const CLI::App& command) { return BackupArguments{Given(command, "--to", m_words.target)}; });
    Add(m_app, "restore", "Put a backup in the place of the database, which is backed up first", takesBackup,
        [this](const CLI::App&) { return RestoreArguments{m_words.file}; });
    Add(m_app, "backups", "List the backups, the newest first", TakesNothing, [](const CLI::App&) { return BackupsArguments{}; });
}

void Grammar::DescribeImport()
{
    constexpr auto about = "Bring an older database (.mdb, Jet 3 or 4) along into one that is still empty";
    const auto describe = [this](CLI::App& command) {
        command.add_option("file", m_words.file, "The older database; it is only read")->type_name("FILE")->required();
        command.add_flag("--dry-run", m_words.dryRun, "Print the same account, and write nothing");
        command.add_flag("--accept-damaged", m_words.acceptDamaged, "Take what can be read of a file that shows signs of damage");
        TakesCodePage(command.add_option("--code-page", m_words.codePage,
                                         "Of the texts in a Jet 3 file (Access 97), instead of the one that it names"));
    };
    Add(m_app, "import", about, describe, [this](const CLI::App& command) {
        return ImportArguments{m_words.file, m_words.dryRun, m_words.acceptDamaged, Given(command, "--code-page", m_words.codePage)};
    });
}

void Grammar::DescribeImportPunches()
{
    constexpr auto about = "Store the punches of a CSV file: pairs of start and end, or events of in and out";
    const auto describe = [this](CLI::App& command) {
        command.add_option("file", m_words.file, "The CSV file; it is only read")->type_name("FILE")->required();
        command.add_flag("--dry-run", m_words.dryRun, "Print the same account, and store nothing");
        command.add_flag("--partly", m_words.partly, "Store what can be stored although lines are refused");
        TakesCodePage(command.add_option("--code-page", m_words.codePage, "Of a file that is no UTF-8; else 1252"));
        const auto fault = [](std::string& text) { return ReadSheetWords(text) ? std::string() : "not FILE=OURS,...: " + text; };
        command.add_option("--columns", m_words.columns, "What headings and words mean: Badge=Number,1=In,0=Out")
            ->type_name("FILE=OURS,...")
            ->check(CLI::Validator(fault, ""));
    };
    Add(m_app, "import-punches", about, describe, [this](const CLI::App& command) {
        return ImportPunchesArguments{m_words.file, m_words.dryRun, m_words.partly, Given(command, "--code-page", m_words.codePage),
                                      ReadSheetWords(m_words.columns).value_or(SheetWords())};
    });
}

void Grammar::DescribeCopy()
{
    constexpr auto about = "Copy all that is in the database into a new one: a file or a PostgreSQL server's";
    const auto describe = [this](CLI::App& command) {
        command.add_option("--to", m_words.target, "A file that is not there yet, or the address of a server's empty database")
            ->type_name("DATABASE")
            ->required();
        command.add_option("--from", m_words.from, "This file or address instead of the database that the configuration names")
            ->type_name("DATABASE");
    };
    Add(m_app, "copy-database", about, describe, [this](const CLI::App& command) {
        return CopyDatabaseArguments{Given(command, "--from", m_words.from), m_words.target};
    });
}

void Grammar::TakesPeriod(CLI::App& command)
{
    TakesDay(command.add_option("--from", m_words.from, "First day")->required());
    TakesDay(command.add_option("--to", m_words.to, "Last day, inclusive")->required());
}

CLI::Option* Grammar::TakesEmployees(CLI::App& command, const char* about)
{
    return command.add_option("--employee", m_words.employees, about)->type_name("NAME")->allow_extra_args(false);
}

CLI::Option* Grammar::TakesReportForm(CLI::App& command)
{
    return command.add_option("--format", m_words.format, "How: text, csv, json or pdf")
        ->type_name("FORMAT")
        ->check(CLI::IsMember(ReportForms()));
}

void Grammar::TakesDay(CLI::Option* option) const
{
    option->type_name("DATE")->check(
        CLI::Validator([this](std::string& text) { return Day(text) ? std::string() : "not a date: " + text; }, ""));
}

// Refuses what the report has no use for, rather than ignoring it silently.
void Grammar::CheckReport(const CLI::App& report) const
{
    const ReportEntry& entry = *FindConsoleReport(m_words.report);
    const bool dates = report.count("--from") + report.count("--to") > 0;
    const auto refuse = [this](bool given, const char* why) {
        if (given) {
            throw CLI::ValidationError("report " + m_words.report, why);
        }
    };
    refuse(dates && entry.dates == ReportDates::None, "takes no dates");
    refuse(report.count("--profile") > 0 && entry.kind != ReportKind::Review, "has no profiles");
    refuse(!m_words.employees.empty() && entry.whom == ReportWhom::Everyone, "takes no employees");
}

std::variant<Arguments, UsageAnswer> Grammar::Read(std::vector<std::string> words)
{
    std::reverse(words.begin(), words.end()); // CLI11 takes them from the back
    try {
        m_app.parse(std::move(words));
    } catch (const CLI::ParseError& error) {
        return Answer(error);
    }
    return Arguments{m_words.programFolder, m_result.value()};
}

std::variant<Arguments, UsageAnswer> Grammar::Answer(const CLI::ParseError& error) const
{
    std::ostringstream out;
    std::ostringstream err;
    const bool wrong = m_app.exit(error, out, err) != 0;
    std::string text = wrong ? error.what() : out.str();
    while (text.ends_with('\n')) {
        text.pop_back();
    }
    return UsageAnswer{wrong, std::move(text)};
}

ReportArguments Grammar::ReportResult(const CLI::App& report) const
{
    CheckReport(report);
    return {*FindConsoleReport(m_words.report),
            m_words.employees,
            Day(m_words.from),
            Day(m_words.to),
            ReportForms().at(m_words.format),
            Given(report, "--output", m_words.output),
            Given(report, "--profile", m_words.profile)};
}

PaydayArguments Grammar::PaydayResult(PaydayTask task, const CLI::App& command) const
{
    return {task,
            Day(m_words.from).value(),
            Day(m_words.to).value(),
            m_words.employees,
            ReportForms().at(m_words.format),
            task == PaydayTask::Account ? Given(command, "--output", m_words.output) : std::nullopt};
}

} // namespace

std::variant<Arguments, UsageAnswer> ReadArguments(const std::vector<std::string>& words, DateTime today)
{
    return Grammar(today).Read(words);
}

} // namespace ptk
