#include "ui/frame/FController.h"

#include "model/CCompanyList.h"
#include "model/CEmployeeList.h"
#include "office/history/HistoryScope.h"
#include "platform/Succeeds.h"
#include "platform/Waiting.h"
#include "startup/CController.h"
#include "startup/Notices.h"
#include "ui/frame/EditMenu.h"
#include "ui/frame/FileMenu.h"
#include "ui/frame/OptionsPage.h"
#include "ui/frame/PageFrame.h"
#include "ui/frame/PageTabs.h"
#include "ui/frame/ViewMenu.h"
#include "ui/help/HelpMenu.h"
#include "ui/page/RecordPages.h"
#include "ui/people/CompanyPage.h"
#include "ui/people/EmployeePage.h"
#include "ui/reports/ReportsPage.h"
#include "ui/reports/WindowMenu.h"
#include "ui/timecards/TimeCardPage.h"
#include "ui/widgets/DefaultButton.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/NoticeLine.h"
#include "ui/widgets/ThemeIcon.h"
#include "ui/work/WindowPlace.h"
#include "ui_FController.h"

#include <array>
#include <QCloseEvent>
#include <QThread>
#include <QTimer>

namespace ptk {

namespace {

// Half of 1024 x 700, which is the room that a screen of that size has at a scaling of 200 %.
constexpr QSize kSmallestSize(512, 350);

struct Tab
{
    const char* caption;
    const char* pageCaption;
    const char* statusText;
    const char* icon;
};

constexpr std::array<Tab, 5> kTabs{{
    {"Timecards", " Generate Time Card ", "Timecards", "timecards"},
    {"Reports", " Generate Report ", "Reports", "reports"},
    {"Employees", "  Employee Information  ", "Employee Information", "employees"},
    {"Company", "  Company Information   ", "Company Information", "company"},
    {"Options", " General Program Options ", "System Options", "options"},
}};
constexpr int kTimeCardTab = 1;
constexpr int kEmployeeTab = 3;

constexpr auto kProgramPanel = "PTK - Administrator";
constexpr int kPanelMargin = 6;
constexpr auto kFirstStatus = "<object name : ID>";

constexpr auto kMakingReports = "Not now: reports are being made";

constexpr int kBackupDelay = 300; // milliseconds: the window is shown before the day's first backup is made

constexpr auto kPlaceName = "main";
constexpr QSize kFirstSize(960, 660);

const Tab& TabAt(int index)
{
    return kTabs.at(static_cast<std::size_t>(index - 1));
}

} // namespace

FController::FController(std::string programFolder, ptk::Desktop& desktop, const ptk::Clock& clock)
    : m_ui(std::make_unique<Ui::FController>()), m_programFolder(std::move(programFolder)), m_desktop(desktop), m_clock(clock),
      m_employeeModels(std::make_unique<ptk::EmployeeModels>()), m_reports(std::make_unique<OpenReports>(*this, m_programFolder)),
      m_sharedRecords(std::make_unique<ptk::SharedRecords>())
{
    m_ui->setupUi(this);
    setMinimumSize(kSmallestSize); // below their own size the pages scroll
    BuildPages();
    BuildStatusBar();
    ConnectMenus();
    ConnectEditMenu();
    ConnectFileMenu();
    ConnectViewMenu();
    ConnectWindowMenu();
    ConnectTabs();
    RestorePlace(*this, kPlaceName, kFirstSize);
}

// The pages are deleted first, because they still show the models.
FController::~FController()
{
    delete takeCentralWidget();
}

void FController::BuildPages()
{
    AddPage(1, m_timeCardPage = new TimeCardPage(*this));
    AddPage(2, m_reportsPage = new ReportsPage(*this));
    AddPage(3, m_employeePage = new EmployeePage(*this));
    AddPage(4, m_companyPage = new CompanyPage(*this));
    AddPage(5, m_optionsPage = new OptionsPage(*this));
}

void FController::AddPage(int index, QWidget* page)
{
    const Tab& tab = TabAt(index);
    auto* frame = new PageFrame(tab.pageCaption, page);
    frame->setObjectName(QString("FrameArray(%1)").arg(index));
    m_ui->pages->addWidget(frame);
    m_ui->TabStrip->addTab(ThemeIcon(tab.icon), tab.caption);
}

void FController::BuildStatusBar()
{
    auto* program = new QLabel(kProgramPanel);
    program->setObjectName("StatusBarPanel1");
    m_statusText = new ElidedLabel(kFirstStatus);
    m_statusText->setObjectName("StatusBarPanel2");
    for (QLabel* panel : {program, m_statusText}) {
        panel->setContentsMargins(kPanelMargin, 0, kPanelMargin, 0);
        m_ui->StatusBar->addWidget(panel, panel == m_statusText ? 1 : 0);
    }
}

void FController::ConnectMenus()
{
    m_ui->mnuFileExit->setIcon(ThemeIcon("exit"));
    connect(m_ui->mnuFileExit, &QAction::triggered, this, &FController::Exit);
    auto* help = new HelpMenu(*this, {*m_ui->mnuHelpAbout, *m_ui->mnuHelpContents, *m_ui->mnuHelpShortcuts}, *this, m_programFolder);
    connect(help, &HelpMenu::Said, this, &FController::Say);
}

void FController::ConnectEditMenu()
{
    const auto isBusy = [this] { return IsBusyInDialog(); };
    const std::array<RecordPages::Place, 3> places{
        {{0, "TimeRecord", *m_timeCardPage}, {2, "Employee", *m_employeePage}, {3, "Company", *m_companyPage}}};
    m_recordPages = new RecordPages(*this, {*m_ui->TabStrip, *m_ui->pages, *this, isBusy}, places);
    auto* menu = new EditMenu(*m_ui->mnuEdit, {*m_ui->mnuEditUndo, *m_ui->mnuEditRedo}, *this, isBusy);
    connect(menu, &EditMenu::Moved, m_recordPages, &RecordPages::ShowMoved);
    connect(menu, &EditMenu::Moved, this, [this](const MovedStep&, const QString& done) { m_view->ReadOverviewAgain(done); });
    connect(menu, &EditMenu::Said, this, &FController::Say);
}

void FController::ConnectFileMenu()
{
    const FileMenu::Lines lines{*m_ui->mnuFileBackUp, *m_ui->mnuFileRestore, *m_ui->mnuFileImport, *m_ui->mnuFilePunches,
                                *m_ui->mnuFileEmployees};
    m_fileMenu = new FileMenu(*this, lines, *this);
    connect(m_fileMenu, &FileMenu::Said, this, &FController::Say);
    connect(m_fileMenu, &FileMenu::Restored, this, &FController::ShowRestored);
}

void FController::ConnectViewMenu()
{
    const ViewMenu::Lines lines{*m_ui->mnuViewOverview, *m_ui->mnuViewNextProblems, *m_ui->mnuViewPreviousProblems, *m_ui->mnuViewHistory};
    m_view = std::make_unique<ViewMenu>(*this, lines, *m_timeCardPage);
    connect(m_view.get(), &ViewMenu::CardWanted, this, &FController::ShowTimeCard);
    connect(m_view.get(), &ViewMenu::UndoWanted, m_ui->mnuEditUndo, &QAction::trigger);
    connect(m_view.get(), &ViewMenu::RedoWanted, m_ui->mnuEditRedo, &QAction::trigger);
    connect(m_view.get(), &ViewMenu::Said, this, &FController::Say);
    m_ui->mnuViewHours->setChecked(m_timeCardPage->HoursShown());
    connect(m_ui->mnuViewCardHistory, &QAction::triggered, m_timeCardPage, &TimeCardPage::AskForHistory);
    connect(m_timeCardPage, &TimeCardPage::RateWanted, this, &FController::ShowRate);
    connect(m_timeCardPage, &TimeCardPage::HistoryWanted, m_view.get(), &ViewMenu::ShowHistory);
    connect(m_ui->mnuViewHours, &QAction::toggled, m_timeCardPage, &TimeCardPage::ShowHours);
    connect(m_optionsPage, &OptionsPage::LimitsStored, m_timeCardPage, &TimeCardPage::CheckAgain);
}

void FController::ConnectWindowMenu()
{
    QtViewerFactory& viewers = m_reports->Viewers();
    auto* windows = new WindowMenu(*m_ui->mnuWindow, viewers);
    connect(windows, &WindowMenu::Done, this, &FController::Say);
    connect(m_ui->mnuWindowPrintAll, &QAction::triggered, windows, &WindowMenu::PrintAll);
    connect(m_ui->mnuWindowCloseAll, &QAction::triggered, windows, [&viewers] { viewers.CloseAll(); });
}

// A click counts even when it does not change the selection, as the first click on the first tab.
void FController::ConnectTabs()
{
    QTabBar* strip = m_ui->TabStrip;
    const auto change = [this](int tab) {
        if (tab >= 0) {
            ChangeTab(tab + 1);
        }
    };
    connect(strip, &QTabBar::tabBarClicked, this, change);
    connect(strip, &QTabBar::currentChanged, this, change);
    m_tabs = new PageTabs(*strip);
}

void FController::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    const QMargins margins = m_ui->layout->contentsMargins();
    m_tabs->FitInto(m_ui->content->width() - margins.left() - margins.right());
}

