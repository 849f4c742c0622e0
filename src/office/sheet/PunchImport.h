// Punches from a file of another terminal, or of one that was out of order, into the time records: all of the file or nothing, unless told
// otherwise.
#pragma once

#include "office/sheet/PunchLines.h"

#include <memory>

namespace ptk {

class CJetDB;

struct PunchOrder
{
    PunchFile from;
    bool trial = false;  // nothing is written
    bool partly = false; // lines that are refused do not keep the others out
};

// Every line of the file, the heading and blank ones aside, is stored, there already or refused; a record of two events counts two.
struct PunchAccount
{
    std::int64_t lines = 0;
    std::int64_t stored = 0; // or what would be, without the refused lines
    std::int64_t there = 0;
    std::vector<RefusedLine> refused; // by their lines
    std::vector<SheetPunch> punches;  // those that are stored, or would be, in the order of the file
    bool isStored = false;

    // Whether the refused lines, or that there are no others, keep the file out.
    [[nodiscard]] bool IsRefused(bool partly) const;
};

// Stores in one step of the edit trail what the order allows, and nothing else. A record that is there already, in the database or earlier
// in the file, is left alone; one of the same start with another end is refused. Raises, and nothing was changed: what ReadSheet and
// ReadPunches raise, and the failures of opening, reading and writing the database.
[[nodiscard]] PunchAccount ImportPunches(const std::shared_ptr<CJetDB>& database, const PunchOrder& order, const GoesOn& goesOn = {});

// One line each, without line ends: the sums, then each refused line.
[[nodiscard]] std::vector<std::string> PunchAccountLines(const PunchAccount& account);

} // namespace ptk
