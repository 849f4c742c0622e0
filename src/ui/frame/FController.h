// The main window: menus, tab strip, status bar and the frame around the five pages.
#pragma once

#include "platform/system/Desktop.h"
#include "startup/Windows.h"
#include "ui/boxes/EmployeeModels.h"
#include "ui/page/PageHost.h"
#include "ui/page/SharedRecords.h"
#include "ui/reports/OpenReports.h"

#include <memory>
#include <QMainWindow>
#include <string>

class QLabel;

namespace Ui {
class FController;
}

namespace ptk {

class CompanyPage;
class CTimeRecord;
class EmployeePage;
class FileMenu;
class OptionsPage;
class PageTabs;
class RecordPages;
class ReportsPage;
class TimeCardPage;
class ViewMenu;
struct PayPeriod;

// Must not be destroyed from within its own closing steps, in which the controller lets go of it: delete it later.
class FController final : public QMainWindow, public MainWindow, public PageHost, public DesktopWindow
{
    Q_OBJECT

public:
    FController(std::string programFolder, ptk::Desktop& desktop, const ptk::Clock& clock);
    ~FController() override;

    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }
    std::shared_ptr<CController> Controller() const override { return m_controller; }
    void Controller(std::shared_ptr<CController> value) override;

    // Shows the options on the Options page; false for nullptr.
    bool DisplaySystemOptions(std::shared_ptr<CSystemOptions> options) override;

    // Hands the record on to the Timecards page, as the record editor hands its own; always true.
    bool ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord);

    bool UnloadTimeCardReport() { return m_reports->UnloadReport(ReportKind::TimeCard); }
    bool UnloadReviewReport() { return m_reports->UnloadReport(ReportKind::Review); }
    bool UnloadYTDTotalsReport() { return m_reports->UnloadReport(ReportKind::YTDTotals); }
    bool UnloadEmployeeReport() { return m_reports->UnloadReport(ReportKind::Employee); }
    bool UnloadPhoneBookReport() { return m_reports->UnloadReport(ReportKind::PhoneBook); }

    void Unload() override;
    std::uintptr_t WindowHandle() const override { return static_cast<std::uintptr_t>(winId()); }

    ptk::Desktop& Desktop() const override { return m_desktop; }
    const ptk::Clock& Clock() const override { return m_clock; }
    const DesktopWindow& AsDesktopWindow() const override { return *this; }
    bool SetStatusText(const std::string& name, const std::string& identifier) override;
    void ErrorNumber(std::int32_t value) override { m_errorNumber = value; }
    using PageHost::Log;
    void Log(std::int32_t number, const std::string& text) override;
    std::int32_t EventSource() const override { return m_eventSource; }
    void EventSource(std::int32_t value) override { m_eventSource = value; }
    PeriodTexts TimeCardPeriod() const override;
    ptk::EmployeeModels& EmployeeModels() const override { return *m_employeeModels; }
    OpenReports& Reports() const override { return *m_reports; }
    ptk::SharedRecords& SharedRecords() const override { return *m_sharedRecords; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void BuildPages();
    void AddPage(int index, QWidget* page);
    void BuildStatusBar();
    void ConnectMenus();
    void ConnectEditMenu();
    void ConnectFileMenu();
    void ConnectViewMenu();
    void ConnectWindowMenu();
    void ConnectTabs();

    void Load();
    bool InitializeTabPages();
    bool FillTabLists();
    void ShowFirstRecords();
    void ShowAll();
    void BackUpWhenDue();
    void ShowRestored(const QString& outcome);
    void ForgetLines();

    void ChangeTab(int index);
    bool ShowTabPage(int index);

    // Says it in the line of the page that is shown.
    void Say(const QString& text);

    void ShowTimeCard(std::int32_t employeeID, const PayPeriod& period);
    void ShowRate(std::int32_t employeeID);

    void Exit();
    void CloseDown(bool keepReview);
    [[nodiscard]] bool IsBusyInDialog() const;

    std::unique_ptr<Ui::FController> m_ui;
    std::string m_programFolder;
    ptk::Desktop& m_desktop;
    const ptk::Clock& m_clock;
    std::unique_ptr<ptk::EmployeeModels> m_employeeModels;
    std::unique_ptr<OpenReports> m_reports;
    std::unique_ptr<ptk::SharedRecords> m_sharedRecords;

    std::shared_ptr<CController> m_controller;
    std::int16_t m_lastTab = 0; // chosen on the tab strip, 1 to 5; 0 before the first choice
    std::int32_t m_errorNumber = 0;
    std::int32_t m_eventSource = eventsource::None;
    bool m_loaded = false;
    bool m_closing = false;

    RecordPages* m_recordPages = nullptr; // belongs to the window
    FileMenu* m_fileMenu = nullptr;
    PageTabs* m_tabs = nullptr;
    TimeCardPage* m_timeCardPage = nullptr; // the pages belong to the window's widgets
    ReportsPage* m_reportsPage = nullptr;
    EmployeePage* m_employeePage = nullptr;
    CompanyPage* m_companyPage = nullptr;
    OptionsPage* m_optionsPage = nullptr;
    std::unique_ptr<ViewMenu> m_view;
    QLabel* m_statusText = nullptr;
};

} // namespace ptk
