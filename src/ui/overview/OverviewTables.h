// The tables of the payday overview, its rows, their sums and those left out: who is shown, who is chosen, how wide the columns are.
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

    // What has been read since, see OverviewModel. Those who were chosen are chosen again as soon as they are there.
    void Show(const std::shared_ptr<const OverviewReading>& reading);

    // The same where rows were put between those that were shown.
    void ShowAnew(const std::shared_ptr<const OverviewReading>& reading);

    // nullptr before the first.
    [[nodiscard]] const OverviewReading* Shown() const;

    void ShowOnlyProblems(bool only);

    // The chosen one, else the first; nullptr without rows. Good until another reading is shown.
    [[nodiscard]] const OverviewRow* ShownRow() const;

    // Chooses the next one with problems (direction 1) or the one before (-1) in the order of the table. From the chosen row where nobody
    // is named; from the first or the last where he has no row. nullptr beyond the ends.
    const OverviewRow* StepToProblems(std::optional<std::int32_t> employeeID, int direction);

    // In the order in which they stand; none where nobody is chosen.
    [[nodiscard]] std::vector<const OverviewRow*> ChosenRows() const;

    void ChooseNone();

    // A heading and the chosen rows in the order in which they stand, or all.
    [[nodiscard]] std::vector<OverviewCells> ChosenCells() const;

    // The room of the rows.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // Which row is shown, what it holds, or who is chosen, may be another.
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
    OverviewModel* m_rows; // these four belong to it
    SortedOverview* m_sorted;
    OverviewLinesModel* m_totals;
    OverviewLinesModel* m_leftOut;
    std::set<std::int32_t> m_kept; // who was chosen by the user, also while they are not there
    bool m_showing = false;        // the choice that changes is not the user's
};

} // namespace ptk
