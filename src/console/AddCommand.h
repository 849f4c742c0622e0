// Commands of the command line, described late.
#pragma once

#include <CLI/CLI.hpp>

#include <cstddef>

namespace ptk {

// What a command takes is described only when it stands on the line: that of all of them would take longer than a time card.
template <typename Describe>
CLI::App* AddCommand(CLI::App& app, const char* name, const char* about, Describe describe)
{
    CLI::App* const command = app.add_subcommand(name, about);
    command->preparse_callback([command, describe](std::size_t) { describe(*command); });
    return command;
}

} // namespace ptk
