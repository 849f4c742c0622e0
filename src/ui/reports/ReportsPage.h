// The Reports page: the user chooses a report, the employees and the days.
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

    // Fills the list of reports and selects none; always true.
    bool FillReportList();

    bool SelectFirstReport();
    void EnableGenerate();

    // Whether reports are being made; a box or their progress may be open.
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

    // `direction` is 1 for the next period, -1 for the one before.
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

    // Asks the user before many windows open.
    bool MayOpenWindows(const ReportOrder& order);

    // Says who has problems and who is in no list, beside the outcome of the last run as long as the line still tells it.
    void TellProblems();
    void ForgetProblems();
    void TakeIn();

    // The names that the report is for, in the order of the list box.
    [[nodiscard]] std::vector<std::string> Names(ReportWhom whom) const;

    // The days in the boxes; nothing while they hold no date, or the last day comes before the first.
    [[nodiscard]] std::optional<PayPeriod> Days() const;

    void ShowFailure(std::int32_t errorNumber, const std::string& reportName);
    void Say(const std::string& text);

    PageHost& m_host;
    std::unique_ptr<Ui::ReportsPage> m_ui;
    ReportPeople* m_people;   // belongs to the page's list
    QString m_outcome;        // of the last run
    QString m_told;           // the outcome with what is told beside it
    std::string m_reportName; // of the selected report, for the status bar
    bool m_generating = false;
};

} // namespace ptk
