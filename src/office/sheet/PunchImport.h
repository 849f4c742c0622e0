// Imports punches from a file of another terminal, or of one that was out of order. The whole file is taken or nothing of it, unless the
// order says otherwise.
#pragma once

#include "office/sheet/PunchLines.h"

#include <memory>

namespace ptk {

class CJetDB;

struct PunchOrder
{
    PunchFile from;
    bool trial = false;  // nothing is written
    bool partly = false; // refused lines do not keep the others out
};

// The result of an import. Every line of the file, except the heading and blank ones, is stored, there already or refused. A record made of
// two events counts as two lines.
struct PunchAccount
{
    std::int64_t lines = 0;
    std::int64_t stored = 0; // number of lines stored, or that would be without the refused ones
    std::int64_t there = 0;
    std::vector<RefusedLine> refused; // in the order of the file
    std::vector<SheetPunch> punches;  // the stored ones, or those that would be, in the order of the file
    bool isStored = false;

    // Whether nothing is stored because of refused lines. With `partly` that is so only if all lines are refused.
    [[nodiscard]] bool IsRefused(bool partly) const;
};

// Imports in one step of the edit trail what the order allows. A record that exists already, in the database or earlier in the file, is
// left alone; one with the same start and another end is refused. Raises, and then nothing was changed: what ReadSheet and ReadPunches
// raise, and the failures of opening, reading and writing the database.
[[nodiscard]] PunchAccount ImportPunches(const std::shared_ptr<CJetDB>& database, const PunchOrder& order, const GoesOn& goesOn = {});

// The account's lines, without line ends: the sums, then each refused line.
[[nodiscard]] std::vector<std::string> PunchAccountLines(const PunchAccount& account);

} // namespace ptk
