// Looks up where a server is.
#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace ptk {

// The numeric addresses of a host's name. The name server is waited for in slices like the server itself, no longer than `until`. Raises 14
// when the name is not known or its addresses did not come in time, 9 when the wait was given up.
[[nodiscard]] std::vector<std::string> LookUpServer(const std::string& name, std::chrono::steady_clock::time_point until);

} // namespace ptk
