// Failures of a server, under the numbers that the same faults of a file have.
#pragma once

#include "platform/Failure.h"

#include <string>
#include <string_view>

namespace ptk {

// The numbers of the file's engine, which the program's log and boxes have always shown.
namespace engine {
inline constexpr std::int32_t Refused = 1; // a statement that means nothing
inline constexpr std::int32_t Busy = 5;
inline constexpr std::int32_t NoMemory = 7;
inline constexpr std::int32_t ReadOnly = 8;
inline constexpr std::int32_t Interrupted = 9;
inline constexpr std::int32_t Lost = 10;
inline constexpr std::int32_t Damaged = 11;
inline constexpr std::int32_t DiskFull = 13;
inline constexpr std::int32_t CannotOpen = 14;
inline constexpr std::int32_t Constraint = 19;
inline constexpr std::int32_t Misuse = 21;
inline constexpr std::int32_t Parameter = 25;
inline constexpr std::int32_t NoDatabase = 26;
} // namespace engine

// Source "PostgreSQL".
class ServerFailure : public Failure
{
public:
    ServerFailure(std::int32_t number, std::string description);

    // Of an SQLSTATE and the server's own words.
    [[nodiscard]] static ServerFailure OfState(std::string_view state, std::string_view message);

    // The connection is gone, or of no use any more.
    [[nodiscard]] static ServerFailure OfLostConnection(std::string_view message);

    [[nodiscard]] bool IsLost() const { return m_lost; }

    // Nothing was wrong with what was asked: two transactions stood in each other's way, and this one was given up whole.
    [[nodiscard]] bool MayBeTriedAgain() const { return m_again; }

    // The table that was asked for is not there.
    [[nodiscard]] bool IsMissingTable() const { return m_missingTable; }

private:
    bool m_lost = false;
    bool m_again = false;
    bool m_missingTable = false;
};

} // namespace ptk