void FController::Controller(std::shared_ptr<CController> value)
{
    m_controller = std::move(value);
    m_sharedRecords->Use(m_controller == nullptr ? nullptr : m_controller->PTKDatabase());
    Load();
    if (m_controller == nullptr) {
        m_errorNumber = windowerror::NoController;
    } else {
        ShowAll();
        m_fileMenu->Offer();
        m_timeCardPage->EnablePrint();
        m_reportsPage->EnableGenerate();
        QTimer::singleShot(kBackupDelay, this, &FController::BackUpWhenDue);
    }
    show();
}

void FController::BackUpWhenDue()
{
    if (IsBusyInDialog()) {
        return QTimer::singleShot(kBackupDelay, this, &FController::BackUpWhenDue);
    }
    m_fileMenu->BackUpWhenDue();
}

void FController::ShowAll()
{
    InitializeTabPages();
    if (FillTabLists()) {
        ShowFirstRecords();
    } else {
        m_errorNumber = windowerror::FillListsFailed;
    }
}

// Open reports stay open, since each says of which day it is.
void FController::ShowRestored(const QString& outcome)
{
    m_timeCardPage->GiveUpCard();
    m_view->CloseOverview();
    m_sharedRecords->Use(m_controller->PTKDatabase());
    m_view->CloseHistory();
    ShowAll();
    if (!m_optionsPage->DisplaySystemOptions(m_controller->SystemOptions())) {
        Tell(m_desktop, notice::OptionsUnread);
    }
    m_optionsPage->ForgetLimits();
    ForgetLines();
    Say(outcome);
}

