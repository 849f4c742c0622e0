// The payday overview: whom one can pay for a period, whom not yet, and why.
#pragma once

#include "model/PayPeriod.h"
#include "platform/DateTime.h"

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
    explicit OverviewWindow(PageHost& host); // the host outlives it
    ~OverviewWindow() override;

    // Brings it to the front. Where it was not open, it takes over the period, see OverviewPeriod, and reads.
    void Open(const std::optional<PayPeriod>& timecards);

    void Say(const QString& text); // in its line

signals:
    void CardWanted(std::int32_t employeeID, const ptk::PayPeriod& period); // of the period that was read

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override; // the table's room

private:
    void LayOut();
    void ConnectPeriod();
    void ConnectTable();
    void ConnectKeys();
    void PrepareTable();

    void StepPeriod(std::int16_t direction);
    void ShowPeriod(const PayPeriod& period);
    std::optional<PayPeriod> Period() const; // nothing while the boxes do not hold one
    std::int16_t PeriodLength() const;       // raises Failure 91 before the window has its controller

    void Refresh();
    void Begin();
    void ReadOn();
    void Stop();
    void Complain(const std::string& reason);
    void ShowProgress();
    void ShowRead();

    const OverviewRow* ShownRow() const; // the chosen one, else the first; nullptr without rows
    void KeepChoice(const std::optional<std::int32_t>& employeeID);
    void ShowFindings();
    void ShowTotals();
    void FitColumns();
    void Copy();
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
