// The viewer windows of the reports, alike but for their names: opened here, and found again while they are open.
#pragma once

#include "ui/reports/ReportViewerWindow.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ptk {

// REQUIRES: CloseAll before it goes, so that reports and viewers let go of each other.
class QtViewerFactory final : public ReportViewerFactory
{
public:
    // Takes the lines that a viewer has for the session log.
    explicit QtViewerFactory(std::function<void(const std::string&)> log);

    std::shared_ptr<ReportViewer> CreateViewer(ReportKind kind) override;

    // The longest open first.
    [[nodiscard]] std::vector<std::shared_ptr<ReportViewerWindow>> Shown() const;

    // Those that printing has hidden.
    void ClosePrinted();

    void CloseAll();

    // While it lives, windows open behind all others and leave the keyboard where it is; when it goes they rise, and the last one takes it.
    // One at a time.
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
