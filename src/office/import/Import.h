// Imports an older database: takes what is readable of a Jet file into a database that is still empty, all of it or nothing.
#pragma once

#include "office/import/ImportAccount.h"
#include "platform/text/DateTime.h"
#include "store/engine/Author.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace ptk {

// Called with the number of rows read so far; false ends the import.
using ImportProgress = std::function<bool(std::int64_t rows)>;

struct ImportOrder
{
    std::string file;            // the older database; all paths are in the platform's own form
    std::string database;        // a database without people's data, or a free name
    std::string programFolder;   // the account is written into its folder "reports"
    std::optional<int> codePage; // used instead of the one in a Jet 3 file
    bool trial = false;          // nothing is written
    bool acceptDamaged = false;
    DateTime now;
    Author author;
};

struct ImportOutcome
{
    ImportAccount account;
    std::string refusal;     // why nothing was taken although all could be read, in one sentence; empty if it was, or would be
    std::string accountFile; // path of the account; of an import only
    std::string problem;     // what went wrong after the import was stored, such as writing its account; empty if nothing did
};

// Imports, or tries to. A file with signs of damage is only taken if that is accepted. Takes at most 25 seconds. The file is not changed,
// nor its time stamps, save the last access of a file that is somebody else's. Raises, and then nothing was changed: failures without a
// number, one sentence each, for a file that is not there, in the way, cannot be read or takes too long; those of opening the file, and of
// opening, making and writing a database; 53 without the reader program; 76 without a folder for the account or the database.
[[nodiscard]] ImportOutcome ImportOldDatabase(const ImportOrder& order, const ImportProgress& progress = {});

} // namespace ptk
