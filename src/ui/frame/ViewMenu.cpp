#include "ui/frame/ViewMenu.h"

#include "office/history/HistoryScope.h"
#include "ui/history/HistoryWindow.h"
#include "ui/overview/OverviewWindow.h"
#include "ui/timecards/TimeCardPage.h"
#include "ui/widgets/ThemeIcon.h"

#include <QAction>
#include <QApplication>

namespace ptk {

ViewMenu::ViewMenu(Workplace& host, const Lines& lines, TimeCardPage& page) : m_host(host), m_page(page)
{
    lines.overview.setIcon(ThemeIcon("overview"));
    lines.history.setIcon(ThemeIcon("history"));
    connect(&lines.overview, &QAction::triggered, this, &ViewMenu::ShowOverview);
    connect(&lines.nextProblems, &QAction::triggered, this, [this] { ShowNextCard(1); });
    connect(&lines.previousProblems, &QAction::triggered, this, [this] { ShowNextCard(-1); });
    connect(&page, &TimeCardPage::NextCardWanted, this, &ViewMenu::GoOn);
    connect(&lines.history, &QAction::triggered, this, &ViewMenu::ShowHistoryOfChosen);
}

ViewMenu::~ViewMenu() = default;

void ViewMenu::MakeOverview()
{
    if (m_overview == nullptr) {
        m_overview = std::make_unique<OverviewWindow>(m_host);
        connect(m_overview.get(), &OverviewWindow::CardWanted, this, &ViewMenu::CardWanted);
        connect(m_overview.get(), &OverviewWindow::UndoWanted, this, &ViewMenu::UndoWanted);
        connect(m_overview.get(), &OverviewWindow::RedoWanted, this, &ViewMenu::RedoWanted);
    }
}

void ViewMenu::ShowOverview()
{
    MakeOverview();
    m_overview->Open(m_page.ChosenPeriod());
}

// Opens the next card with problems after the shown one, in the order in which the overview was last read, whether or not it is open.
void ViewMenu::ShowNextCard(int direction)
{
    MakeOverview();
    const QString refusal = m_overview->OpenNextCard(m_page.ChosenEmployee(), direction);
    if (!refusal.isEmpty()) {
        emit Said(refusal);
    }
}

// Goes on to the next card where the overview was read for this period; otherwise nobody has asked to walk through cards.
void ViewMenu::GoOn(const PayPeriod& period)
{
    const auto read = m_overview == nullptr ? std::nullopt : m_overview->ReadPeriod();
    if (read == period) {
        ShowNextCard(1);
    }
}

// Shows the history of the person who is chosen in the overview or its account, where one of them is in front. In front of a card that
// differs from what was paid, shows what was changed since. Otherwise shows the whole history.
void ViewMenu::ShowHistoryOfChosen()
{
    auto scope = m_overview != nullptr ? m_overview->ShownHistory() : std::nullopt;
    if (!scope && QApplication::activeWindow() == m_page.window() && m_page.isVisible()) {
        scope = m_page.SincePaid();
    }
    ShowHistory(scope);
}

void ViewMenu::ShowHistory(const std::optional<HistoryScope>& scope)
{
    if (m_history == nullptr) {
        m_history = std::make_unique<HistoryWindow>(m_host);
    }
    m_history->Open(scope);
}

void ViewMenu::SayInOverview(const QString& text)
{
    if (m_overview != nullptr) {
        m_overview->Say(text);
    }
}

void ViewMenu::ReadOverviewAgain(const QString& news)
{
    if (m_overview != nullptr) {
        m_overview->ReadAgain(news);
    }
}

void ViewMenu::CloseOverview()
{
    m_overview.reset();
}

void ViewMenu::CloseHistory()
{
    m_history.reset();
}

} // namespace ptk
