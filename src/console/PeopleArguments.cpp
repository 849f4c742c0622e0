#include "console/PeopleArguments.h"

#include "console/AddCommand.h"

#include <utility>

namespace ptk {

namespace {

constexpr std::int32_t kMostYears = 1000;

std::string FaultOfFields(const std::string& text)
{
    return ReadEmployeeFields(text) ? std::string() : "no headings of what can be changed: " + text;
}

} // namespace

PeopleGrammar::PeopleGrammar(CLI::App& app, std::function<void(Command)> take) : m_take(std::move(take))
{
    DescribeImport(app);
    DescribePerson(app);
    DescribeKept(app);
}

void PeopleGrammar::DescribeImport(CLI::App& app)
{
    constexpr auto about = "Add the employees of a CSV file, and compare those that are known by their number";
    const auto describe = [this](CLI::App& command) {
        command.add_option("file", m_file, "The CSV file, as the employee records are; it is only read")->type_name("FILE")->required();
        command.add_flag("--dry-run", m_dryRun, "Print the same account, and store nothing");
        command.add_option("--change", m_change, "What is changed of those who are known where the file has it otherwise: Phone,ZIP Code")
            ->type_name("FIELD,...")
            ->check(CLI::Validator([](std::string& text) { return FaultOfFields(text); }, ""));
    };
    AddCommand(app, "import-employees", about, describe, [this](const CLI::App&) {
        m_take(ImportEmployeesArguments{m_file, m_dryRun, ReadEmployeeFields(m_change).value_or(std::vector<EmployeeField>())});
    });
}

void PeopleGrammar::DescribePerson(CLI::App& app)
{
    const auto describe = [this](CLI::App& command) {
        command.add_option("name", m_name, "First and last name, or the last name alone where there is no first one")
            ->type_name("NAME")
            ->required();
        command.add_option("--number", m_number, "The employee number, of those who have the same name")->type_name("N");
        command.add_option("--format", m_format, "How: json or pdf")->type_name("FORMAT")->check(CLI::IsMember({"json", "pdf"}));
        command.add_option("-o,--output", m_output, "Into this file instead of printing it")->type_name("FILE");
    };
    AddCommand(app, "person", "Print all that is kept about one employee, and nobody else's name", describe,
               [this](const CLI::App& command) {
                   m_take(PersonArguments{m_name, Given(command, "--number", m_number),
                                          m_format == "pdf" ? ReportForm::Pdf : ReportForm::Json, Given(command, "--output", m_output)});
               });
}

void PeopleGrammar::DescribeKept(CLI::App& app)
{
    constexpr auto about = "Print how much is older than so many years, by table and year; nothing is removed";
    const auto describe = [this](CLI::App& command) {
        command.add_option("--years", m_years, "How many years")->type_name("N")->check(CLI::Range(0, kMostYears))->required();
    };
    AddCommand(app, "kept", about, describe, [this](const CLI::App&) { m_take(KeptArguments{m_years}); });
}

} // namespace ptk
