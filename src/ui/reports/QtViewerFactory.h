// Opens the viewer windows of the reports, which differ in their names only, and finds them again while they are open.
#pragma once

#include "ui/reports/ReportViewerWindow.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ptk {

// REQUIRES: CloseAll before its end, so that reports and viewers let go of each other.
class QtViewerFactory final : public ReportViewerFactory
{
public:
    // `log` is called with each line that a viewer has for the session log.
    explicit QtViewerFactory(std::function<void(const std::string&)> log);

    std::shared_ptr<ReportViewer> CreateViewer(ReportKind kind) override;

    // The visible viewers, the one that has been open longest first.
    [[nodiscard]] std::vector<std::shared_ptr<ReportViewerWindow>> OpenViewers() const;

    // Closes the viewers that printing has hidden.
    void ClosePrinted();

    void CloseAll();

    // While it lives, new windows open behind all others and leave the keyboard where it is. At its end they rise, and the last one takes
    // the keyboard. There is one of it at a time.
    class OpensBehind
    {
    public:
        explicit OpensBehind(QtViewerFactory& viewers);
        ~OpensBehind();
        OpensBehind(const OpensBehind&) = delete;
        OpensBehind& operator=(const OpensBehind&) = delete;

    private:
        friend QtViewerFactory;

        QtViewerFactory& m_viewers;
        std::vector<std::weak_ptr<ReportViewerWindow>> m_opened;
    };

private:
    template <typename Condition>
    [[nodiscard]] std::vector<std::shared_ptr<ReportViewerWindow>> Those(Condition condition) const;

    std::function<void(const std::string&)> m_log;
    std::vector<std::weak_ptr<ReportViewerWindow>> m_open;
    OpensBehind* m_behind = nullptr;
};

} // namespace ptk
