#include "ui/pages/ReportsPage.h"

#include "model/CEmployeeList.h"
#include "model/PayPeriod.h"
#include "office/ReportRun.h"
#include "office/TimeCardNotices.h"
#include "platform/BusyPointer.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Failure.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
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
#include "ui/widgets/ChosenOnly.h"
#include "ui/widgets/EmployeeModels.h"
#include "ui_ReportsPage.h"

#include <QScopedValueRollback>
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
constexpr auto kBackTip = "Previous period (Alt+Left)";
constexpr auto kNextTip = "Next period (Alt+Right)";
constexpr auto kSameTip = "Take the dates that the Timecards page shows";

constexpr int kNameCharacters = 48; // the list is no wider than names need

// What the user sees is what the report is asked for; a text that is no date is the report's to refuse.
Value ChosenDate(const DateCombo& box)
{
    const auto date = box.Date();
    return date ? Value(*date) : Value(box.Text().toStdString());
}

void SetUsable(QWidget& control, bool usable, const char* reason, const char* use = "")
{
    control.setEnabled(usable);
    control.setToolTip(usable ? use : reason);
}

} // namespace

ReportsPage::ReportsPage(PageHost& host, QWidget* parent) : QWidget(parent), m_host(host), m_ui(std::make_unique<Ui::ReportsPage>())
{
    m_ui->setupUi(this);
    ShowEmployees(*m_ui->lstEmployees, host.EmployeeModels().Offered());
    m_ui->lstEmployees->setMaximumWidth(kNameCharacters * fontMetrics().averageCharWidth());
    m_ui->cboFromDate->SetClock(host.Clock());
    m_ui->cboToDate->SetClock(host.Clock());
    m_ui->cmdGenerate->setEnabled(false);
    ConnectControls();
    ConnectPeriod();
    ConnectEmployees();
    ShowSelected();
}

ReportsPage::~ReportsPage() = default;

void ReportsPage::ConnectControls()
{
    ChooseOnlyDeliberately(*m_ui->cboReports);
    connect(m_ui->cboReports, &QComboBox::currentIndexChanged, this, &ReportsPage::SelectReport);
    connect(m_ui->cboReports, &QComboBox::activated, this, &ReportsPage::SelectReport); // also the entry that was chosen before
    connect(m_ui->cmdGenerate, &QPushButton::clicked, this, &ReportsPage::Generate);
}

// The buttons for dates and employees act when they are pressed: a click by key comes a tenth of a second after the key, and Enter, which
// generates, may be faster.
void ReportsPage::ConnectPeriod()
{
    connect(m_ui->cboFromDate, &DateCombo::Changed, this, &ReportsPage::ChangeFromDate);
    connect(m_ui->cboToDate, &DateCombo::Changed, this, &ReportsPage::ShowStatus);
    connect(m_ui->cmdReportPeriodBack, &QPushButton::pressed, this, [this] { StepPeriod(-1); });
    connect(m_ui->cmdReportPeriodNext, &QPushButton::pressed, this, [this] { StepPeriod(1); });
    connect(m_ui->cmdSamePeriod, &QPushButton::pressed, this, &ReportsPage::TakeTimeCardPeriod);
}

void ReportsPage::ConnectEmployees()
{
    QListView* list = m_ui->lstEmployees;
    connect(m_ui->cmdSelectAll, &QPushButton::pressed, list, &QListView::selectAll);
    connect(m_ui->cmdSelectNone, &QPushButton::pressed, list, &QListView::clearSelection);
    auto* selectNone = new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_A, list);
    selectNone->setContext(Qt::WidgetShortcut);
    connect(selectNone, &QShortcut::activated, list, &QListView::clearSelection);
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ReportsPage::ShowSelected);
    connect(list->model(), &QAbstractItemModel::modelReset, this, &ReportsPage::ShowSelected);
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
    OfferEmployees(entry->needsEmployees);
    ShowStatus();
}

void ReportsPage::OfferDates(ReportDates dates)
{
    const bool period = dates == ReportDates::PayPeriod;
    const char* reason = dates == ReportDates::YearToDate ? kYearTip : kNoDatesTip;
    SetUsable(*m_ui->cboFromDate, period, reason);
    SetUsable(*m_ui->cboToDate, dates != ReportDates::None, kNoDatesTip);
    SetUsable(*m_ui->cmdReportPeriodBack, period, reason, kBackTip);
    SetUsable(*m_ui->cmdReportPeriodNext, period, reason, kNextTip);
    SetUsable(*m_ui->cmdSamePeriod, period, reason, kSameTip);
    if (dates == ReportDates::None) {
        return; // what stands there stays
    }
    const DateTime today = m_host.Clock().Today();
    const ReportPeriod offered = dates == ReportDates::YearToDate ? YearToDate(today) : DefaultPayPeriod(today, PeriodLength());
    m_ui->cboFromDate->SetDate(offered.from);
    m_ui->cboToDate->SetDate(offered.to);
}

