// Commands of the command line, described late.
#pragma once

#include <CLI/CLI.hpp>

#include <cstddef>
#include <optional>

namespace ptk {

// What a command takes is described only when it stands on the line: that of all of them would take longer than a time card. `take` is
// called with the command that was given, once all of the line is read.
template <typename Describe, typename Take>
void AddCommand(CLI::App& app, const char* name, const char* about, Describe describe, Take take)
{
    CLI::App* const command = app.add_subcommand(name, about);
    command->preparse_callback([command, describe](std::size_t) { describe(*command); });
    command->final_callback([command, take] { take(*command); });
}

// For a command without arguments.
inline void TakesNothing(CLI::App& /*command*/) {}

// The value of an option; nothing where the line does not have it.
template <typename Value>
std::optional<Value> Given(const CLI::App& command, const char* option, const Value& value)
{
    return command.count(option) > 0 ? std::optional(value) : std::nullopt;
}

} // namespace ptk
