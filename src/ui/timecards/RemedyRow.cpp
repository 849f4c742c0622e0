#include "ui/timecards/RemedyRow.h"

#include "ui/widgets/FoldingRow.h"
#include "ui/widgets/HintLabel.h"

#include <QMenu>
#include <QPushButton>

namespace ptk {

namespace {

constexpr auto kRemedyCaption = "&%1  %2";
constexpr auto kRemedyKeys = "Alt+%1";

QString Caption(const CardOffer& offer)
{
    return QString::fromStdString(offer.remedy.text).replace('&', "&&");
}

} // namespace

RemedyRow::RemedyRow(QWidget* parent) : QWidget(parent), m_hint(new HintLabel(this))
{
    auto* row = new FoldingRow(this);
    int number = 1;
    for (QPushButton*& button : m_buttons) {
        button = new QPushButton(this);
        button->setObjectName(QString("cmdRemedy%1").arg(number));
        button->setToolTip(QString(kRemedyKeys).arg(number));
        button->setAutoDefault(false);
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        connect(button, &QPushButton::clicked, this, [this, place = static_cast<std::size_t>(number - 1)] { Take(place); });
        row->addWidget(button);
        ++number;
    }
    m_hint->setObjectName("lblRemedies");
    row->addWidget(m_hint, 1);
    row->addStretch(0);
    setMinimumHeight(m_buttons.front()->sizeHint().height());
    Show({});
}

void RemedyRow::Show(std::vector<CardOffer> offers, const QString& hint)
{
    m_offers = std::move(offers);
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        const bool offered = i < m_offers.size();
        m_buttons.at(i)->setText(offered ? QString(kRemedyCaption).arg(i + 1).arg(Caption(m_offers[i])) : QString());
        m_buttons.at(i)->setVisible(offered);
    }
    m_hint->Say(m_offers.empty() ? hint : QString());
    m_hint->setVisible(m_offers.empty() && !hint.isEmpty());
}

void RemedyRow::AddTo(QMenu& menu)
{
    for (std::size_t i = 0; i < m_offers.size(); ++i) {
        QAction* line = menu.addAction(Caption(m_offers[i]));
        line->setShortcut(QKeySequence(QString(kRemedyKeys).arg(i + 1)));
        line->setShortcutVisibleInContextMenu(true);
        connect(line, &QAction::triggered, this, [this, i] { Take(i); });
    }
}

void RemedyRow::Take(std::size_t place)
{
    if (place < m_offers.size()) {
        emit Wanted(CardOffer(m_offers[place])); // a copy: what follows may show other offers
    }
}

} // namespace ptk
