// The commands about employees on the command line: import-employees, person and kept.
#pragma once

#include "console/Arguments.h"

#include <cstdint>
#include <functional>
#include <string>

namespace CLI {
class App;
} // namespace CLI

namespace ptk {

class PeopleGrammar
{
public:
    // Adds the commands to the application, which owns them; `take` is called with the command that was given. REQUIRES: the grammar
    // outlives the parsing.
    PeopleGrammar(CLI::App& app, std::function<void(Command)> take);
    PeopleGrammar(const PeopleGrammar&) = delete;
    PeopleGrammar& operator=(const PeopleGrammar&) = delete;

private:
    void DescribeImport(CLI::App& app);
    void DescribePerson(CLI::App& app);
    void DescribeKept(CLI::App& app);

    std::function<void(Command)> m_take;
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
