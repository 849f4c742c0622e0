#include "ui/timecards/HistoryActions.h"

#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "office/card/CheckedTimecard.h"
#include "platform/Succeeds.h"
#include "ui/timecards/CardChoice.h"
#include "ui/timecards/CardDisplay.h"
#include "ui/timecards/CurrentCard.h"

#include <QMenu>

namespace ptk {

namespace {

constexpr auto kOfRecord = "History of This &Record";
constexpr auto kOfCard = "&History of %1 in This Period";
constexpr auto kOfNobody = "&History of This Card";
constexpr auto kSincePaid = "Changes &since It Was Paid";
constexpr auto kNoRecord = "Choose a record first";
constexpr auto kNoChoice = "Choose an employee and two dates first";

} // namespace

HistoryActions::HistoryActions(const CardChoice& choice, const CurrentCard& card, CardDisplay& display, QObject* parent)
    : QObject(parent), m_choice(choice), m_card(card), m_display(display)
{
    connect(&m_display, &CardDisplay::MenuAsked, this, &HistoryActions::ShowMenu);
}

void HistoryActions::Ask()
{
    const auto record = OfRecord();
    AskFor(record ? record : OfCard());
}

void HistoryActions::AskFor(const std::optional<HistoryScope>& scope)
{
    if (scope) {
        emit Wanted(*scope);
    } else {
        emit NothingChosen();
    }
}

void HistoryActions::ShowMenu(const QPoint& place)
{
    QMenu menu(&m_display);
    menu.setToolTipsVisible(true);
    const auto add = [&](const QString& text, const std::optional<HistoryScope>& scope, const char* reason) {
        QAction* action = menu.addAction(text);
        action->setEnabled(scope.has_value());
        action->setToolTip(scope ? QString() : reason);
        connect(action, &QAction::triggered, this, [this, scope] { AskFor(scope); });
    };
    const QString whose = QString::fromStdString(Whose()).replace('&', "&&");
    add(kOfRecord, OfRecord(), kNoRecord);
    add(whose.isEmpty() ? QString(kOfNobody) : QString(kOfCard).arg(whose), OfCard(), kNoChoice);
    if (const auto since = SincePaid()) {
        add(kSincePaid, since, "");
    }
    menu.exec(place);
}

std::string HistoryActions::Whose() const
{
    return m_display.ShowsCard() ? m_card.Employee() : m_choice.Chosen().employee;
}

std::optional<HistoryScope> HistoryActions::OfCard() const
{
    const auto card = m_card.Card();
    if (!m_display.ShowsCard() || card == nullptr || card->Employee() == nullptr) {
        return OfChoice();
    }
    return HistoryScope{card->Employee()->EmployeeID(), {card->StartDate(), card->EndDate().AddDays(-1)}, {}, {}};
}

std::optional<HistoryScope> HistoryActions::SincePaid() const
{
    const auto card = m_card.Card();
    const auto checked = m_card.Checked();
    const bool shown = m_display.ShowsCard() || m_display.ShowsFindings();
    const bool isChanged = checked != nullptr && checked->paid && checked->check && checked->check->changed; // a check may have failed
    if (!shown || card == nullptr || card->Employee() == nullptr || !isChanged) {
        return std::nullopt;
    }
    return HistoryScope{card->Employee()->EmployeeID(), checked->period, {}, {}, true, checked->paid->entry};
}

std::optional<HistoryScope> HistoryActions::OfChoice() const
{
    std::optional<HistoryScope> scope;
    if (const auto employee = m_choice.EmployeeID()) {
        Succeeds([&] { scope = HistoryScope{*employee, m_choice.Period(), {}, {}}; });
    }
    return scope;
}

std::optional<HistoryScope> HistoryActions::OfRecord() const
{
    auto scope = OfCard();
    const auto record = m_card.ChosenRecord();
    if (!scope || record == nullptr) {
        return std::nullopt;
    }
    scope->record = record->TimeRecordID();
    scope->start = record->StartTime();
    return scope;
}

} // namespace ptk
