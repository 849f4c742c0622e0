#include "ui/dialogs/FReportViewers.h"

namespace ptk {

namespace {

// Windows are let go of in their own event handlers, so they are deleted when those have returned.
template <typename Window>
std::shared_ptr<ReportViewerWindow> NewWindow()
{
    return std::shared_ptr<ReportViewerWindow>(new Window, [](ReportViewerWindow* window) { window->deleteLater(); });
}

std::shared_ptr<ReportViewerWindow> NewWindow(ReportKind kind)
{
    switch (kind) {
    case ReportKind::TimeCard:
        return NewWindow<FReportTimeCard>();
    case ReportKind::Review:
        return NewWindow<FReportReview>();
    case ReportKind::YTDTotals:
        return NewWindow<FReportYTDTotals>();
    case ReportKind::Employee:
        return NewWindow<FReportEmployee>();
    case ReportKind::PhoneBook:
        return NewWindow<FReportPhoneBook>();
    }
    return nullptr;
}

} // namespace

std::shared_ptr<ReportViewer> QtViewerFactory::CreateViewer(ReportKind kind)
{
    std::erase_if(m_open, [](const auto& viewer) { return viewer.expired(); });
    auto window = NewWindow(kind);
    m_open.push_back(window);
    return window;
}

void QtViewerFactory::ClosePrinted()
{
    CloseThose([](const ReportViewerWindow& window) { return window.Printed(); });
}

void QtViewerFactory::CloseAll()
{
    CloseThose([](const ReportViewerWindow&) { return true; });
}

template <typename Condition>
void QtViewerFactory::CloseThose(Condition condition)
{
    for (const auto& open : m_open) {
        const auto window = open.lock();
        if (window != nullptr && condition(*window)) {
            window->LetGo();
        }
    }
}

} // namespace ptk
