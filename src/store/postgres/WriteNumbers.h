// The numbers by which a write on a server is known, and by which it is found where the answer to its commit was lost.
#pragma once

#include "store/engine/Author.h"
#include "store/postgres/ServerLine.h"

#include <cstdint>
#include <string>

namespace ptk {

struct WriteNumbers
{
    std::int64_t step = 0;   // of the trail
    std::string transaction; // of the server; empty until the server has given it
};

// Has the server give a write its numbers and note who it is; within its transaction. `wantedStep`: 0 for a step of its own.
[[nodiscard]] ServerCommand Numbering(const Author& author, std::int64_t wantedStep);

// What the server answered to that. Raises 14 where the answer is of another session than the line's.
[[nodiscard]] WriteNumbers NumbersIn(const ServerResult& answer, const ServerLine& line);

enum class WriteFate
{
    Stored,
    Dropped,
    Unknown // it still runs, or the server cannot be asked
};

// What became of a write, also after the server was started anew. Asked over a new line, until then.
[[nodiscard]] WriteFate FateOf(const WriteNumbers& write, const Author& author, ServerLine& line, ServerLine::Clock::time_point until);

} // namespace ptk
