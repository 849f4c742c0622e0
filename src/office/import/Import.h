// Bringing an older database along: what is readable of a Jet file into a database that is still empty, all of it or nothing.
#pragma once

#include "office/import/ImportAccount.h"
#include "platform/text/DateTime.h"
#include "store/engine/Author.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace ptk {

// Told how many rows have been read; false ends the import.
using ImportProgress = std::function<bool(std::int64_t rows)>;

struct ImportOrder
{
    std::string file;            // the older database; all paths are in the platform's own form
    std::string database;        // an empty one, or a name that is free
    std::string programFolder;   // the account goes into its reports
    std::optional<int> codePage; // overrules that of a Jet 3 file
    bool trial = false;          // nothing is written
    bool acceptDamaged = false;
    DateTime now;
    Author author;
};

struct ImportOutcome
{
    ImportAccount account;
    std::string refusal;     // why nothing was taken although all could be read, one sentence; empty where it was, or would be
    std::string accountFile; // of an import
    std::string problem;     // what went wrong after the import was done, its account above all; empty where nothing did
};

// A file with signs of damage is only taken where that is accepted. At most 25 seconds; the file is not changed in any way, nor are its
// time stamps. Raises, and nothing was changed: failures without a number, one sentence each, for what is not there to be read, is in the
// way, or took too long; those of opening, making and writing a database; 76 without a folder for the account.
[[nodiscard]] ImportOutcome ImportOldDatabase(const ImportOrder& order, const ImportProgress& progress = {});

} // namespace ptk
