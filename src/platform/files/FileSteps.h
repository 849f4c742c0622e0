// Small steps with whole files, for backups and new databases.
#pragma once

#include <string>

namespace ptk {

class FileDraft;

// Whether something has this name, a link that leads nowhere included; false where the system does not tell.
[[nodiscard]] bool IsThere(const std::string& path);

// Copies the bytes of a regular file into an empty draft. Raises what opening, reading and writing files raises.
void CopyBytes(const std::string& from, FileDraft& to);

// Makes the folder, for its owner only; does nothing where the name is taken already. Raises 76 without its parent, 70, 61, 57.
void MakeOwnFolder(const std::string& folder);

} // namespace ptk
