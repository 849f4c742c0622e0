// When somebody usually ends a shift, judged by earlier shifts.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace ptk {

class CJetDB;
class Statement;

// The median of these times of the day, in seconds (of an even number the lower middle one); none of fewer than three.
[[nodiscard]] std::optional<std::int64_t> UsualEnd(std::vector<std::int64_t> ends);

// Takes the usual end from the ten newest earlier shifts of at least a minute that began within two hours of the same time of day. Each
// shift costs one question, which reads rows until it has found these ten.
class UsualEnds
{
public:
    // Asks nothing yet. REQUIRES: the database is not nullptr, and a CJetDB::Hold on it, open, outlives this object.
    explicit UsualEnds(std::shared_ptr<CJetDB> database);
    ~UsualEnds();
    UsualEnds(const UsualEnds&) = delete;
    UsualEnds& operator=(const UsualEnds&) = delete;

    // The second of the day at which the employee usually ends a shift that began at `start`; none where fewer than three shifts tell it.
    // Raises what reading the database raises.
    std::optional<std::int64_t> At(std::int32_t employeeID, DateTime start);

private:
    std::shared_ptr<CJetDB> m_database;
    std::unique_ptr<Statement> m_earlier;
};

} // namespace ptk
