// When somebody usually ends a shift, as the shifts before it tell.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace ptk {

class CJetDB;
class Statement;

// The lower middle of these times of the day, in seconds; none of fewer than three.
[[nodiscard]] std::optional<std::int64_t> UsualEnd(std::vector<std::int64_t> ends);

// Of the ten newest earlier shifts of at least a minute that began within two hours of the same time of day. Asks one question a shift, of
// as many rows as it takes to find these ten.
class UsualEnds
{
public:
    // Nothing is asked yet. REQUIRES: a CJetDB::Hold on the open database outlives it; not nullptr.
    explicit UsualEnds(std::shared_ptr<CJetDB> database);
    ~UsualEnds();
    UsualEnds(const UsualEnds&) = delete;
    UsualEnds& operator=(const UsualEnds&) = delete;

    // Raises what reading the file raises.
    std::optional<std::int64_t> At(std::int32_t employeeID, DateTime start);

private:
    std::shared_ptr<CJetDB> m_database;
    std::unique_ptr<Statement> m_earlier;
};

} // namespace ptk
