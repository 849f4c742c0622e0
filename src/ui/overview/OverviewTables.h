// The three tables of the payday overview: its rows, their sums, and the people who were left out. Decides who is shown, who is chosen and
// how wide the columns are.
#pragma once

#include "office/overview/OverviewTable.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <QObject>
#include <set>
#include <vector>

class QTableView;

namespace ptk {

class OverviewModel;
class OverviewReading;
class OverviewLinesModel;
class SortedOverview;

class OverviewTables final : public QObject
{
    Q_OBJECT

public:
    // All outlive it.
    struct Place
    {
        QTableView& rows;
        QTableView& totals;
        QTableView& leftOut;
    };

    OverviewTables(const Place& place, QObject* parent);

    // Shows what was read since the last call, see OverviewModel::Show. Chooses people again whom the user had chosen, once they are read.
    void Show(const std::shared_ptr<const OverviewReading>& reading);

    // Shows all rows of the reading anew. Needed where rows were put between those that were shown.
    void ShowAnew(const std::shared_ptr<const OverviewReading>& reading);

    // The reading whose rows are shown; nullptr before the first.
    [[nodiscard]] const OverviewReading* ShownReading() const;

    void ShowOnlyProblems(bool only);

    // A chosen row, or the first row where none is chosen; nullptr without rows. Good until another reading is shown or people are taken
    // into this one.
    [[nodiscard]] const OverviewRow* ShownRow() const;

    // Chooses the next person with problems (direction 1) or the one before (-1) in the order of the table and answers the row. Counts from
    // the named employee, or from the chosen row where nobody is named; from the first or the last row where there is no such row. nullptr
    // where nobody is left.
    const OverviewRow* StepToProblems(std::optional<std::int32_t> employeeID, int direction);

    // The chosen rows in the order of the table; none where nobody is chosen.
    [[nodiscard]] std::vector<const OverviewRow*> ChosenRows() const;

    void ChooseNone();

    // The heading, then the chosen rows, or all rows where none is chosen, in the order of the table.
    [[nodiscard]] std::vector<OverviewCells> ChosenCells() const;

    // Fits the columns to a new size of the table of rows.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // ShownRow, what it holds, or ChosenRows may have changed.
    void ShownRowChanged();

private:
    void Prepare();
    void Connect();
    void ChooseLine(int line);
    void TakeChoice();
    void ChooseAgain();
    void ShowTotals();
    void ShowLeftOut();
    void FitColumns();
    [[nodiscard]] int LeastWidth(int column) const;
    [[nodiscard]] std::size_t RowAt(int line) const;
    [[nodiscard]] std::int32_t EmployeeAt(int line) const { return Row(line).employee->EmployeeID(); }
    [[nodiscard]] const OverviewRow& Row(int line) const;

    QTableView& m_table;
    QTableView& m_sums;
    QTableView& m_others;
    OverviewModel* m_rows; // this one and the next three are children of this object
    SortedOverview* m_sorted;
    OverviewLinesModel* m_totals;
    OverviewLinesModel* m_leftOut;
    std::set<std::int32_t> m_kept; // EmployeeIDs that the user chose, whether or not they have been read
    bool m_showing = false;        // while the program, not the user, changes what is chosen
};

} // namespace ptk