void ReportsPage::OfferEmployees(bool needed)
{
    for (QWidget* control : std::initializer_list<QWidget*>{m_ui->lstEmployees, m_ui->cmdSelectAll, m_ui->cmdSelectNone}) {
        SetUsable(*control, needed, kEveryoneTip);
    }
    m_ui->lblSelected->setVisible(needed);
}

void ReportsPage::ShowSelected()
{
    const auto selected = m_ui->lstEmployees->selectionModel()->selectedRows().size();
    const auto all = m_ui->lstEmployees->model()->rowCount();
    m_ui->lblSelected->setText(QString::fromStdString(DescribeSelection(static_cast<std::int32_t>(selected), all)));
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

void ReportsPage::StepPeriod(std::int16_t direction)
{
    const auto step = [&] {
        const auto from = m_ui->cboFromDate->Date();
        const auto period = from ? StepPayPeriod(*from, PeriodLength(), direction) : std::nullopt;
        if (period) {
            m_ui->cboFromDate->SetDate(period->from);
            m_ui->cboToDate->SetDate(period->to);
        }
        return period.has_value();
    };
    if (!Succeeds(step)) {
        Say(timecardnotice::kNotMoved.text);
    }
    ShowStatus();
}

void ReportsPage::TakeTimeCardPeriod()
{
    const PeriodTexts period = m_host.TimeCardPeriod();
    m_ui->cboFromDate->SetText(QString::fromStdString(period.from));
    m_ui->cboToDate->SetText(QString::fromStdString(period.to));
    ShowStatus();
}

void ReportsPage::ShowStatus()
{
    m_host.SetStatusText(kStatusName + m_reportName, (m_ui->cboFromDate->Text() + " - " + m_ui->cboToDate->Text()).toStdString());
}

void ReportsPage::Generate()
{
    m_ui->notice->Clear();
    const std::string name = m_ui->cboReports->currentText().toStdString();
    const ReportEntry* entry = FindReport(name);
    if (entry == nullptr) {
        m_host.Desktop().Show(kNoReportText, kErrorTitle, Icon::Exclamation);
        return;
    }
    const QScopedValueRollback generating(m_generating, true);
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
    case ReportKind::Employee:
        return GenerateEmployeeRecords();
    case ReportKind::PhoneBook:
        return GeneratePhoneBook();
    }
}

template <typename MakeReport>
void ReportsPage::GenerateEach(MakeReport makeReport)
{
    const auto employees = SelectedEmployees();
    ReportRun run{employees->Count()};
    GenerationProgress progress(this, run.wanted);
    while (run.done < run.wanted && progress.GoOn(run.done)) {
        const auto report = makeReport();
        const auto employee = employees->Item(++run.done);
        const bool generated = report->GenerateReport(Required(m_host.Controller())->PTKDatabase(), employee, FromDate(), ToDate());
        if (report->ErrorNumber() != 0) {
            NoteFailure(run, report->Missing());
            m_host.Log(report->ReportName() + ": " + DescribeReport(report->ErrorNumber(), report->Missing(), run));
        }
        if (!generated) {
            ShowFailure(report->ErrorNumber(), report->ReportName());
            progress.Restart();
        }
    }
    Say(DescribeRun(run));
}

void ReportsPage::GenerateReview()
{
    const auto employees = SelectedEmployees();
    ReportRun people{employees->Count()};
    const auto report = m_host.Reports().NewReviewReport();
    const bool complete = [&] {
        GenerationProgress progress(this, people.wanted); // gone before a box opens
        report->Progress([&](std::int32_t done, std::int32_t) {
            people.done = done;
            return progress.GoOn(done);
        });
        return report->GenerateReport(Required(m_host.Controller())->PTKDatabase(), employees, FromDate(), ToDate());
    }();
    report->Progress(nullptr);
    SayOutcome(*report, people);
    if (!complete) {
        ShowFailure(report->ErrorNumber(), report->ReportName());
    }
}

// Neither of the two lists opens a box when it fails, deliberately: the page's line tells it.
void ReportsPage::GenerateEmployeeRecords()
{
    const auto employees = SelectedEmployees();
    const auto report = m_host.Reports().NewEmployeeReport();
    report->GenerateReport(employees);
    SayOutcome(*report, {employees->Count()});
}

void ReportsPage::GeneratePhoneBook()
{
    const auto report = m_host.Reports().NewPhoneBookReport();
    report->GenerateReport(PhoneBookEmployees(*Employees(), AllNames()));
    SayOutcome(*report, {static_cast<std::int32_t>(AllNames().size())});
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

void ReportsPage::SayOutcome(const Report& report, const ReportRun& people)
{
    const std::string outcome = DescribeReport(report.ErrorNumber(), report.Missing(), people);
    if (report.ErrorNumber() != 0) {
        m_host.Log(report.ReportName() + ": " + outcome);
    }
    Say(outcome);
}

void ReportsPage::Say(const std::string& text)
{
    m_ui->notice->Say(QString::fromStdString(text));
}

} // namespace ptk