// Clears the lines and the status bar, which spoke of records that are not shown any more.
void FController::ForgetLines()
{
    for (auto* line : m_ui->pages->findChildren<NoticeLine*>()) {
        line->Clear();
    }
    m_statusText->setText(TabAt(m_ui->pages->currentIndex() + 1).statusText);
    if (m_timeCardPage->isVisible() && m_timeCardPage->ChosenEmployee()) {
        m_timeCardPage->ShowChoice();
    }
}

void FController::Load()
{
    if (std::exchange(m_loaded, true)) {
        return;
    }
    ShowTabPage(kTimeCardTab);
    m_timeCardPage->GiveUpCard();
    m_reports->Clear(false);
    m_timeCardPage->InitializePayPeriod();
}

bool FController::InitializeTabPages()
{
    m_companyPage->ClearCompanyFields();
    m_employeePage->ClearEmployeeFields();
    if (!m_timeCardPage->ClearTimeCardDisplay()) {
        m_errorNumber = windowerror::ClearFieldsFailed;
    }
    return true;
}

bool FController::FillTabLists()
{
    return Succeeds([this] {
        const bool companies = m_companyPage->FillCompanyLists();
        const bool employees = m_employeePage->FillEmployeeLists();
        const bool reports = m_reportsPage->FillReportList();
        if (!companies || !employees || !reports) {
            m_errorNumber = windowerror::FillListsFailed;
        }
    });
}

void FController::ShowFirstRecords()
{
    m_companyPage->ShowCompany(m_controller->CompanyList()->Item(1));
    if (!m_employeePage->ShowEmployee(m_controller->EmployeeList()->Item(1))) {
        m_timeCardPage->SelectFirstEmployee();
    }
    m_reportsPage->SelectFirstReport();
}

