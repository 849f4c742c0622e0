// What a database is called: a file by its path, a server's by its address.
#pragma once

#include <string>
#include <string_view>

namespace ptk {

[[nodiscard]] bool IsFileName(std::string_view name);

// As it is shown to people and written into logs: see SaidServer; a file's name as it is.
[[nodiscard]] std::string SaidDatabase(const std::string& name);

// The name that the configuration gives, as engines take it: a file's in the platform's own form.
[[nodiscard]] std::string NativeName(const std::string& configured);

// The name that somebody typed in the working folder, good in any folder.
[[nodiscard]] std::string WholeName(const std::string& typed);

// The folder that must be there for the database: the file's, for a server's the program's own.
[[nodiscard]] std::string HomeOf(const std::string& name, const std::string& programFolder);

} // namespace ptk
