// The common look of the tables in the windows.
#pragma once

class QTableView;

namespace ptk {

// Gives all rows one height, with `space` pixels above and below the text together, and hides their headings at the left.
void FixRows(QTableView& table, int space = 8);

} // namespace ptk
