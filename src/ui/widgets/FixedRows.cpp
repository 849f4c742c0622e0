#include "ui/widgets/FixedRows.h"

#include <QHeaderView>
#include <QTableView>

namespace ptk {

void FixRows(QTableView& table, int space)
{
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + space);
    table.verticalHeader()->hide();
    table.horizontalHeader()->setHighlightSections(false);
}

} // namespace ptk
