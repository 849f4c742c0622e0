// The Reports page: which report, for whom, for which days.
#pragma once

#include "reports/ReportCatalog.h"

#include <QWidget>
#include <memory>
#include <string>
#include <vector>

namespace Ui {
class ReportsPage;
}

namespace ptk {

class PageHost;
class Value;

class ReportsPage final : public QWidget
{
    Q_OBJECT

public:
    explicit ReportsPage(PageHost& host, QWidget* parent = nullptr);
    ~ReportsPage() override;

    bool FillReportList();
    bool SelectFirstReport();
    void EnableGenerate();

private:
    void SelectReport();
    void ChangeFromDate();
    void ShowStatus();
    void SetPeriod(const ReportPeriod& period);

    void Generate();
    void GenerateEach(ReportKind kind);
    void GenerateReview();
    void GenerateEmployees();
    void GeneratePhoneBook();

    std::vector<std::string> Lines(bool selectedOnly) const;
    Value FromDate() const;
    Value ToDate() const;
    void ShowFailure(std::int32_t errorNumber, const std::string& reportName);

    PageHost& m_host;
    std::unique_ptr<Ui::ReportsPage> m_ui;
    std::string m_reportName; // of the selected report, for the status bar
};

} // namespace ptk
