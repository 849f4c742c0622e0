// How the tables of the windows look.
#pragma once

class QTableView;

namespace ptk {

// Rows of one height, `space` pixels above and below a text together, without headings at their left.
void FixRows(QTableView& table, int space);

} // namespace ptk
