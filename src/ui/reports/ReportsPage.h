// The Reports page: which report, for whom, for which days.
#pragma once

#include "model/PayPeriod.h"
#include "reports/ReportCatalog.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <QString>
#include <QWidget>
#include <string>
#include <vector>

namespace Ui {
class ReportsPage;
}

namespace ptk {

class PageHost;
struct ReportOrder;
class ReportPeople;

class ReportsPage final : public QWidget
{
    Q_OBJECT

public:
    explicit ReportsPage(PageHost& host, QWidget* parent = nullptr);
    ~ReportsPage() override;

    // Always true; selects none.
    bool FillReportList();

    bool SelectFirstReport();
    void EnableGenerate();

    // A box or the progress of it may be open.
    [[nodiscard]] bool IsGenerating() const { return m_generating; }

private:
    class Client;

    void ConnectControls();
    void ConnectPeriod();
    void ConnectEmployees();

    void SelectReport();
    void OfferDates(ReportDates dates);
    void OfferEmployees(bool needed);
    void ChangeFromDate();

    // 1 or -1.
    void StepPeriod(std::int16_t direction);

    void TakeTimeCardPeriod();
    void ShowPeriod();
    void ShowStatus();
    void ShowOfferedNotice(const ReportEntry& entry);
    void ShowSelected();

    void SaveForAccountant();
    void OpenAccountant(const PayPeriod& days);

    void Generate();
    void Run(const ReportEntry& entry);

    // Asks where they are many.
    bool MayOpenWindows(const ReportOrder& order);

    // Beside the outcome of the last run, while the line still tells it, and who is in no list.
    void TellProblems();
    void ForgetProblems();
    void TakeIn();

    // In the list box's order.
    [[nodiscard]] std::vector<std::string> Names(ReportWhom whom) const;

    // Nothing while the boxes do not hold any.
    [[nodiscard]] std::optional<PayPeriod> Days() const;

    void ShowFailure(std::int32_t errorNumber, const std::string& reportName);
    void Say(const std::string& text);

    PageHost& m_host;
    std::unique_ptr<Ui::ReportsPage> m_ui;
    ReportPeople* m_people;   // belongs to the page's list
    QString m_outcome;        // of the last run
    QString m_told;           // that, with what is told beside it
    std::string m_reportName; // of the selected report, for the status bar
    bool m_generating = false;
};

} // namespace ptk
