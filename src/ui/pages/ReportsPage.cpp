#include "ui/pages/ReportsPage.h"

#include "model/CEmployeeList.h"
#include "platform/BusyPointer.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Failure.h"
#include "platform/Required.h"
#include "platform/Value.h"
#include "reports/CReportEmployee.h"
#include "reports/CReportPhoneBook.h"
#include "reports/CReportReview.h"
#include "reports/CReportTimeCard.h"
#include "reports/CReportYTDTotals.h"
#include "startup/CController.h"
#include "store/CSystemOptions.h"
#include "ui/dialogs/GenerationProgress.h"
#include "ui/OpenReports.h"
#include "ui/pages/PageHost.h"
#include "ui/widgets/EmployeeModels.h"
#include "ui_ReportsPage.h"

#include <QShortcut>

#include <algorithm>

namespace ptk {

namespace {

constexpr auto kErrorTitle = "Report Generation Error";
constexpr auto kNoReportText = "You must select a report to generate before continuing.";
constexpr auto kFailureText = " : An error occurred generating the report: ";
constexpr auto kStatusName = "Reports : ";

constexpr auto kNoDatesTip = "This report needs no dates.";
constexpr auto kYearTip = "Year-to-date totals start on 1 January.";
constexpr auto kEveryoneTip = "The phone book lists everyone.";

// What the user sees is what the report is asked for; a text that is no date is the report's to refuse.
Value ChosenDate(const DateCombo& box)
{
    const auto date = box.Date();
    return date ? Value(*date) : Value(box.Text().toStdString());
}

void SetUsable(QWidget& control, bool usable, const char* reason)
{
    control.setEnabled(usable);
    control.setToolTip(usable ? "" : reason);
}

} // namespace

ReportsPage::ReportsPage(PageHost& host, QWidget* parent) : QWidget(parent), m_host(host), m_ui(std::make_unique<Ui::ReportsPage>())
{
    m_ui->setupUi(this);
    ShowEmployees(*m_ui->lstEmployees, host.EmployeeModels().Offered());
    m_ui->cboFromDate->SetClock(host.Clock());
    m_ui->cboToDate->SetClock(host.Clock());
    m_ui->cmdGenerate->setEnabled(false);
    ConnectControls();
}

ReportsPage::~ReportsPage() = default;

void ReportsPage::ConnectControls()
{
    connect(m_ui->cboReports, &QComboBox::currentIndexChanged, this, &ReportsPage::SelectReport);
    connect(m_ui->cboReports, &QComboBox::activated, this, &ReportsPage::SelectReport); // also the entry that was chosen before
    connect(m_ui->cboFromDate, &DateCombo::Changed, this, &ReportsPage::ChangeFromDate);
    connect(m_ui->cboToDate, &DateCombo::Changed, this, &ReportsPage::ShowStatus);
    connect(m_ui->cmdGenerate, &QPushButton::clicked, this, &ReportsPage::Generate);
    connect(m_ui->cmdSelectAll, &QPushButton::clicked, m_ui->lstEmployees, &QListView::selectAll);
    connect(m_ui->cmdSelectNone, &QPushButton::clicked, m_ui->lstEmployees, &QListView::clearSelection);
    auto* selectNone = new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_A, m_ui->lstEmployees);
    selectNone->setContext(Qt::WidgetShortcut);
    connect(selectNone, &QShortcut::activated, m_ui->lstEmployees, &QListView::clearSelection);
}

bool ReportsPage::FillReportList()
{
    m_ui->cboReports->clear();
    for (const ReportEntry& entry : ReportCatalog()) {
        m_ui->cboReports->addItem(QString::fromUtf8(entry.name.data(), static_cast<int>(entry.name.size())));
    }
    m_ui->cboReports->setCurrentIndex(-1);
    return true;
}

bool ReportsPage::SelectFirstReport()
{
    m_ui->cboReports->setCurrentIndex(0);
    return m_ui->cboReports->currentIndex() == 0;
}

void ReportsPage::EnableGenerate()
{
    m_ui->cmdGenerate->setEnabled(true);
}

void ReportsPage::SelectReport()
{
    m_reportName = m_ui->cboReports->currentText().toStdString();
    const ReportEntry* entry = FindReport(m_reportName);
    if (entry == nullptr) {
        return;
    }
    OfferDates(entry->dates);
    for (QWidget* control : {static_cast<QWidget*>(m_ui->lstEmployees), static_cast<QWidget*>(m_ui->cmdSelectAll),
                             static_cast<QWidget*>(m_ui->cmdSelectNone)}) {
        SetUsable(*control, entry->needsEmployees, kEveryoneTip);
    }
    ShowStatus();
}

