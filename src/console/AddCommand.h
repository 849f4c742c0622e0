// Adds commands to the command line, and describes their arguments only when they are needed.
#pragma once

#include <CLI/CLI.hpp>

#include <cstddef>
#include <optional>

namespace ptk {

// Adds a command. `describe` adds its arguments, and is called only where the command stands on the line: to describe all commands would
// take longer than to print a time card. `take` is called with the command that was given, once the whole line is read.
template <typename Describe, typename Take>
void AddCommand(CLI::App& app, const char* name, const char* about, Describe describe, Take take)
{
    CLI::App* const command = app.add_subcommand(name, about);
    command->preparse_callback([command, describe](std::size_t) { describe(*command); });
    command->final_callback([command, take] { take(*command); });
}

// The `describe` of a command without arguments.
inline void TakesNothing(CLI::App& /*command*/) {}

// The value of an option; nothing where the option is not on the line.
template <typename Value>
std::optional<Value> Given(const CLI::App& command, const char* option, const Value& value)
{
    return command.count(option) > 0 ? std::optional(value) : std::nullopt;
}

} // namespace ptk
