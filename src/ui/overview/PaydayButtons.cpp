#include "ui/overview/PaydayButtons.h"

#include "office/history/HistoryScope.h"
#include "office/overview/OverviewReading.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/Clock.h"
#include "startup/CController.h"
#include "ui/overview/OverviewTables.h"
#include "ui/overview/PaydayActions.h"
#include "ui/page/Workplace.h"
#include "ui/payday/AccountWindow.h"
#include "ui/payday/FPaydayLines.h"
#include "ui/profile/FAccountant.h"
#include "ui/widgets/NoticeLine.h"

#include <QMenu>
#include <QPushButton>

#include <unordered_set>

namespace ptk {

namespace {

constexpr auto kClosePayday = "Close Pa&yday (%1)";
constexpr auto kAll = "all";
constexpr auto kChosen = "%1 chosen";
constexpr auto kReopenPayday = "&Reopen Payday";
constexpr auto kAddShift = "&Add a Shift...";
constexpr auto kSaveForAccountant = "Save &for Accountant...";
constexpr auto kAccount = "A&ccount of the Period...";
constexpr auto kCloseAllTip = "Keep what everybody without problems is paid for this period; choose people to close theirs alone";
constexpr auto kCloseTip = "Keep what the chosen ones are paid for this period; Ctrl+Shift+A chooses nobody";
constexpr auto kMendTip = "All that was found on the cards of %1, with what can be done about it";
constexpr auto kMoreTip = "For %1: take a closed payday back, add a shift, save the accountant's table. For the period: the account";
constexpr auto kEverybody = "everybody";
constexpr auto kTheChosen = "the chosen ones";
constexpr auto kBeingRead = "Wait until everybody has been read";
constexpr auto kNobodyRead = "There is nobody to do that for";
constexpr auto kDetails = "Details";

} // namespace

PaydayButtons::PaydayButtons(Workplace& host, const Place& place)
    : QObject(&place.window), m_host(host), m_place(place), m_actions(new PaydayActions(host, place.window))
{
    Connect();
}

PaydayButtons::~PaydayButtons() = default;

void PaydayButtons::Connect()
{
    auto* menu = new QMenu(&m_place.window);
    menu->setObjectName("mnuMore");
    const auto add = [&](const char* name, const char* text, auto action) {
        QAction* line = menu->addAction(text);
        line->setObjectName(name);
        connect(line, &QAction::triggered, this, action);
    };
    add("mnuReopen", kReopenPayday, [this] { m_actions->Reopen(Whom()); });
    add("mnuAddShift", kAddShift, [this] { m_actions->AddShift(Whom()); });
    add("mnuAccountant", kSaveForAccountant, [this] { SaveForAccountant(); });
    add("mnuAccount", kAccount, [this] { ShowAccount(); });
    m_place.more.setMenu(menu);
    connect(&m_place.close, &QPushButton::clicked, this, [this] { m_actions->Close(Whom()); });
    connect(&m_place.mend, &QPushButton::clicked, this, [this] { m_actions->MendSeveral(Whom()); });
    connect(m_actions, &PaydayActions::Done, this, &PaydayButtons::TellDone);
    connect(m_actions, &PaydayActions::Said, this, [this](const QString& text) { m_place.notice.Say(text); });
}

void PaydayButtons::Offer(std::shared_ptr<const OverviewReading> reading)
{
    m_reading = std::move(reading);
    const bool ready = m_reading != nullptr;
    const bool anybody = ready && !m_reading->Result().rows.empty();
    const std::size_t chosen = ready ? m_place.tables.ChosenRows().size() : 0;
    const QString whom = chosen == 0 ? kEverybody : kTheChosen;
    const char* const whyNot = ready ? kNobodyRead : kBeingRead;
    m_place.close.setText(QString(kClosePayday).arg(chosen == 0 ? QString(kAll) : QString(kChosen).arg(chosen)));
    m_place.close.setToolTip(anybody ? (chosen == 0 ? kCloseAllTip : kCloseTip) : whyNot);
    m_place.mend.setToolTip(anybody ? QString(kMendTip).arg(whom) : QString(whyNot));
    m_place.more.setToolTip(ready ? QString(kMoreTip).arg(whom) : QString(whyNot));
    m_place.close.setEnabled(anybody);
    m_place.mend.setEnabled(anybody);
    m_place.more.setEnabled(ready);
}

PaydayWhom PaydayButtons::Whom() const
{
    PaydayWhom whom;
    whom.period = m_reading->Result().period;
    const auto chosen = m_place.tables.ChosenRows();
    for (const OverviewRow& row : m_reading->Result().rows) {
        whom.paid = whom.paid || (row.paid && chosen.empty());
        whom.shown.push_back(row.employee->EmployeeID());
        if (!row.employee->OfferedOnTimeCards()) {
            whom.takenIn.push_back(row.employee->EmployeeID());
        }
    }
    for (const OverviewRow* row : chosen) {
        whom.paid = whom.paid || row->paid;
        whom.chosen.push_back(row->employee->EmployeeID());
        whom.troubled += row->check.problems > (row->check.changed ? 1 : 0) ? 1 : 0;
    }
    return whom;
}

void PaydayButtons::ShowAccount()
{
    if (m_account == nullptr) {
        m_account = std::make_unique<AccountWindow>(m_host);
    }
    m_account->Open(m_reading->Result().period);
}

// Saves the people as they were read. Rows, not names, say who is chosen: two people can have the same name.
void PaydayButtons::SaveForAccountant()
{
    const auto open = [this] {
        AccountantOrder order{{Required(m_host.Controller())->PTKDatabase(), {}, m_reading->Result().period, m_host.Clock().Now()}};
        const auto rows = m_place.tables.ChosenRows();
        const std::unordered_set<const OverviewRow*> chosen(rows.begin(), rows.end());
        for (const OverviewRow& row : m_reading->Result().rows) {
            if (chosen.empty() || chosen.contains(&row)) {
                order.people.people.push_back(std::make_shared<CEmployee>(row.employee->Row()));
            }
        }
        FAccountant(&m_place.window, m_host.Desktop(), std::move(order)).exec();
    };
    Succeeds(open, [this](const Failure& reason) { m_place.notice.Say(QString::fromStdString(reason.Description())); });
}

std::optional<HistoryScope> PaydayButtons::ShownHistory() const
{
    return m_account != nullptr && m_account->isActiveWindow() ? m_account->ShownHistory() : std::nullopt;
}

// The news is shown after the overview was told to read again, because that empties the line.
void PaydayButtons::TellDone(const QString& news, const QString& title, const QStringList& lines)
{
    emit ReadAgainWanted();
    if (lines.isEmpty()) {
        return m_place.notice.Say(news);
    }
    m_place.notice.Suggest(news, kDetails, [this, title, lines] { FPaydayLines(&m_place.window, title, lines).exec(); });
}

} // namespace ptk
