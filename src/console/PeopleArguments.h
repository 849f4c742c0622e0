// The part of the command line that is about employees: a file of them, one person's data, what is kept of old.
#pragma once

#include "console/Arguments.h"

#include <cstdint>
#include <optional>
#include <string>

namespace CLI {
class App;
} // namespace CLI

namespace ptk {

class PeopleGrammar
{
public:
    // Adds the commands, which the application keeps. REQUIRES: the grammar outlives its parsing.
    explicit PeopleGrammar(CLI::App& app);
    PeopleGrammar(const PeopleGrammar&) = delete;
    PeopleGrammar& operator=(const PeopleGrammar&) = delete;

    // After the parsing; nothing where another command was given.
    [[nodiscard]] std::optional<Command> Result() const;

private:
    void DescribeImport(CLI::App& app);
    void DescribePerson(CLI::App& app);
    void DescribeKept(CLI::App& app);

    CLI::App* m_import = nullptr; // these three belong to the application
    CLI::App* m_person = nullptr;
    CLI::App* m_kept = nullptr;
    std::string m_file;
    bool m_dryRun = false;
    std::string m_change;
    std::string m_name;
    std::int32_t m_number = 0;
    std::string m_format = "json";
    std::string m_output;
    std::int32_t m_years = 0;
};

} // namespace ptk
