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

// Has a menu on the grid. It is about the card that is shown, or else about the employee and the period that are chosen.
class HistoryActions final : public QObject
{
    Q_OBJECT

public:
    // The choice, the card and the display outlive this.
    HistoryActions(const CardChoice& choice, const CurrentCard& card, CardDisplay& display, QObject* parent);

    // Asks for the history of the chosen record, or else of the card.
    void Ask();

    // The changes of the shown card since its period was paid; nothing unless the card differs from what was paid.
    [[nodiscard]] std::optional<HistoryScope> SincePaid() const;

signals:
    void Wanted(const ptk::HistoryScope& scope);

    // No history can be shown: there is neither a card nor a chosen employee with a period.
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
