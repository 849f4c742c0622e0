#include "ui/reports/ReportPeople.h"

#include "model/CEmployeeList.h"
#include "model/check/FindingText.h"
#include "office/card/CardFindings.h"
#include "office/overview/OverviewReading.h"
#include "office/overview/OverviewTable.h"
#include "platform/Succeeds.h"
#include "platform/system/Clock.h"
#include "startup/CController.h"
#include "store/CJetDB.h"
#include "ui/boxes/EmployeeModels.h"
#include "ui/page/ChangeNews.h"
#include "ui/page/PageHost.h"
#include "ui/widgets/FindingList.h"
#include "ui/widgets/ThemeIcon.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QListView>

#include <algorithm>
#include <utility>

namespace ptk {

namespace {

constexpr auto kNotChecked = "The employees' time cards could not be checked for problems: ";

constexpr int kSettled = 300;        // milliseconds between the last change of the days and the check
constexpr qint64 kCheckingTime = 30; // milliseconds of checking before keys and mouse are looked at
constexpr int kTryAgain = 5000;      // milliseconds before the next try, where the database could not be read

// The words of an employee's mark: a summary, and each problem in a line of its own, without the notices.
QString MarkOf(const CardCheck& check)
{
    QString words = QString::fromStdString(FindingSummary(check));
    for (const Finding& finding : ShownFindings(check, false)) {
        words += '\n' + QString::fromStdString(SpokenText(finding));
    }
    return words;
}

} // namespace

MarkedEmployees::MarkedEmployees(int size, QObject* parent) : QIdentityProxyModel(parent)
{
    QPixmap blank(size, size);
    blank.fill(Qt::transparent);
    m_blank = QIcon(blank);
}

void MarkedEmployees::Mark(Marks marks)
{
    m_marks = std::move(marks);
    if (rowCount() > 0) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, 0));
    }
}

QVariant MarkedEmployees::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DecorationRole && role != Qt::ToolTipRole && role != Qt::AccessibleDescriptionRole) {
        return QIdentityProxyModel::data(index, role);
    }
    const auto mark = m_marks.find(QIdentityProxyModel::data(index, kEmployeeIDRole).toInt());
    const bool marked = mark != m_marks.end();
    if (role == Qt::DecorationRole) {
        return marked ? ThemeIcon(SeverityIconName(Severity::Problem)) : m_blank; // blank, so that all names begin at one place
    }
    return marked ? QVariant(mark->second) : QVariant();
}

ReportPeople::ReportPeople(PageHost& host, QListView& list, std::function<bool()> isBusy)
    : QObject(&list), m_host(host), m_list(list), m_isBusy(std::move(isBusy)),
      m_employees(new MarkedEmployees(list.fontMetrics().height(), this))
{
    m_employees->setSourceModel(host.EmployeeModels().Offered());
    ShowEmployees(list, m_employees);
    list.setIconSize(QSize(1, 1) * list.fontMetrics().height()); // no higher than the names
    list.installEventFilter(this);
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &ReportPeople::CheckOn);
    connect(m_employees, &QAbstractItemModel::modelReset, this, &ReportPeople::CheckSoon);
    connect(host.EmployeeModels().Offered(), &QAbstractItemModel::modelReset, this, &ReportPeople::GiveBack);
    AfterEachLook(host, *this, [this] { LookAgain(); });
}

ReportPeople::~ReportPeople() = default;

bool ReportPeople::Check(const std::optional<PayPeriod>& days)
{
    const bool same = days == m_days;
    if (!same) {
        m_days = days;
        CheckSoon();
        GiveBack();
    }
    return !same;
}

// Removes all marks, which say nothing about other days, and begins the check when the days have settled.
void ReportPeople::CheckSoon()
{
    m_reading = nullptr;
    m_next.stop();
    m_employees->Mark({});
    if (m_days && m_list.isVisible()) {
        m_next.start(kSettled);
    }
}

