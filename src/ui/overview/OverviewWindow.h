// The payday overview: whom one can pay for a period, whom not yet, and why.
#pragma once

#include "model/PayPeriod.h"
#include "ui/page/ReadingWindow.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <QTimer>

namespace Ui {
class OverviewWindow;
}

namespace ptk {

class Failure;
class OverviewReading;
class OverviewTables;
class PaydayButtons;
struct HistoryScope;
struct OverviewRow;

// Reads a few employees whenever there is nothing else to do, so that the window, and every other one, can be used meanwhile. A reading is
// given up as soon as another begins or the window is closed.
class OverviewWindow final : public ReadingWindow
{
    Q_OBJECT

public:
    // REQUIRES: the host outlives the window.
    explicit OverviewWindow(Workplace& host);

    ~OverviewWindow() override;

    // Brings the window to the front. If it was not open, it begins with the period that is to be closed next, or where nothing was closed
    // yet with that of the time cards (see FirstPeriod), and reads it. If it was open, it reads again where something was changed since.
    void Open(const std::optional<PayPeriod>& timecards);

    // Has the card of the next one with problems (direction 1) or the one before (-1) opened, counted from this employee in the order of
    // the table. Answers what there is to say of it: who has none left, or that nothing was read.
    QString OpenNextCard(std::optional<std::int32_t> employeeID, int direction);

    // The period of the rows that are shown; nothing before the first reading.
    [[nodiscard]] std::optional<PayPeriod> ReadPeriod() const;

    // The history of the person in the shown row, or in the account, whichever window is in front; nothing without one.
    [[nodiscard]] std::optional<HistoryScope> ShownHistory() const;

    // Reads again, if the window is open, because something was stored elsewhere, and shows `news` in the line.
    void ReadAgain(const QString& news);

signals:
    // The card of this employee is to be opened, for the period that was read.
    void CardWanted(std::int32_t employeeID, const ptk::PayPeriod& period);

    // What was stored last is to be undone or done again.
    void UndoWanted();
    void RedoWanted();

private:
    void Activated() override;
    void End() override { Stop(); }
    void LayOut();
    void ConnectPeriod();
    void ConnectTable();
    void ConnectKeys();

    void StepPeriod(std::int16_t direction);
    void ShowPeriod(const PayPeriod& period);

    // The period in the boxes; nothing while they do not hold one.
    [[nodiscard]] std::optional<PayPeriod> Period() const;

    void Refresh();
    void Begin();
    void ReadOn();
    void Stop();
    void TellUnread(const Failure& reason);
    void ShowProgress();
    void ShowRead();
    void ShowLeftOut();
    void TakeIn();

    [[nodiscard]] bool IsOutdated() const;
    void TellChanges();
    void ShowChoice();
    void ShowFindings();
    void OfferActions();
    void Walk(int direction);
    void Copy();
    void SaveAs();
    void OpenCard();

    std::unique_ptr<Ui::OverviewWindow> m_ui;
    OverviewTables* m_tables; // these two belong to the window
    PaydayButtons* m_buttons;
    std::shared_ptr<OverviewReading> m_reading; // that goes on, or the last one; nullptr before the first
    const OverviewRow* m_told = nullptr;        // whose findings are shown; part of the reading that is shown
    std::optional<std::int64_t> m_asOf;         // the newest entry of the trail when it began
    bool m_takesIn = false;                     // who was left out is put among the rows as soon as everybody is read
    QTimer m_next;
};

} // namespace ptk
