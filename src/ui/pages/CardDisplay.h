// What the Timecards page shows of a card: its time records and what they come to.
#pragma once

#include "model/CardLine.h"

#include <array>
#include <memory>
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

    bool SetupTimeRecordGrid();                  // empties the grid and what is found in it; always true
    bool DisplayTimeCard(const CTimeCard& card); // fills grid and figures; raises Failure 91 for a card without employee or records
    void ClearFigures();
    void ShowCheck(const std::shared_ptr<const CheckedTimecard>& checked); // marks its rows, too; also of a card that could not be made

    void OpenFindings();        // the list of them
    void ShowHours(bool shown); // as a picture; remembered
    bool HoursShown() const;

    bool ShowsCard() const; // rows are shown, as every generated card has some
    bool ShowsFindings() const;
    void SetStrange(bool strange); // grey: a card that is not the one named above it
    void SetHint(const QString& text);

    std::shared_ptr<CTimeRecord> ChosenRecord() const; // the chosen row's own; nullptr when none is chosen
    void ForgetChoice();

signals:
    void RowChosen(); // by mouse or keys, also when it was chosen before
    void EditAsked();
    void DeleteAsked();
    void Elsewhere(const ptk::FindingPlace& place); // of a finding that was chosen: its records that are not on the card
    void ElsewhereEntered(const ptk::Punch& punch); // such a record is to be edited

private:
    void PrepareGrid();
    void ConnectFindings();
    void ChooseRowOf(qint64 timeRecordID);
    bool FillTimeRecordGrid(std::vector<CardLine> lines);
    std::array<FigureBox*, 5> Figures() const;

    std::unique_ptr<Ui::CardDisplay> m_ui;
    TimeRecordGridModel* m_records; // belongs to the widget
};

} // namespace ptk
