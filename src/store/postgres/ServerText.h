// The program's statements in the server's words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// A statement as the server takes it, and the names of its parameters: the first is $1.
struct ServerText
{
    std::string sql;
    std::vector<std::string> parameters;
};

// Translates a statement. ":name" becomes "$1", the same name the same number. Names in quotes or brackets become small letters, as which
// the server itself reads other names: its tables are the file's, whatever the case of their letters.
[[nodiscard]] ServerText TranslateForServer(std::string_view statement);

// False for a text of blanks, comments and semicolons alone, which a server runs as if it had done something.
[[nodiscard]] bool HoldsStatement(std::string_view text);

} // namespace ptk
