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

// What somebody typed in vain is offered again.
class CardFilling
{
public:
    // The page's own parts, which outlive this; the page is the window's parent.
    struct Place
    {
        QWidget& page;
        CardChoice& choice;
        CurrentCard& card;
        CardStoring& storing;
        NoticeLine& line;
    };

    // `chosen` is told when the filled days have become the chosen period.
    CardFilling(Workplace& host, const Place& place, std::function<void()> chosen)
        : m_host(host), m_place(place), m_chosen(std::move(chosen))
    {
    }

    // In the Auto Fill window. Without a card, or with a name that nobody has, there is nothing to fill.
    void Fill() { Open({}); }

private:
    // What was typed in vain before.
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
