#include "ui/frame/ViewMenu.h"

#include "ui/history/HistoryWindow.h"
#include "ui/overview/OverviewWindow.h"
#include "ui/timecards/TimeCardPage.h"
#include "ui/widgets/ThemeIcon.h"

#include <QAction>

namespace ptk {

ViewMenu::ViewMenu(PageHost& host, const Lines& lines, const TimeCardPage& page) : m_host(host), m_page(page)
{
    lines.overview.setIcon(ThemeIcon("overview"));
    lines.history.setIcon(ThemeIcon("history"));
    connect(&lines.overview, &QAction::triggered, this, &ViewMenu::ShowOverview);
    connect(&lines.nextProblems, &QAction::triggered, this, [this] { ShowNextCard(1); });
    connect(&lines.previousProblems, &QAction::triggered, this, [this] { ShowNextCard(-1); });
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

// From the card that is shown on, as the overview was read last, whether it is open or not.
void ViewMenu::ShowNextCard(int direction)
{
    MakeOverview();
    const QString refusal = m_overview->OpenNextCard(m_page.ChosenEmployee(), direction);
    if (!refusal.isEmpty()) {
        emit Said(refusal);
    }
}

// Of the person who is chosen where the overview, or its account, is in front, else the whole.
void ViewMenu::ShowHistoryOfChosen()
{
    ShowHistory(m_overview != nullptr ? m_overview->ShownHistory() : std::nullopt);
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
