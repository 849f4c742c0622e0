// The JSON of an entry of the edit trail, taken apart here: asking the database for it would be a question an entry.
#pragma once

#include "store/trail/TrailReader.h"

#include <optional>
#include <string_view>

namespace ptk {

// The fields of an object, in their order; bytes are told as an object with their digits in its field "blob". Numbers keep their digits.
// Nothing for what is no JSON object, whoever wrote it.
[[nodiscard]] std::optional<TrailRow> ParseTrailRow(std::string_view json);

} // namespace ptk
