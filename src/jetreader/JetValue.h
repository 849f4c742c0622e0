// Writes a stored value, exactly, as a field of a line.
#pragma once

#include "jetreader/JetTable.h"
#include "jetreader/Lines.h"

namespace jet {

// Adds a value of the row at which the table stands. What people never typed (pictures, other programs' objects, bytes) counts as no value.
void AppendValue(Line& line, const JetFile& file, const JetTable& table, std::size_t column);

// The kind of a column's type in the catalog: "text", "number" and so on.
[[nodiscard]] const char* NameOfType(int type);

} // namespace jet
