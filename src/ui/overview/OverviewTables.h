// The two tables of the payday overview, its rows and their sums: who is shown, who is chosen, how wide the columns are.
#pragma once

#include "office/overview/OverviewTable.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <QObject>
#include <vector>

class QTableView;

namespace ptk {

class OverviewModel;
class OverviewReading;
class OverviewTotalsModel;
class SortedOverview;

class OverviewTables final : public QObject
{
    Q_OBJECT

public:
    // Both outlive it.
    struct Place
    {
        QTableView& rows;
        QTableView& totals;
    };

    OverviewTables(const Place& place, QObject* parent);

    // What has been read since, see OverviewModel. Who was chosen is chosen again as soon as he is there.
    void Show(const std::shared_ptr<const OverviewReading>& reading);

    // nullptr before the first.
    [[nodiscard]] const OverviewReading* Shown() const;

    void ShowOnlyProblems(bool only);

    // The chosen one, else the first; nullptr without rows. Good until another reading is shown.
    [[nodiscard]] const OverviewRow* ShownRow() const;

    // Chooses the next one with problems (direction 1) or the one before (-1) in the order of the table. From the chosen row where nobody
    // is named; from the first or the last where he has no row. nullptr beyond the ends.
    const OverviewRow* StepToProblems(std::optional<std::int32_t> employeeID, int direction);

    // A heading and the chosen rows in the order in which they stand, or all.
    [[nodiscard]] std::vector<OverviewCells> ChosenCells() const;

    // The room of the rows.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // Which row is shown, or what it holds, may be another.
    void ShownRowChanged();

private:
    void Prepare();
    void Connect();
    void KeepChoice(const std::optional<std::int32_t>& employeeID);
    void ShowTotals();
    void FitColumns();
    [[nodiscard]] std::size_t RowAt(int line) const;
    [[nodiscard]] std::optional<std::int32_t> Chosen() const;

    QTableView& m_table;
    QTableView& m_sums;
    OverviewModel* m_rows; // these three belong to it
    SortedOverview* m_sorted;
    OverviewTotalsModel* m_totals;
    std::optional<std::int32_t> m_kept; // the employee who was chosen in the reading before
};

} // namespace ptk
