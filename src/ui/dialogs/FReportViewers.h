// The five viewer windows, alike but for their report, and the factory that the reports get them from.
#pragma once

#include "ui/dialogs/ReportViewerWindow.h"

#include <memory>
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
    std::shared_ptr<ReportViewer> CreateViewer(ReportKind kind) override;
    void ClosePrinted(); // those that printing has hidden
    void CloseAll();

private:
    template <typename Condition>
    void CloseThose(Condition condition);

    std::vector<std::weak_ptr<ReportViewerWindow>> m_open;
};

} // namespace ptk
