// The ways from the Timecards page to the history: of a record, or of all that a card's total came of.
#pragma once

#include "office/history/HistoryScope.h"

#include <optional>
#include <QObject>

class QPoint;

namespace ptk {

class CardChoice;
class CardDisplay;
class CurrentCard;

// A menu on the grid. It means the card that is shown, else the employee and the period that are chosen.
class HistoryActions final : public QObject
{
    Q_OBJECT

public:
    // All three outlive this.
    HistoryActions(const CardChoice& choice, const CurrentCard& card, CardDisplay& display, QObject* parent);

    // Of the chosen record, else of the card.
    void Ask();

    // What was changed of the shown card since its period was paid; nothing unless it differs from what was paid.
    [[nodiscard]] std::optional<HistoryScope> SincePaid() const;

signals:
    void Wanted(const ptk::HistoryScope& scope);

    // There is neither card nor employee and period.
    void NothingChosen();

private:
    void ShowMenu(const QPoint& place);
    void AskFor(const std::optional<HistoryScope>& scope);
    [[nodiscard]] std::optional<HistoryScope> OfCard() const;
    [[nodiscard]] std::optional<HistoryScope> OfChoice() const;
    [[nodiscard]] std::optional<HistoryScope> OfRecord() const;
    [[nodiscard]] std::string Whose() const;

    const CardChoice& m_choice;
    const CurrentCard& m_card;
    CardDisplay& m_display;
};

} // namespace ptk
