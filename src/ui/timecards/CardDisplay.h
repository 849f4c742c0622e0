// What the Timecards page shows of a card: its time records and what they come to.
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

// Empty at first. Rows and figures stand as they were when they were put in, whatever becomes of the card since.
class CardDisplay final : public QWidget
{
    Q_OBJECT

public:
    explicit CardDisplay(QWidget* parent = nullptr);
    ~CardDisplay() override;

    // Empties the grid and what is found in it; always true.
    bool SetupTimeRecordGrid();

    // Fills grid and figures; raises Failure 91 for a card without employee or records.
    bool DisplayTimeCard(const CTimeCard& card);

    void ClearFigures();

    // Marks its rows, too; also of a card that could not be made.
    void ShowCheck(const std::shared_ptr<const CheckedTimecard>& checked);

    // Of its rows, by whom they were entered or changed.
    void ShowEdits(RecordEdits edits);

    // The list of what is found.
    void OpenFindings();

    // See CheckPanel.
    [[nodiscard]] std::optional<Finding> ChosenFinding() const;
    bool ChooseNextFinding(const std::optional<Finding>& done);

    // As a picture; remembered.
    void ShowHours(bool shown);

    [[nodiscard]] bool HoursShown() const;

    // Rows are shown, as every generated card has some.
    [[nodiscard]] bool ShowsCard() const;

    [[nodiscard]] bool ShowsFindings() const;

    // grey: a card that is not the one named above it.
    void SetStrange(bool strange);

    void SetHint(const QString& text);

    // The chosen row's own; nullptr when none is chosen.
    [[nodiscard]] std::shared_ptr<CTimeRecord> ChosenRecord() const;

    void ForgetChoice();

    // Nothing when it is not on the card.
    void ChooseRowOf(qint64 timeRecordID);

    // Marks them all, brings them into sight as far as there is room, and chooses the first; none is chosen any more when there are none.
    void ChooseRowsOf(const std::vector<std::int64_t>& timeRecordIDs);

    // See CurrentCard.
    void TakeKeyboard(std::int64_t record, int place);
    [[nodiscard]] int KeyboardPlace() const;

signals:
    // By mouse or keys, also when it was chosen before.
    void RowChosen();

    void EditAsked();
    void DeleteAsked();

    // On the grid, at this place of the screen.
    void MenuAsked(const QPoint& place);

    // Of a finding that was chosen: its records that are not on the card.
    void Elsewhere(const ptk::FindingPlace& place);

    // One of the remedies of the chosen finding.
    void RemedyWanted(const ptk::CardOffer& offer);

    // A record that is not on the card is to be edited, or deleted.
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
