// Where a server's database is: a URI such as "postgresql://office@books.example/ptk?sslmode=verify-full", as the client library takes it.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace ptk {

// Whether the name of a database is a server's address rather than a file's.
[[nodiscard]] bool IsServerAddress(std::string_view name);

// A server's address as it is shown to people and written into logs, "ptk on books.example": nothing of it but host and database.
[[nodiscard]] std::string SaidServer(const std::string& address);

// Asks for the password of an address when the server wants one and neither the environment nor the user's password file has it. Answers
// nothing when the person would rather not say. Called at most once for an address that then lets in: the program remembers the password
// while it runs, until a connection is refused, and writes it nowhere.
using AskPassword = std::function<std::optional<std::string>(const std::string& address)>;

// Sets how the whole program asks for passwords, before the first database is opened. Without it a server that wants one is refused.
void AskForPasswordsWith(AskPassword ask);

namespace passwords {

// The password that was told for an address; where none was told, it is asked for now.
[[nodiscard]] std::optional<std::string> Of(const std::string& address);

[[nodiscard]] std::optional<std::string> Told(const std::string& address);

// Forgets the password after a connection was refused, for whatever reason: the next who needs one asks again.
void Forget(const std::string& address);

} // namespace passwords

} // namespace ptk
