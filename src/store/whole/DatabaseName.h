// What a database is called: a file by its path, a server's by its address.
#pragma once

#include <string>
#include <string_view>

namespace ptk {

[[nodiscard]] bool IsFileName(std::string_view name);

// A database's name as it is shown to people and written into logs: a file's as it is, a server's as SaidServer tells it.
[[nodiscard]] std::string SaidDatabase(const std::string& name);

// The name that the configuration gives, as engines take it: a file's path in the platform's own form.
[[nodiscard]] std::string NativeName(const std::string& configured);

// The name that somebody typed in the working folder, made good in any folder.
[[nodiscard]] std::string AbsoluteName(const std::string& typed);

// The folder that must be there for the database: for a file its own, for a server the program's.
[[nodiscard]] std::string DatabaseFolder(const std::string& name, const std::string& programFolder);

} // namespace ptk
