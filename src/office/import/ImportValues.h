// Values of an older database as this program's columns hold them.
#pragma once

#include "office/import/OldFile.h"
#include "store/import/ImportTables.h"

namespace ptk {

struct ImportedValue
{
    Value value;
    bool impossible = false; // what is stored there can be none of the column's kind; the value is what stands in a row without one
    bool partlyRead = false; // a mark stands for characters that could not be read
};

// `old`: nullptr where the older table has no such column. Numbers of any width are taken where they fit, fractions rounded half to even
// where the column holds whole ones, and texts where they read as what the column holds.
[[nodiscard]] ImportedValue ImportValue(const ImportColumn& column, const OldValue* old);

} // namespace ptk
