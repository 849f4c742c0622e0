// The five viewer windows, alike but for their report, and the factory that the reports get them from.
#pragma once

#include "ui/dialogs/ReportViewerWindow.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ptk {

class FReportTimeCard final : public ReportViewerWindow
{
public:
    FReportTimeCard() : ReportViewerWindow("FReportTimeCard") {}
};

class FReportReview final : public ReportViewerWindow
{
public:
    FReportReview() : ReportViewerWindow("FReportReview") {}
};

class FReportYTDTotals final : public ReportViewerWindow
{
public:
    FReportYTDTotals() : ReportViewerWindow("FReportYTDTotals") {}
};

class FReportEmployee final : public ReportViewerWindow
{
public:
    FReportEmployee() : ReportViewerWindow("FReportEmployee") {}
};

class FReportPhoneBook final : public ReportViewerWindow
{
public:
    FReportPhoneBook() : ReportViewerWindow("FReportPhoneBook") {}
};

// REQUIRES: CloseAll before it goes, so that reports and viewers let go of each other.
class QtViewerFactory final : public ReportViewerFactory
{
public:
    explicit QtViewerFactory(std::function<void(const std::string&)> log); // takes the lines that a viewer has for the session log

    std::shared_ptr<ReportViewer> CreateViewer(ReportKind kind) override;
    std::vector<std::shared_ptr<ReportViewerWindow>> Shown() const; // the longest open first
    void ClosePrinted();                                            // those that printing has hidden
    void CloseAll();

private:
    template <typename Condition>
    std::vector<std::shared_ptr<ReportViewerWindow>> Those(Condition condition) const;

    std::function<void(const std::string&)> m_log;
    std::vector<std::weak_ptr<ReportViewerWindow>> m_open;
};

} // namespace ptk
