// Converts values of an older database into those of this program's columns.
#pragma once

#include "office/import/OldFile.h"
#include "store/import/ImportTables.h"

namespace ptk {

struct ImportedValue
{
    Value value;
    bool impossible = false; // no value of the column's kind can be made of it; `value` is then the one for an empty cell
    bool partlyRead = false; // a mark stands for characters that could not be read
};

// Converts `old`, nullptr if the older table has no such column. Numbers of any width are taken if they fit. If the column holds whole
// numbers, fractions are rounded half to even. Texts are taken if they read as what the column holds.
[[nodiscard]] ImportedValue ImportValue(const ImportColumn& column, const OldValue* old);

} // namespace ptk
