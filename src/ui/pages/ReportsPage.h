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
class Report;
class Value;

class ReportsPage final : public QWidget
{
    Q_OBJECT

public:
    explicit ReportsPage(PageHost& host, QWidget* parent = nullptr);
    ~ReportsPage() override;

    bool FillReportList(); // always true; selects none
    bool SelectFirstReport();
    void EnableGenerate();

private:
    void ConnectControls();

    void SelectReport();
    void OfferDates(ReportDates dates);
    void ChangeFromDate();
    void ShowStatus();

    void Generate();
    void GenerateKind(ReportKind kind);
    void GenerateReview();
    template <typename MakeReport>
    void GenerateEach(MakeReport makeReport);

    std::vector<std::string> SelectedNames() const;
    std::vector<std::string> AllNames() const;
    std::shared_ptr<CEmployeeList> Employees() const;         // the application's
    std::shared_ptr<CEmployeeList> SelectedEmployees() const; // in the list box's order
    std::int16_t PeriodLength() const;
    Value FromDate() const;
    Value ToDate() const;
    void ShowFailure(std::int32_t errorNumber, const std::string& reportName);

    PageHost& m_host;
    std::unique_ptr<Ui::ReportsPage> m_ui;
    std::string m_reportName; // of the selected report, for the status bar
};

} // namespace ptk
