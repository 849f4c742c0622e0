// The Reports page: which report, for whom, for which days.
#pragma once

#include "reports/ReportCatalog.h"

#include <cstdint>
#include <memory>
#include <QWidget>
#include <string>
#include <vector>

namespace Ui {
class ReportsPage;
}

namespace ptk {

class PageHost;

class ReportsPage final : public QWidget
{
    Q_OBJECT

public:
    explicit ReportsPage(PageHost& host, QWidget* parent = nullptr);
    ~ReportsPage() override;

    bool FillReportList(); // always true; selects none
    bool SelectFirstReport();
    void EnableGenerate();
    bool IsGenerating() const { return m_generating; } // a box or the progress of it may be open

private:
    class Client;

    void ConnectControls();
    void ConnectPeriod();
    void ConnectEmployees();

    void SelectReport();
    void OfferDates(ReportDates dates);
    void OfferEmployees(bool needed);
    void ChangeFromDate();
    void StepPeriod(std::int16_t direction); // 1 or -1
    void TakeTimeCardPeriod();
    void ShowStatus();
    void ShowSelected();

    void Generate();
    void Run(const ReportEntry& entry);

    std::vector<std::string> Names(ReportWhom whom) const; // in the list box's order
    std::int16_t PeriodLength() const;
    void ShowFailure(std::int32_t errorNumber, const std::string& reportName);
    void Say(const std::string& text);

    PageHost& m_host;
    std::unique_ptr<Ui::ReportsPage> m_ui;
    std::string m_reportName; // of the selected report, for the status bar
    bool m_generating = false;
};

} // namespace ptk
