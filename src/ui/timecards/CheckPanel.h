// What the check says of the card on the Timecards page: a line that opens into the list of findings, and the hours per day.
#pragma once

#include "model/check/Finding.h"

#include <memory>
#include <QWidget>

class QToolButton;

namespace ptk {

class FindingList;
class HintLabel;
class HoursChart;
struct CheckedTimecard;
struct FindingPlace;
struct Punch;

// Empty, and as high as with its line, until it is given a card. Whether the list is open stays with every card, whether the hours are
// shown from one session to the next, too.
class CheckPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit CheckPanel(QWidget* parent = nullptr);

    // nullptr for none.
    void Show(std::shared_ptr<const CheckedTimecard> checked);

    [[nodiscard]] bool IsShown() const { return m_checked != nullptr; }

    // Greys the hours.
    void SetStrange(bool strange);

    // As the line does.
    void OpenList();

    void ShowHours(bool shown);
    [[nodiscard]] bool HoursShown() const;

signals:
    // A finding was chosen: the first row of the card that it concerns, and a record that is not on the card.
    void RowWanted(qint64 timeRecordID);
    void Elsewhere(const ptk::FindingPlace& place);

    // Enter, or a double click, on one: to go there.
    void RowEntered(qint64 timeRecordID);
    void ElsewhereEntered(const ptk::Punch& punch);

private:
    void LayOut();
    void ShowLine();
    void ShowColumns();
    void ShowParts();
    void Choose(const Finding& finding);
    void Enter(const Finding& finding);

    QToolButton* m_line; // all of these belong to the widget
    HintLabel* m_detail;
    FindingList* m_list;
    QWidget* m_legend;
    HoursChart* m_chart;
    std::shared_ptr<const CheckedTimecard> m_checked;
    bool m_open = false;
};

} // namespace ptk
