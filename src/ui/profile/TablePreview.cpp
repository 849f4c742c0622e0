#include "ui/profile/TablePreview.h"

#include "ui/widgets/FixedRows.h"

#include <QHeaderView>
#include <QTableWidget>

namespace ptk {

namespace {

QStringList CellTexts(const TableLine& line)
{
    QStringList texts;
    for (const std::string& cell : line) {
        texts.append(QString::fromStdString(cell));
    }
    return texts;
}

} // namespace

void ShowPreview(QTableWidget& grid, const Profile* profile, std::span<const PaidPerson> people)
{
    grid.clear();
    grid.setRowCount(0);
    grid.setColumnCount(0);
    if (profile == nullptr) {
        return;
    }
    std::vector<TableLine> lines = TableLines(*profile, people);
    grid.setColumnCount(static_cast<int>(profile->cells.size()));
    if (profile->heading == HeadingLine::Yes) {
        grid.setHorizontalHeaderLabels(CellTexts(lines.front()));
        lines.erase(lines.begin());
    }
    FixRows(grid);
    grid.setRowCount(static_cast<int>(lines.size()));
    for (int row = 0; row < grid.rowCount(); ++row) {
        const QStringList texts = CellTexts(lines.at(static_cast<std::size_t>(row)));
        for (int column = 0; column < grid.columnCount(); ++column) {
            auto* item = new QTableWidgetItem(texts.at(column));
            const bool figure = IsFigure(profile->cells.at(static_cast<std::size_t>(column)), people.front());
            item->setTextAlignment((figure ? Qt::AlignTrailing : Qt::AlignLeading) | Qt::AlignVCenter);
            grid.setItem(row, column, item);
        }
    }
    grid.resizeColumnsToContents();
}

} // namespace ptk