bool ReportPeople::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && m_days) {
        m_next.start(m_reading == nullptr ? kSettled : 0);
    } else if (event->type() == QEvent::Hide) {
        m_next.stop();
    }
    return QObject::eventFilter(watched, event);
}

// Begins the check again after a change. The marks stay until everybody has been checked anew.
void ReportPeople::LookAgain()
{
    if (m_reading != nullptr && NewestChange(m_host) != m_asOf) {
        m_reading = nullptr;
        if (m_list.isVisible()) {
            m_next.start(kSettled);
        }
    }
}

void ReportPeople::CheckOn()
{
    if (m_isBusy()) {
        return m_next.start(kSettled);
    }
    const auto check = [this] { m_reading == nullptr ? Begin() : ReadOn(); };
    if (Succeeds(check, [this](const Failure& reason) { m_host.Log(kNotChecked + reason.Description()); })) {
        return;
    }
    m_reading = nullptr;
    m_next.start(kTryAgain);
}

// Begins the check by an access to the database of its own, which does not wait for others.
void ReportPeople::Begin()
{
    const auto controller = m_host.Controller();
    if (controller == nullptr || controller->PTKDatabase() == nullptr || controller->EmployeeList() == nullptr || !m_days) {
        return; // nobody has logged in yet
    }
    const auto database = controller->PTKDatabase()->SecondAccess();
    database->DoNotWait();
    m_asOf = NewestChange(m_host);
    const auto all = controller->EmployeeList();
    const auto listed = m_takenIn.empty() ? OfferedEmployees(*all) : m_takenIn;
    m_reading = std::make_unique<OverviewReading>(database, listed, *m_days, m_host.Clock().Now(), all);
    m_next.start(0);
}

void ReportPeople::ReadOn()
{
    if (!m_reading->IsDone()) {
        QElapsedTimer time;
        time.start();
        m_reading->ReadOn([&] { return time.elapsed() < kCheckingTime; });
        m_next.start(0);
        return;
    }
    ShowMarks();
    emit Checked();
}

void ReportPeople::ShowMarks()
{
    MarkedEmployees::Marks marks;
    for (const OverviewRow& row : m_reading->Result().rows) {
        if (row.check.problems > 0) {
            marks.emplace(row.employee->EmployeeID(), MarkOf(row.check));
        }
    }
    m_employees->Mark(std::move(marks));
}

std::string ReportPeople::ProblemsOfChosen() const
{
    const QModelIndexList chosen = m_list.selectionModel()->selectedRows();
    const auto marked = std::count_if(chosen.begin(), chosen.end(),
                                      [&](const QModelIndex& row) { return m_employees->IsMarked(row.data(kEmployeeIDRole).toInt()); });
    return ProblemShareText(marked, chosen.size());
}

std::string ReportPeople::LeftOut() const
{
    return m_reading != nullptr && m_reading->IsDone() ? LeftOutNews(m_reading->Result().leftOut) : std::string();
}

bool ReportPeople::CanTakeIn() const
{
    return m_reading != nullptr && m_reading->IsDone() && ptk::CanTakeIn(m_reading->Result().leftOut);
}

// Takes in those who were left out, and keeps the order of the overview's rows.
void ReportPeople::TakeIn()
{
    if (!CanTakeIn()) {
        return;
    }
    m_reading->TakeIn();
    std::vector<std::int32_t> numbers;
    for (const OverviewRow& row : m_reading->Result().rows) {
        numbers.push_back(row.employee->EmployeeID());
    }
    const auto all = m_host.Employees();
    m_takenIn.clear();
    for (const std::int32_t number : numbers) {
        if (auto employee = all->GetEmployeeByID(number)) {
            m_takenIn.push_back(std::move(employee));
        }
    }
    m_withTakenIn.SetRows(std::make_shared<EmployeeColumn::Rows>(m_takenIn));
    m_employees->setSourceModel(&m_withTakenIn);
}

void ReportPeople::GiveBack()
{
    if (!m_takenIn.empty()) {
        m_takenIn.clear();
        m_employees->setSourceModel(m_host.EmployeeModels().Offered());
    }
}

} // namespace ptk
