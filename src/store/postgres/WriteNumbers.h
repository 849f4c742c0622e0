// The numbers by which a write on a server is known, and by which it is found where the answer to its commit was lost.
#pragma once

#include "store/engine/Author.h"
#include "store/postgres/line/ServerLine.h"

#include <cstdint>
#include <string>

namespace ptk {

struct WriteNumbers
{
    std::int64_t step = 0;   // the step of the trail
    std::string transaction; // the server's number of the transaction; empty until the server has given it
};

// The command by which the server gives a write its numbers and notes whose write it is; to be sent within the transaction. `wantedStep` is
// 0 for a step of its own.
[[nodiscard]] ServerCommand Numbering(const Author& author, std::int64_t wantedStep);

// The numbers in the server's answer to Numbering. Raises 14 where another session than the line's gave the answer.
[[nodiscard]] WriteNumbers NumbersIn(const ServerResult& answer, const ServerLine& line);

enum class WriteFate
{
    Stored,
    Dropped,
    Unknown // it still runs, or the server cannot be asked
};

// Asks over a new line what became of a write, also after the server was started anew. Waits until then for the answer.
[[nodiscard]] WriteFate FateOf(const WriteNumbers& write, const Author& author, ServerLine& line, ServerLine::Clock::time_point until);

} // namespace ptk
