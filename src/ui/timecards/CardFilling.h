// Filling the current card with a record for each day of a range.
#pragma once

#include "office/card/FillPlan.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

class QWidget;

namespace ptk {

class CardChoice;
class CardStoring;
class CurrentCard;
class FAutoFill;
class NoticeLine;
class Workplace;

// Fills the card by the Auto Fill window. What was typed and could not be stored is offered again.
class CardFilling
{
public:
    // Parts of the page, which outlive this. The page is the parent of the Auto Fill window.
    struct Place
    {
        QWidget& page;
        CardChoice& choice;
        CurrentCard& card;
        CardStoring& storing;
        NoticeLine& line;
    };

    // `chosen` is called when the period that was filled has become the chosen period.
    CardFilling(Workplace& host, const Place& place, std::function<void()> chosen)
        : m_host(host), m_place(place), m_chosen(std::move(chosen))
    {
    }

    // Opens the Auto Fill window. Without a card, or with a name that nobody has, it only says why not.
    void Fill() { Open({}); }

private:
    // What was typed before and could not be stored.
    struct Typed
    {
        FillTexts texts;
        std::string reason;
    };

    void Open(const std::optional<Typed>& typed);
    void HandOver(FAutoFill& window);
    void TakeOver(const FAutoFill& window, std::int32_t records);

    Workplace& m_host;
    Place m_place;
    std::function<void()> m_chosen;
};

} // namespace ptk
