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

// As high with one button as without. What does not fit side by side stands below each other.
class RemedyRow final : public QWidget
{
    Q_OBJECT

public:
    explicit RemedyRow(QWidget* parent = nullptr);

    // Alt+1 for the first, and so on. The hint stands there where nothing is offered.
    void Show(std::vector<CardOffer> offers, const QString& hint = {});

    // One line for each, with its key.
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
