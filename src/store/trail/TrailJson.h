// Takes apart the JSON of an entry of the edit trail: asking the database for it would be a question an entry.
#pragma once

#include "store/trail/TrailReader.h"

#include <string_view>

namespace ptk {

// Puts the fields of an object, in their order, in place of what `row` held, whose memory is used again: a history reads thousands. Bytes
// are told as an object with their digits in its field "blob". Numbers keep their digits. False for what is no JSON object, whoever wrote
// it; `row` is then of no use.
[[nodiscard]] bool ParseTrailRow(std::string_view json, TrailRow& row);

} // namespace ptk
