// The part of the Timecards page that shows a card: its time records, what they come to, and its check.
#pragma once

#include "model/CardLine.h"
#include "model/check/Finding.h"
#include "office/card/CardOffers.h"
#include "office/history/RecordEdits.h"

#include <array>
#include <memory>
#include <optional>
#include <QWidget>
#include <vector>

namespace Ui {
class CardDisplay;
}

namespace ptk {

class CTimeCard;
class CTimeRecord;
class FigureBox;
struct CheckedTimecard;
struct FindingPlace;
struct Punch;
class TimeRecordGridModel;

// Empty at first. Rows and figures stay as they were put in, whatever becomes of the card later.
class CardDisplay final : public QWidget
{
    Q_OBJECT

public:
    explicit CardDisplay(QWidget* parent = nullptr);
    ~CardDisplay() override;

    // Empties the grid and the findings; always true.
    bool SetupTimeRecordGrid();

    // Fills the grid and the figures. Raises Failure 91 for a card without an employee or records.
    bool DisplayTimeCard(const CTimeCard& card);

    void ClearFigures();

    // Shows the findings and marks their rows. It may be the check of a card that could not be made.
    void ShowCheck(const std::shared_ptr<const CheckedTimecard>& checked);

    // Shows on the rows by whom their records were entered or changed.
    void ShowEdits(RecordEdits edits);

    // Opens the list of findings.
    void OpenFindings();

    // The findings of the open list, see CheckPanel.
    [[nodiscard]] std::optional<Finding> ChosenFinding() const;
    bool ChooseNextFinding(const std::optional<Finding>& done);

    // Shows or hides the chart of the hours; remembered for the next session.
    void ShowHours(bool shown);

    [[nodiscard]] bool HoursShown() const;

    // Whether rows are shown; every generated card has some.
    [[nodiscard]] bool ShowsCard() const;

    [[nodiscard]] bool ShowsFindings() const;

    // Greys everything: the card is not the one that is named above it.
    void SetStrange(bool strange);

    void SetHint(const QString& text);

    // The very record of the chosen row; nullptr when none is chosen.
    [[nodiscard]] std::shared_ptr<CTimeRecord> ChosenRecord() const;

    void ForgetChoice();

    // Chooses the row of this record; does nothing when it is not on the card.
    void ChooseRowOf(qint64 timeRecordID);

    // Marks the rows of all these records, scrolls to them as far as there is room, and chooses the first. Without records no row is
    // chosen.
    void ChooseRowsOf(const std::vector<std::int64_t>& timeRecordIDs);

    // Both do what they do in CurrentCard.
    void TakeKeyboard(std::int64_t record, int place);
    [[nodiscard]] int KeyboardPlace() const;

signals:
    // A row was chosen by mouse or keys, maybe the one that was chosen before.
    void RowChosen();

    void EditAsked();
    void DeleteAsked();

    // The menu of the grid is asked for, at this place of the screen.
    void MenuAsked(const QPoint& place);

    // A finding was chosen; `place` says which of its records are not on the card.
    void Elsewhere(const ptk::FindingPlace& place);

    // One of the remedies of the chosen finding was picked.
    void RemedyWanted(const ptk::CardOffer& offer);

    // A record that is not on the card is to be edited or deleted.
    void EditElsewhereAsked(const ptk::Punch& punch);
    void DeleteElsewhereAsked(const ptk::Punch& punch);

private:
    void LayOutFigures();
    void ShowBreakTime(const QString& text);
    void PrepareGrid();
    void ConnectFindings();
    void Choose();
    bool FillTimeRecordGrid(std::vector<CardLine> lines);
    [[nodiscard]] std::array<FigureBox*, 5> Figures() const;

    std::unique_ptr<Ui::CardDisplay> m_ui;
    TimeRecordGridModel* m_records; // belongs to the widget
};

} // namespace ptk
