// Small steps with whole files, for backups and new databases.
#pragma once

#include <string>

namespace ptk {

class FileDraft;

// Also a link that leads nowhere; false for what cannot be told.
[[nodiscard]] bool IsThere(const std::string& path);

// The bytes of a regular file into an empty draft. Raises what opening, reading and writing files raises.
void CopyBytes(const std::string& from, FileDraft& to);

// For its owner only; nothing where it is there. Raises 76 without its parent, 70, 61, 57.
void MakeOwnFolder(const std::string& folder);

} // namespace ptk
