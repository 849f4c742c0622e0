#include "ui/reports/QtViewerFactory.h"

namespace ptk {

namespace {

// A new viewer window. It is deleted by the event loop, because its owners let go of it in its own event handlers.
std::shared_ptr<ReportViewerWindow> NewWindow(ReportKind kind)
{
    const std::string_view name = EntryOf(kind).viewer;
    return {new ReportViewerWindow(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()))),
            [](ReportViewerWindow* window) { window->deleteLater(); }};
}

} // namespace

QtViewerFactory::QtViewerFactory(std::function<void(const std::string&)> log) : m_log(std::move(log)) {}

std::shared_ptr<ReportViewer> QtViewerFactory::CreateViewer(ReportKind kind)
{
    std::erase_if(m_open, [](const auto& viewer) { return viewer.expired(); });
    auto window = NewWindow(kind);
    QObject::connect(window.get(), &ReportViewerWindow::Failed, window.get(),
                     [log = m_log](const QString& line) { log(line.toStdString()); });
    m_open.push_back(window);
    if (m_behind != nullptr) {
        window->OpenBehind();
        m_behind->m_opened.push_back(window);
    }
    return window;
}

std::vector<std::shared_ptr<ReportViewerWindow>> QtViewerFactory::OpenViewers() const
{
    return Those([](const ReportViewerWindow& window) { return window.isVisible(); });
}

void QtViewerFactory::ClosePrinted()
{
    for (const auto& window : Those([](const ReportViewerWindow& each) { return each.Printed(); })) {
        window->LetGo();
    }
}

void QtViewerFactory::CloseAll()
{
    for (const auto& window : Those([](const ReportViewerWindow&) { return true; })) {
        window->LetGo();
    }
}

QtViewerFactory::OpensBehind::OpensBehind(QtViewerFactory& viewers) : m_viewers(viewers)
{
    m_viewers.m_behind = this;
}

QtViewerFactory::OpensBehind::~OpensBehind()
{
    m_viewers.m_behind = nullptr;
    std::shared_ptr<ReportViewerWindow> last;
    for (const auto& opened : m_opened) {
        if (const auto window = opened.lock(); window != nullptr && window->isVisible()) {
            window->Rise();
            last = window;
        }
    }
    if (last != nullptr) {
        last->BringUp();
    }
}

template <typename Condition>
std::vector<std::shared_ptr<ReportViewerWindow>> QtViewerFactory::Those(Condition condition) const
{
    std::vector<std::shared_ptr<ReportViewerWindow>> those;
    for (const auto& open : m_open) {
        auto window = open.lock();
        if (window != nullptr && condition(*window)) {
            those.push_back(std::move(window));
        }
    }
    return those;
}

} // namespace ptk
