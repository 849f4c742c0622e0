// Failures of a server, under the numbers that the same faults of a file have.
#pragma once

#include "platform/Failure.h"
#include "store/engine/EngineNumber.h"

#include <string>
#include <string_view>

namespace ptk {

// A failure with the source "PostgreSQL".
class ServerFailure : public Failure
{
public:
    ServerFailure(std::int32_t number, std::string description);

    // The failure that an SQLSTATE and the server's own words tell.
    [[nodiscard]] static ServerFailure OfState(std::string_view state, std::string_view message);

    // The failure of a connection that is gone, or of no use any more.
    [[nodiscard]] static ServerFailure OfLostConnection(std::string_view message);

    [[nodiscard]] bool IsLost() const { return m_lost; }

    // Whether two transactions stood in each other's way, and this one was given up whole: nothing was wrong with what was asked.
    [[nodiscard]] bool MayBeTriedAgain() const { return m_again; }

    // Whether the table that was asked for is missing.
    [[nodiscard]] bool IsMissingTable() const { return m_missingTable; }

    // Whether the server or this transaction is for reading only.
    [[nodiscard]] bool TakesNoChanges() const { return m_takesNoChanges; }

private:
    bool m_lost = false;
    bool m_again = false;
    bool m_missingTable = false;
    bool m_takesNoChanges = false;
};

} // namespace ptk
