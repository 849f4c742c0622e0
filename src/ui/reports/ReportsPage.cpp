#include "ui/reports/ReportsPage.h"

#include "model/CEmployeeList.h"
#include "office/card/TimeCardNotices.h"
#include "office/reports/ReportChoice.h"
#include "office/reports/ReportRun.h"
#include "office/reports/ReportRunner.h"
#include "platform/Failure.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Clock.h"
#include "platform/system/Desktop.h"
#include "platform/text/Value.h"
#include "startup/CController.h"
#include "store/CSystemOptions.h"
#include "ui/boxes/ChosenOnly.h"
#include "ui/boxes/FieldWidth.h"
#include "ui/page/PageHost.h"
#include "ui/profile/FAccountant.h"
#include "ui/reports/OpenReports.h"
#include "ui/reports/ReportPeople.h"
#include "ui/work/WorkProgress.h"
#include "ui_ReportsPage.h"

#include <QScopedValueRollback>
#include <QShortcut>

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kErrorTitle = "Report Generation Error";
constexpr auto kNoReportText = "You must select a report to generate before continuing.";
constexpr auto kFailureText = " : An error occurred generating the report: ";
constexpr auto kStatusName = "Reports : ";

constexpr auto kProgressTitle = "Generate Report";
constexpr auto kProgressText = "Generating for {} employees...";

constexpr auto kReviewTip = "The accountant's table is made for the days of an Accountants Review.";
constexpr auto kAccountantTip = "The review as a table with the columns and signs that your accountant wants";
constexpr auto kNoDays = "Choose a first and a last day.";
constexpr auto kNobody = "Nobody is selected";

constexpr auto kNothingMade = "No report was made";

constexpr auto kTakeIn = "Take &In";

constexpr auto kNoDatesTip = "This report needs no dates.";
constexpr auto kYearTip = "Year-to-date totals start on 1 January.";
constexpr auto kEveryoneTip = "The phone book lists everyone.";
constexpr auto kBackTip = "Previous period (Alt+Left)";
constexpr auto kNextTip = "Next period (Alt+Right)";
constexpr auto kSameTip = "Take the dates that the Timecards page shows";

constexpr int kNameCharacters = 72; // the list is no wider than names need

// The date that the report is asked for, as the user sees it. A text that is no date is left to the report to refuse.
Value ChosenDate(const DateCombo& box)
{
    const auto date = box.Date();
    return date ? Value(*date) : Value(box.Text().toStdString());
}

QModelIndexList SelectedRows(const QListView& list)
{
    QModelIndexList rows = list.selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    return rows;
}

QModelIndexList AllRows(const QListView& list)
{
    QModelIndexList rows;
    for (int row = 0; row < list.model()->rowCount(); ++row) {
        rows << list.model()->index(row, 0);
    }
    return rows;
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
    LimitWidth(*this, fieldwidth::Page);
    m_people = new ReportPeople(host, *m_ui->lstEmployees, [this] { return m_generating; });
    m_ui->lstEmployees->setMaximumWidth(kNameCharacters * fontMetrics().averageCharWidth());
    m_ui->cboFromDate->SetClock(host.Clock());
    m_ui->cboToDate->SetClock(host.Clock());
    m_ui->cmdGenerate->setEnabled(false);
    SetUsable(*m_ui->cmdAccountant, false, kReviewTip);
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
    connect(m_ui->cboReports, &QComboBox::activated, this, &ReportsPage::SelectReport); // for the entry that was chosen before, too
    connect(m_ui->cmdGenerate, &QPushButton::clicked, this, &ReportsPage::Generate);
    connect(m_ui->cmdAccountant, &QPushButton::clicked, this, &ReportsPage::SaveForAccountant);
}

// The buttons for dates and employees act when they are pressed: a click by key comes a tenth of a second after the key, and Enter, which
// generates, may be faster.
void ReportsPage::ConnectPeriod()
{
    connect(m_ui->cboFromDate, &DateCombo::Changed, this, &ReportsPage::ChangeFromDate);
    connect(m_ui->cboToDate, &DateCombo::Changed, this, &ReportsPage::ShowPeriod);
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
    connect(m_people, &ReportPeople::Checked, this, &ReportsPage::TellProblems);
}

