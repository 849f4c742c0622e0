// Doing what is offered about the findings of the current card.
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

// Each remedy is one step of the edit trail. What deletes, and what changes a paid period, is asked for first.
class CardMending final : public QObject
{
    Q_OBJECT

public:
    // All of these outlive it.
    CardMending(Workplace& host, CurrentCard& card, CardStoring& storing, NoticeLine& line, QObject* parent);

    void Do(const CardOffer& offer);

signals:
    // Something was mended, and nothing is left on this card that could be.
    void NextCardWanted(const ptk::PayPeriod& period);

    // Of an employee who has none.
    void RateWanted(std::int32_t employeeID);

    // Since the period was paid.
    void ChangesWanted();

private:
    void Mend(const Remedy& remedy);
    void GoOn(const PayPeriod& period);
    [[nodiscard]] std::int32_t EmployeeID() const; // of the card's; raises Failure 91 without one

    // Nothing: it is not to be done. Else why, perhaps empty.
    [[nodiscard]] std::optional<std::string> Permission(const Remedy& remedy);

    Workplace& m_host;
    CurrentCard& m_card;
    CardStoring& m_storing;
    NoticeLine& m_line;
};

} // namespace ptk
