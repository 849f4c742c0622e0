// A program folder for somebody who has none yet.
#pragma once

#include "office/import/Import.h"
#include "platform/text/DateTime.h"

#include <functional>
#include <string>

namespace ptk {

class BulkWriter;

// What a new business begins with, as typed.
struct NewBusiness
{
    std::string company;
    std::string firstName; // may be empty
    std::string lastName;
    std::string password;
    std::string repeated; // the password once more
};

// Why nothing can be begun with these, one sentence; empty when it can.
[[nodiscard]] std::string BusinessRefusal(const NewBusiness& business);

// All make `folder` and its parents, with the configuration and a database, for its owner only, whole or not at all. They raise 75 when
// there is something of that name, and what making folders, files and databases raises.

// The company and the person, who is its first employee and may log in; the shipped account may not. When they were hired nobody said, and
// shifts of before the business began here are nothing odd. REQUIRES: no refusal.
void BeginBusiness(const std::string& folder, const NewBusiness& business);

// The sample business up to today. The shipped account may log in, and the login's help says how.
void BeginSample(const std::string& folder, DateTime today);

// What ImportOldDatabase takes of the order's file; its places are the new folder's. On trial, and where the import is refused, there is no
// folder afterwards. The login's help says how to get in, since the shipped account may be the only one that can.
[[nodiscard]] ImportOutcome BeginWithOldDatabase(const std::string& folder, ImportOrder order, const ImportProgress& progress);

// Why this folder is not one to work in: it is not there, has no configuration, or may not be written; one sentence with its name. Empty
// when it is one.
[[nodiscard]] std::string FolderRefusal(const std::string& folder);

} // namespace ptk