bool ReportsPage::FillReportList()
{
    m_ui->cboReports->clear();
    for (const ReportEntry& entry : ReportCatalog()) {
        m_ui->cboReports->addItem(QString::fromUtf8(entry.caption.data(), static_cast<qsizetype>(entry.caption.size())));
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
    OfferEmployees(entry->whom != ReportWhom::Everyone);
    SetUsable(*m_ui->cmdAccountant, entry->kind == ReportKind::Review, kReviewTip, kAccountantTip);
    ShowPeriod();
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
    if (const auto offered = OfferedDays(dates, m_host.Clock().Today(), period ? m_host.PeriodLength() : std::int16_t{0})) {
        m_ui->cboFromDate->SetDate(offered->from);
        m_ui->cboToDate->SetDate(offered->to);
    }
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

void ReportsPage::ChangeFromDate()
{
    if (const auto from = m_ui->cboFromDate->Date()) {
        m_ui->cboToDate->SetDate(PayPeriodFrom(*from, m_host.PeriodLength()).to);
    }
    ShowPeriod();
}

void ReportsPage::StepPeriod(std::int16_t direction)
{
    const auto step = [&] {
        const auto from = m_ui->cboFromDate->Date();
        const auto period = from ? StepPayPeriod(*from, m_host.PeriodLength(), direction) : std::nullopt;
        if (period) {
            m_ui->cboFromDate->SetDate(period->from);
            m_ui->cboToDate->SetDate(period->to);
        }
        return period.has_value();
    };
    if (!Succeeds(step)) {
        Say(timecardnotice::kNotMoved.text);
    }
    ShowPeriod();
}

void ReportsPage::TakeTimeCardPeriod()
{
    const PeriodTexts period = m_host.TimeCardPeriod();
    m_ui->cboFromDate->SetText(QString::fromStdString(period.from));
    m_ui->cboToDate->SetText(QString::fromStdString(period.to));
    ShowPeriod();
}

std::optional<PayPeriod> ReportsPage::Days() const
{
    const auto from = m_ui->cboFromDate->Date();
    const auto to = m_ui->cboToDate->Date();
    return from && to && *from <= *to ? std::optional(PayPeriod{*from, *to}) : std::nullopt;
}

void ReportsPage::ShowPeriod()
{
    ShowStatus();
    const ReportEntry* entry = FindReport(m_reportName);
    if (entry != nullptr) {
        if (m_people->Check(entry->dates == ReportDates::None || entry->whom == ReportWhom::Everyone ? std::nullopt : Days())) {
            ForgetProblems();
        }
        Succeeds([&] { ShowOfferedNotice(*entry); });
    }
}

// Explains the days where they are the offered ones; days that the user has chosen need no explanation.
void ReportsPage::ShowOfferedNotice(const ReportEntry& entry)
{
    std::string notice;
    if (entry.dates == ReportDates::PayPeriod) {
        const DateTime today = m_host.Clock().Today();
        const auto offered = OfferedDays(entry.dates, today, m_host.PeriodLength());
        if (offered && m_ui->cboFromDate->Date() == offered->from && m_ui->cboToDate->Date() == offered->to) {
            notice = OfferedDaysNotice(today, m_host.PeriodLength());
        }
    }
    m_ui->lblOffered->Say(QString::fromStdString(notice));
}

void ReportsPage::ShowStatus()
{
    m_host.SetStatusText(kStatusName + m_reportName, (m_ui->cboFromDate->Text() + " - " + m_ui->cboToDate->Text()).toStdString());
}

void ReportsPage::SaveForAccountant()
{
    m_ui->notice->Clear();
    const auto days = Days();
    if (!days) {
        return Say(kNoDays);
    }
    const QScopedValueRollback generating(m_generating, true);
    Succeeds([&] { OpenAccountant(*days); }, [this](const Failure& reason) { Say(reason.Description()); });
}

void ReportsPage::OpenAccountant(const PayPeriod& days)
{
    const auto controller = Required(m_host.Controller());
    AccountantOrder order{{controller->PTKDatabase(), {}, days, m_host.Clock().Now()}};
    order.people.people = PeopleOfReview(*m_host.Employees(), Names(ReportWhom::Together), order.notices);
    if (order.people.people.empty()) {
        return Say(kNobody);
    }
    FAccountant(this, m_host.Desktop(), std::move(order)).exec();
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
    Succeeds([&] { Run(*entry); }, [&](const Failure& reason) { ShowFailure(reason.Number(), name); });
    m_outcome = m_ui->notice->Text();
    m_told = m_outcome;
    TellProblems();
}

// Called after a run, and again when everybody has been checked, which may come later.
void ReportsPage::TellProblems()
{
    if (m_ui->notice->Text() != m_told) {
        return;
    }
    QStringList parts{m_outcome, m_outcome.isEmpty() ? QString() : QString::fromStdString(m_people->ProblemsOfChosen()),
                      QString::fromStdString(m_people->LeftOut())};
    parts.removeAll(QString());
    const QString told = parts.join(". ");
    if (m_people->CanTakeIn()) {
        m_ui->notice->Suggest(told, kTakeIn, [this] { Succeeds([this] { TakeIn(); }); });
    } else if (told != m_told) {
        m_ui->notice->Say(told);
    }
    m_told = told;
}

// Takes the problems out of the line when the days change, because they belong to other days.
void ReportsPage::ForgetProblems()
{
    if (m_told != m_outcome && m_ui->notice->Text() == m_told) {
        m_ui->notice->Say(m_outcome);
        m_told = m_outcome;
    }
}

void ReportsPage::TakeIn()
{
    m_people->TakeIn();
    m_told = m_outcome;
    m_ui->notice->Say(m_outcome);
}

// The page as the client of a run: shows its progress, its outcome and its failures.
class ReportsPage::Client final : public ReportClient
{
public:
    Client(ReportsPage& page, const ReportOrder& order)
        : m_page(page), m_entry(order.report),
          m_progress(std::make_unique<WorkProgress>(&page, ProgressWords{kProgressTitle, fmt::format(kProgressText, order.names.size())})),
          m_all(static_cast<std::int32_t>(order.names.size()))
    {
    }

    std::shared_ptr<Report> NewReport(const ReportEntry& entry) override { return m_page.m_host.Reports().NewReport(entry); }
    bool GoOn(std::int32_t done) override { return m_progress->GoOn(done, m_all); }
    void Say(const std::string& outcome) override { m_page.Say(outcome); }
    void Made(Report& report, bool complete, const std::string& outcome) override;

private:
    void ShowFailure(const Report& report);

    ReportsPage& m_page;
    const ReportEntry& m_entry;
    std::unique_ptr<WorkProgress> m_progress;
    std::int32_t m_all; // how many employees
};

void ReportsPage::Client::Made(Report& report, bool complete, const std::string& outcome)
{
    if (report.ErrorNumber() != 0) {
        m_page.m_host.Log(report.ErrorNumber(), report.ReportName() + ": " + outcome);
    }
    if (!complete && m_entry.tellsFailures && !m_progress->IsCancelled()) {
        ShowFailure(report);
    }
}

void ReportsPage::Client::ShowFailure(const Report& report)
{
    const bool more = m_entry.whom == ReportWhom::Each;
    if (!more) {
        m_progress = nullptr; // ended before the box opens
    }
    m_page.ShowFailure(report.ErrorNumber(), report.ReportName());
    if (more) {
        m_progress->Restart();
    }
}

void ReportsPage::Run(const ReportEntry& entry)
{
    const BusyPointer busy(m_host.Desktop());
    const auto controller = Required(m_host.Controller());
    const ReportOrder order{entry,
                            controller->PTKDatabase(),
                            m_host.Employees(),
                            Names(entry.whom),
                            ChosenDate(*m_ui->cboFromDate),
                            ChosenDate(*m_ui->cboToDate)};
    if (!MayOpenWindows(order)) {
        return Say(kNothingMade);
    }
    const QtViewerFactory::OpensBehind behind(m_host.Reports().Viewers());
    Client client(*this, order);
    RunReports(order, client);
}

bool ReportsPage::MayOpenWindows(const ReportOrder& order)
{
    const auto question = ManyWindowsQuestion(order.report.whom, order.names.size());
    return !question || m_host.Desktop().MessageBox(*question, kProgressTitle, Icon::Question, Buttons::YesNo) == Answer::Yes;
}

std::vector<std::string> ReportsPage::Names(ReportWhom whom) const
{
    std::vector<std::string> names;
    for (const QModelIndex& row : whom == ReportWhom::Everyone ? AllRows(*m_ui->lstEmployees) : SelectedRows(*m_ui->lstEmployees)) {
        names.push_back(row.data().toString().toStdString());
    }
    return names;
}

void ReportsPage::ShowFailure(std::int32_t errorNumber, const std::string& reportName)
{
    m_host.Desktop().Show(std::to_string(errorNumber) + kFailureText + reportName, kErrorTitle, Icon::Exclamation);
}

void ReportsPage::Say(const std::string& text)
{
    m_ui->notice->Say(QString::fromStdString(text));
}

} // namespace ptk
