// Makes a program folder for somebody who has none yet.
#pragma once

#include "office/import/Import.h"
#include "platform/text/DateTime.h"

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

// Why these entries cannot begin a business, in one sentence; empty if they can.
[[nodiscard]] std::string BusinessRefusal(const NewBusiness& business);

// The functions that begin a business make `folder` and its parents, with the configuration and a database, for its owner only, whole or
// not at all. They raise 75 if something of that name exists, and what making folders, files and databases raises.

// Begins with the company and the person, who becomes its first employee and may log in; the shipped account may not. The person gets no
// hire date, so that shifts from before this day are not reported as odd. REQUIRES: no refusal.
void BeginBusiness(const std::string& folder, const NewBusiness& business);

// Begins with the sample business up to today. The shipped account may log in, and the login's help says how.
void BeginSample(const std::string& folder, DateTime today);

// Begins with what ImportOldDatabase takes of the order's file; the order's database and folder are set here. On trial, and if the import
// is refused, no folder is left. The login's help says how to get in, because the shipped account may be the only one that can.
[[nodiscard]] ImportOutcome BeginWithOldDatabase(const std::string& folder, ImportOrder order, const ImportProgress& progress);

// Why one cannot work in this folder, in one sentence with its name: it does not exist, has no configuration, or may not be written. Empty
// if one can.
[[nodiscard]] std::string FolderRefusal(const std::string& folder);

} // namespace ptk
