// Where a server's database is: a URI such as "postgresql://office@books.example/ptk?sslmode=verify-full", as the client library takes it.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace ptk {

// Whether the name of a database is such an address rather than a file's.
[[nodiscard]] bool IsServerAddress(std::string_view name);

// Such an address as it is shown to people and written into logs, "ptk on books.example": nothing of it but host and database.
[[nodiscard]] std::string SaidServer(const std::string& address);

// Asked for the password of an address when the server wants one and neither the environment nor the user's password file has it; nothing
// when the person would rather not say. Called at most once for an address that then lets in: the program remembers it while it runs, and
// writes it nowhere.
using AskPassword = std::function<std::optional<std::string>(const std::string& address)>;

// Of the whole program, to be set before the first database is opened. Without it such a server is refused.
void AskForPasswordsWith(AskPassword ask);

namespace passwords {

// The one that was told, else asked for now.
[[nodiscard]] std::optional<std::string> Of(const std::string& address);

[[nodiscard]] std::optional<std::string> Told(const std::string& address);

// It did not let in: the next who needs it asks again.
void Forget(const std::string& address);

} // namespace passwords

} // namespace ptk