bool FController::DisplaySystemOptions(std::shared_ptr<CSystemOptions> options)
{
    return m_optionsPage->DisplaySystemOptions(options);
}

bool FController::ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord)
{
    return m_timeCardPage->ReturnTimeRecord(thetimerecord);
}

bool FController::SetStatusText(const std::string& name, const std::string& identifier)
{
    m_statusText->setText(QString::fromStdString(name + " : " + identifier));
    return true;
}

PeriodTexts FController::TimeCardPeriod() const
{
    return m_timeCardPage->Period();
}

void FController::Say(const QString& text)
{
    if (auto* line = m_ui->pages->currentWidget()->findChild<NoticeLine*>()) {
        line->Say(text);
    }
}

void FController::Log(std::int32_t number, const std::string& text)
{
    if (m_controller != nullptr) {
        m_controller->Log(number, text);
    }
}

void FController::ChangeTab(int index)
{
    if (index == m_lastTab) {
        return;
    }
    if (ShowTabPage(index)) {
        m_statusText->setText(TabAt(index).statusText);
    } else {
        m_errorNumber = windowerror::ShowPageFailed;
    }
    m_lastTab = static_cast<std::int16_t>(index);
}

bool FController::ShowTabPage(int index)
{
    m_ui->pages->setCurrentIndex(index - 1);
    return m_ui->pages->currentIndex() == index - 1;
}

// Shows no card while reports are being made, because they share the list of time records with the page.
void FController::ShowTimeCard(std::int32_t employeeID, const PayPeriod& period)
{
    if (IsBusyInDialog()) {
        return m_view->SayInOverview(kMakingReports);
    }
    m_ui->TabStrip->setCurrentIndex(kTimeCardTab - 1);
    BringForward(*this);
    m_timeCardPage->ShowCard(employeeID, period);
}

void FController::ShowRate(std::int32_t employeeID)
{
    m_ui->TabStrip->setCurrentIndex(kEmployeeTab - 1);
    m_employeePage->ShowRate(employeeID);
}

// In the middle of this the window is unloaded, which runs the whole close path once more; all of it is harmless when repeated.
void FController::Exit()
{
    if (m_recordPages->MayLeave()) {
        CloseDown(true);
    }
}

void FController::Unload()
{
    m_recordPages->LeaveUnasked();
    if (m_closing) {
        hide();
    } else {
        close();
    }
}

void FController::CloseDown(bool keepReview)
{
    if (!m_optionsPage->SaveSystemOptions()) {
        Tell(m_desktop, notice::OptionsUnsaved);
    }
    m_sharedRecords->Use(nullptr);
    m_timeCardPage->GiveUpCard();
    m_view->CloseOverview();
    m_view->CloseHistory();
    m_reports->Clear(keepReview);
    const auto controller = m_controller;
    if (controller == nullptr) {
        return;
    }
    controller->UnloadControllerWindow();
    controller->Cleanup();
}

bool FController::IsBusyInDialog() const
{
    return m_reportsPage->IsGenerating() || waiting::IsTurn() || QApplication::activeModalWidget() != nullptr ||
           QThread::currentThread()->loopLevel() > 1;
}

// A window that is told to close while one of its editors is open (at the end of the desktop's session, for instance) first closes the
// editor, and then itself when the editor's caller has returned.
void FController::closeEvent(QCloseEvent* event)
{
    if (IsBusyInDialog()) {
        event->ignore();
        if (QWidget* editor = QApplication::activeModalWidget()) {
            editor->close();
        }
        QMetaObject::invokeMethod(this, "close", Qt::QueuedConnection);
        return;
    }
    if (!m_recordPages->MayLeave()) {
        return event->ignore();
    }
    if (std::exchange(m_closing, true)) {
        return;
    }
    StorePlace(*this, kPlaceName);
    CloseDown(false);
}

// Enter anywhere on a page presses the button with the keyboard, or else the page's default one, as in a dialog.
void FController::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        return QMainWindow::keyPressEvent(event);
    }
    PressDefaultButton(*m_ui->pages->currentWidget(), focusWidget());
}

} // namespace ptk
