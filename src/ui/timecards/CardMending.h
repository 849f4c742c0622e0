// Carries out what is offered about the findings of the current card.
#pragma once

#include "model/PayPeriod.h"

#include <cstdint>
#include <optional>
#include <QObject>
#include <string>

namespace ptk {

class CardStoring;
class CurrentCard;
class NoticeLine;
class Workplace;
struct CardOffer;
struct Remedy;

// Each remedy is stored as one step of the edit trail. The user is asked before anything is deleted or a paid period is changed.
class CardMending final : public QObject
{
    Q_OBJECT

public:
    // Everything that is handed in outlives it.
    CardMending(Workplace& host, CurrentCard& card, CardStoring& storing, NoticeLine& line, QObject* parent);

    void Do(const CardOffer& offer);

signals:
    // Something was mended, and no finding that could be mended is left on this card.
    void NextCardWanted(const ptk::PayPeriod& period);

    // The missing pay rate of this employee is to be entered.
    void RateWanted(std::int32_t employeeID);

    // The changes since the period was paid are to be shown.
    void ChangesWanted();

private:
    void Mend(const Remedy& remedy);
    void GoOn(const PayPeriod& period);
    [[nodiscard]] std::int32_t EmployeeID() const; // the employee of the card; raises Failure 91 without one

    // The reason that the user gave, maybe empty; nothing where the remedy is not to be carried out.
    [[nodiscard]] std::optional<std::string> Permission(const Remedy& remedy);

    Workplace& m_host;
    CurrentCard& m_card;
    CardStoring& m_storing;
    NoticeLine& m_line;
};

} // namespace ptk
