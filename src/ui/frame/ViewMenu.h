// The View menu's windows, the payday overview and the history, and the ways from one to the other and to the cards.
#pragma once

#include "model/PayPeriod.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <QObject>

class QAction;

namespace ptk {

class HistoryWindow;
class OverviewWindow;
class Workplace;
class TimeCardPage;
struct HistoryScope;

class ViewMenu final : public QObject
{
    Q_OBJECT

public:
    struct Lines
    {
        QAction& overview;
        QAction& nextProblems;
        QAction& previousProblems;
        QAction& history;
    };

    // All outlive it.
    ViewMenu(Workplace& host, const Lines& lines, TimeCardPage& page);

    ~ViewMenu() override;

    // See HistoryWindow.
    void ShowHistory(const std::optional<HistoryScope>& scope);

    // In the overview's line; nothing where it was never opened.
    void SayInOverview(const QString& text);

    // Of what was undone, or done again; nothing where it is not open.
    void ReadOverviewAgain(const QString& news);

    // What they show is not to be seen any more.
    void CloseOverview();
    void CloseHistory();

signals:
    // See OverviewWindow.
    void CardWanted(std::int32_t employeeID, const ptk::PayPeriod& period);

    // See OverviewWindow.
    void UndoWanted();
    void RedoWanted();

    // To be told in the main window.
    void Said(const QString& text);

private:
    void MakeOverview();
    void ShowOverview();
    void ShowNextCard(int direction);
    void GoOn(const PayPeriod& period);
    void ShowHistoryOfChosen();

    Workplace& m_host;
    const TimeCardPage& m_page;
    std::unique_ptr<OverviewWindow> m_overview; // these two: nullptr until they are asked for
    std::unique_ptr<HistoryWindow> m_history;
};

} // namespace ptk
