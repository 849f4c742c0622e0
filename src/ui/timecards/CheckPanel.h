// The check of the card on the Timecards page: a line that opens into the list of findings and what can be done about the chosen one, and
// the hours per day.
#pragma once

#include "model/check/Finding.h"
#include "office/card/CardOffers.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <QWidget>
#include <vector>

class QToolButton;

namespace ptk {

class ElidedLabel;
class FindingList;
class HintLabel;
class HoursChart;
class RemedyRow;
struct CheckedTimecard;
struct FindingPlace;
struct Punch;

// Empty until it is given a card, but already as high as with its line. Whether the list is open stays the same from card to card; whether
// the hours are shown is kept for the next session, too.
class CheckPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit CheckPanel(QWidget* parent = nullptr);

    // Shows the check of this card; nullptr shows none.
    void Show(std::shared_ptr<const CheckedTimecard> checked);

    [[nodiscard]] bool IsShown() const { return m_checked != nullptr; }

    // Greys the hours, where the card is not the one that is named above it.
    void SetStrange(bool strange);

    // Opens the list of findings, as a press of the line does.
    void OpenList();

    // The chosen finding of the open list; nothing where none is chosen.
    [[nodiscard]] std::optional<Finding> Chosen() const;

    // Chooses in the open list the next finding to be mended after `done`, or the first one without it, and gives the list the keyboard.
    // False when none is left, or the list is closed.
    bool ChooseNext(const std::optional<Finding>& done);

    void ShowHours(bool shown);
    [[nodiscard]] bool HoursShown() const;

signals:
    // A finding was chosen: it concerns these rows of the card, or none, and maybe records that are not on the card.
    void RowsWanted(const std::vector<std::int64_t>& timeRecordIDs);
    void Elsewhere(const ptk::FindingPlace& place);

    // Enter or a double click on a finding that names records: the chosen row, or this record that is not on the card, is to be edited.
    void EditAsked();
    void EditElsewhereAsked(const ptk::Punch& punch);

    // One of the remedies of the chosen finding was picked.
    void RemedyWanted(const ptk::CardOffer& offer);

    // The Delete key on a finding that names records: the chosen row, or this record that is not on the card, is to be deleted.
    void DeleteAsked();
    void DeleteElsewhereAsked(const ptk::Punch& punch);

private:
    void LayOut();
    void ShowLine();
    void ShowColumns();
    void ShowParts();
    void Choose(const Finding& finding);
    void Edit(const Finding& finding);
    void Delete(const Finding& finding);
    void ShowMenu(const QPoint& place);

    QToolButton* m_line; // all of these belong to the widget
    ElidedLabel* m_paid;
    HintLabel* m_detail;
    FindingList* m_list;
    RemedyRow* m_remedies;
    QWidget* m_legend;
    HoursChart* m_chart;
    std::shared_ptr<const CheckedTimecard> m_checked;
    bool m_open = false;
};

} // namespace ptk
