// The windows of the View menu (the payday overview and the history), and the ways from one to the other and to the time cards.
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

    // Everything that is handed in outlives the menu.
    ViewMenu(Workplace& host, const Lines& lines, TimeCardPage& page);

    ~ViewMenu() override;

    // Opens the history, of everything or of `scope` only; see HistoryWindow.
    void ShowHistory(const std::optional<HistoryScope>& scope);

    // Says it in the overview's line, where there is an overview.
    void SayInOverview(const QString& text);

    // Has an open overview read its rows again after an undo or a redo; `news` says what was done.
    void ReadOverviewAgain(const QString& news);

    // Each closes its window and forgets what it showed.
    void CloseOverview();
    void CloseHistory();

signals:
    // The overview asks for this card; see OverviewWindow.
    void CardWanted(std::int32_t employeeID, const ptk::PayPeriod& period);

    // The overview asks for the last step to be undone, or done again.
    void UndoWanted();
    void RedoWanted();

    // `text` is to be shown in the main window.
    void Said(const QString& text);

private:
    void MakeOverview();
    void ShowOverview();
    void ShowNextCard(int direction);
    void GoOn(const PayPeriod& period);
    void ShowHistoryOfChosen();

    Workplace& m_host;
    const TimeCardPage& m_page;
    std::unique_ptr<OverviewWindow> m_overview; // both windows: nullptr until they are asked for
    std::unique_ptr<HistoryWindow> m_history;
};

} // namespace ptk
