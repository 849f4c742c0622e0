// The payday overview: whom one can pay for a period, whom not yet, and why.
#pragma once

#include "model/PayPeriod.h"
#include "platform/text/DateTime.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <QTimer>
#include <QWidget>

class QTableView;

namespace Ui {
class OverviewWindow;
}

namespace ptk {

class OverviewModel;
class OverviewReading;
class OverviewTotalsModel;
class PageHost;
class SortedOverview;
struct OverviewRow;

// Reads a few employees whenever there is nothing else to do, so that the window, and every other one, can be used meanwhile. A reading is
// given up as soon as another begins or the window is closed.
class OverviewWindow final : public QWidget
{
    Q_OBJECT

public:
    // The host outlives it.
    explicit OverviewWindow(PageHost& host);

    ~OverviewWindow() override;

    // Brings it to the front. Where it was not open, it takes over the period, see OverviewPeriod, and reads.
    void Open(const std::optional<PayPeriod>& timecards);

    // In its line.
    void Say(const QString& text);

signals:
    // Of the period that was read.
    void CardWanted(std::int32_t employeeID, const ptk::PayPeriod& period);

protected:
    void closeEvent(QCloseEvent* event) override;

    // The table's room.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LayOut();
    void ConnectPeriod();
    void ConnectTable();
    void ConnectKeys();
    void PrepareTable();

    void StepPeriod(std::int16_t direction);
    void ShowPeriod(const PayPeriod& period);

    // Nothing while the boxes do not hold one.
    [[nodiscard]] std::optional<PayPeriod> Period() const;

    // Raises Failure 91 before the window has its controller.
    [[nodiscard]] std::int16_t PeriodLength() const;

    void Refresh();
    void Begin();
    void ReadOn();
    void Stop();
    void Complain(const std::string& reason);
    void ShowProgress();
    void ShowRead();

    // The chosen one, else the first; nullptr without rows.
    [[nodiscard]] const OverviewRow* ShownRow() const;

    void KeepChoice(const std::optional<std::int32_t>& employeeID);
    void ShowFindings();
    void ShowTotals();
    void FitColumns();
    void Copy();
    void SaveAs();
    void OpenCard();

    PageHost& m_host;
    std::unique_ptr<Ui::OverviewWindow> m_ui;
    OverviewModel* m_rows; // these three belong to the window
    SortedOverview* m_sorted;
    OverviewTotalsModel* m_totals;
    std::shared_ptr<OverviewReading> m_reading; // that goes on, or the last one; nullptr before the first
    const OverviewRow* m_told = nullptr;        // whose findings are shown; part of the reading that is shown
    std::optional<std::int32_t> m_kept;         // the employee who was chosen in the reading before
    QTimer m_next;
};

} // namespace ptk