void ReportsPage::OfferDates(ReportDates dates)
{
    SetUsable(*m_ui->cboFromDate, dates == ReportDates::PayPeriod, dates == ReportDates::YearToDate ? kYearTip : kNoDatesTip);
    SetUsable(*m_ui->cboToDate, dates != ReportDates::None, kNoDatesTip);
    if (dates == ReportDates::None) {
        return; // what stands there stays
    }
    const DateTime today = m_host.Clock().Today();
    const ReportPeriod period = dates == ReportDates::YearToDate ? YearToDate(today) : DefaultPayPeriod(today, PeriodLength());
    m_ui->cboFromDate->SetDate(period.from);
    m_ui->cboToDate->SetDate(period.to);
}

std::int16_t ReportsPage::PeriodLength() const
{
    return Required(Required(m_host.Controller())->SystemOptions())->PeriodLength();
}

void ReportsPage::ChangeFromDate()
{
    if (const auto from = m_ui->cboFromDate->Date()) {
        m_ui->cboToDate->SetDate(PeriodEnd(*from, PeriodLength()));
    }
    ShowStatus();
}

void ReportsPage::ShowStatus()
{
    m_host.SetStatusText(kStatusName + m_reportName, (m_ui->cboFromDate->Text() + " - " + m_ui->cboToDate->Text()).toStdString());
}

void ReportsPage::Generate()
{
    const std::string name = m_ui->cboReports->currentText().toStdString();
    const ReportEntry* entry = FindReport(name);
    if (entry == nullptr) {
        m_host.Desktop().Show(kNoReportText, kErrorTitle, Icon::Exclamation);
        return;
    }
    try {
        GenerateKind(entry->kind);
    } catch (...) {
        ShowFailure(CurrentFailure().Number(), name);
    }
}

void ReportsPage::GenerateKind(ReportKind kind)
{
    OpenReports& reports = m_host.Reports();
    const BusyPointer busy(m_host.Desktop());
    switch (kind) {
    case ReportKind::TimeCard:
        return GenerateEach([&] { return reports.NewTimeCardReport(); });
    case ReportKind::Review:
        return GenerateReview();
    case ReportKind::YTDTotals:
        return GenerateEach([&] { return reports.NewYTDTotalsReport(); });
    case ReportKind::Employee: // neither of the two lists tells the user of a failure, deliberately
        reports.NewEmployeeReport()->GenerateReport(SelectedEmployees());
        return;
    case ReportKind::PhoneBook:
        reports.NewPhoneBookReport()->GenerateReport(PhoneBookEmployees(*Employees(), AllNames()));
        return;
    }
}

template <typename MakeReport>
void ReportsPage::GenerateEach(MakeReport makeReport)
{
    const auto employees = SelectedEmployees();
    const std::int32_t count = employees->Count();
    GenerationProgress progress(this, count);
    for (std::int32_t i = 1; i <= count && progress.GoOn(i - 1); ++i) {
        const auto report = makeReport();
        if (!report->GenerateReport(Required(m_host.Controller())->PTKDatabase(), employees->Item(i), FromDate(), ToDate())) {
            ShowFailure(report->ErrorNumber(), report->ReportName());
        }
    }
}

void ReportsPage::GenerateReview()
{
    const auto employees = SelectedEmployees();
    GenerationProgress progress(this, employees->Count());
    const auto report = m_host.Reports().NewReviewReport();
    report->Progress([&](std::int32_t done, std::int32_t) { return progress.GoOn(done); });
    const bool complete = report->GenerateReport(Required(m_host.Controller())->PTKDatabase(), employees, FromDate(), ToDate());
    report->Progress(nullptr);
    progress.reset();
    if (!complete) {
        ShowFailure(report->ErrorNumber(), report->ReportName());
    }
}

std::shared_ptr<CEmployeeList> ReportsPage::Employees() const
{
    return Required(Required(m_host.Controller())->EmployeeList());
}

std::shared_ptr<CEmployeeList> ReportsPage::SelectedEmployees() const
{
    return EmployeesByName(*Employees(), SelectedNames());
}

std::vector<std::string> ReportsPage::SelectedNames() const
{
    QModelIndexList rows = m_ui->lstEmployees->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    std::vector<std::string> names;
    for (const QModelIndex& row : rows) {
        names.push_back(row.data().toString().toStdString());
    }
    return names;
}

std::vector<std::string> ReportsPage::AllNames() const
{
    const QAbstractItemModel& lines = *m_ui->lstEmployees->model();
    std::vector<std::string> names;
    for (int row = 0; row < lines.rowCount(); ++row) {
        names.push_back(lines.index(row, 0).data().toString().toStdString());
    }
    return names;
}

Value ReportsPage::FromDate() const
{
    return ChosenDate(*m_ui->cboFromDate);
}

Value ReportsPage::ToDate() const
{
    return ChosenDate(*m_ui->cboToDate);
}

void ReportsPage::ShowFailure(std::int32_t errorNumber, const std::string& reportName)
{
    m_host.Desktop().Show(std::to_string(errorNumber) + kFailureText + reportName, kErrorTitle, Icon::Exclamation);
}

} // namespace ptk
