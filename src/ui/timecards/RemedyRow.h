// The buttons for what can be done about a finding: one click or one key each.
#pragma once

#include "office/card/CardOffers.h"

#include <array>
#include <QWidget>
#include <vector>

class QMenu;
class QPushButton;

namespace ptk {

class HintLabel;

// Keeps its height whether or not there are buttons. Buttons that do not fit side by side stand below each other.
class RemedyRow final : public QWidget
{
    Q_OBJECT

public:
    explicit RemedyRow(QWidget* parent = nullptr);

    // Shows a button for each offer, with the keys Alt+1, Alt+2 and so on; without offers it shows the hint.
    void Show(std::vector<CardOffer> offers, const QString& hint = {});

    // Adds a line for each offer to the menu, with its key.
    void AddTo(QMenu& menu);

signals:
    void Wanted(const ptk::CardOffer& offer);

private:
    void Take(std::size_t place);

    std::array<QPushButton*, 3> m_buttons{}; // cmdRemedy1 and so on; these belong to the widget
    HintLabel* m_hint;
    std::vector<CardOffer> m_offers;
};

} // namespace ptk
