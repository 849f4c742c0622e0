#include "ui/history/HistoryFilter.h"

#include "office/history/EmployeeNames.h"
#include "ui/boxes/ChosenOnly.h"
#include "ui/widgets/FoldingRow.h"
#include "ui_HistoryFilter.h"

#include <algorithm>
#include <utility>

namespace ptk {

namespace {

constexpr auto kAllEmployees = "All employees";
constexpr auto kGone = "%1 (deleted)";
constexpr auto kEverybody = "Everybody";
constexpr auto kAnotherProgram = "Another program";

struct KindChoice
{
    const char* words;
    std::optional<TrailKind> kind;
};

constexpr KindChoice kKinds[] = {
    {"Everything", std::nullopt},        {"Time records", TrailKind::TimeRecords}, {"Employees", TrailKind::People},
    {"Companies", TrailKind::Companies}, {"Options", TrailKind::Options},          {"Restores and imports", TrailKind::Whole},
};

struct ActionChoice
{
    const char* words;
    const char* action;
};

constexpr ActionChoice kActions[] = {{"Any change", ""}, {"Added", "insert"}, {"Changed", "update"}, {"Deleted", "delete"}};

constexpr int kTyping = 400;            // milliseconds after the last key
constexpr int kNameCharacters = 14;     // of a name, shown on the smallest window
constexpr int kMostNameCharacters = 32; // of a name, shown on the largest window

QString Text(const std::string& text)
{
    return QString::fromStdString(text);
}

// Whether the box holds text that is no date. An empty box asks for no day and is no fault.
bool IsFaulty(const DateCombo& box)
{
    return !box.Date() && !box.Text().trimmed().isEmpty();
}

using Entries = std::vector<std::pair<QString, QVariant>>;

bool Holds(const QComboBox& box, const Entries& entries)
{
    bool same = box.count() == static_cast<int>(entries.size());
    for (int i = 0; same && i < box.count(); ++i) {
        const auto& [text, meaning] = entries.at(static_cast<std::size_t>(i));
        same = box.itemText(i) == text && box.itemData(i) == meaning;
    }
    return same;
}

// Fills the box only where its entries have changed: many thousands of them take a moment. Chooses the first entry where `chosen` is gone.
void Refill(QComboBox& box, const Entries& entries, const QVariant& chosen)
{
    if (!Holds(box, entries)) {
        box.clear();
        for (const auto& [text, meaning] : entries) {
            box.addItem(text, meaning);
        }
    }
    box.setCurrentIndex(chosen.isValid() ? std::max(box.findData(chosen), 0) : 0);
}

} // namespace

HistoryFilter::HistoryFilter(QWidget* parent) : QWidget(parent), m_ui(std::make_unique<Ui::HistoryFilter>())
{
    m_ui->setupUi(this);
    LayOut();
    FillFixed();
    Connect();
    ShowScope();
}

HistoryFilter::~HistoryFilter() = default;

std::array<QComboBox*, 4> HistoryFilter::Boxes() const
{
    return {m_ui->cboHistoryEmployee, m_ui->cboHistoryPerson, m_ui->cboHistoryKind, m_ui->cboHistoryAction};
}

// Rows of boxes are broken on a narrow window.
void HistoryFilter::LayOut()
{
    auto* row = new FoldingRow;
    row->addWidget(m_ui->fraKinds);
    row->addWidget(m_ui->fraDays, 1);
    m_ui->layout->insertWidget(0, m_ui->fraPeople);
    m_ui->layout->insertLayout(1, row);
    for (QComboBox* box : {m_ui->cboHistoryEmployee, m_ui->cboHistoryPerson}) {
        box->setMinimumContentsLength(kNameCharacters);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMaximumWidth(box->sizeHint().width() + (kMostNameCharacters - kNameCharacters) * box->fontMetrics().averageCharWidth());
    }
}

void HistoryFilter::FillFixed()
{
    m_ui->cboHistoryEmployee->addItem(kAllEmployees);
    m_ui->cboHistoryPerson->addItem(kEverybody);
    for (const KindChoice& choice : kKinds) {
        m_ui->cboHistoryKind->addItem(choice.words);
    }
    for (const ActionChoice& choice : kActions) {
        m_ui->cboHistoryAction->addItem(choice.words);
    }
}

void HistoryFilter::Connect()
{
    m_typing.setSingleShot(true);
    m_typing.setInterval(kTyping);
    connect(&m_typing, &QTimer::timeout, this, &HistoryFilter::Changed);
    connect(m_ui->cboHistoryEmployee, &QComboBox::activated, this, &HistoryFilter::DropScope);
    for (QComboBox* box : Boxes()) {
        ChooseByTyping(*box);
        connect(box, &QComboBox::activated, this, &HistoryFilter::Changed);
    }
    for (DateCombo* box : {m_ui->dttbHistoryFrom, m_ui->dttbHistoryTo}) {
        connect(box, &DateCombo::Changed, &m_typing, qOverload<>(&QTimer::start));
    }
    connect(m_ui->chkHistoryScope, &QCheckBox::clicked, this, &HistoryFilter::Changed);
    connect(m_ui->cmdHistoryAll, &QPushButton::clicked, this, &HistoryFilter::ShowAll);
}

void HistoryFilter::SetClock(const Clock& clock)
{
    m_ui->dttbHistoryFrom->SetClock(clock);
    m_ui->dttbHistoryTo->SetClock(clock);
}

void HistoryFilter::Fill(const EmployeeNames& employees, const std::vector<std::string>& persons)
{
    QComboBox& whose = *m_ui->cboHistoryEmployee;
    const QVariant employee = m_scope ? QVariant(static_cast<qlonglong>(m_scope->employee)) : whose.currentData();
    Entries entries{{kAllEmployees, {}}};
    for (const std::int64_t id : employees.Present()) {
        entries.emplace_back(Text(employees.Of(id)), static_cast<qlonglong>(id));
    }
    for (const std::int64_t id : employees.Gone()) {
        entries.emplace_back(QString(kGone).arg(Text(employees.Of(id))), static_cast<qlonglong>(id));
    }
    Refill(whose, entries, employee);
    entries = {{kEverybody, {}}};
    for (const std::string& name : persons) {
        entries.emplace_back(Text(name), Text(name));
    }
    entries.emplace_back(kAnotherProgram, QString(""));
    Refill(*m_ui->cboHistoryPerson, entries, m_ui->cboHistoryPerson->currentData());
}

void HistoryFilter::Start(const std::optional<HistoryScope>& scope)
{
    m_typing.stop();
    m_scope = scope;
    for (QComboBox* box : Boxes()) {
        box->setCurrentIndex(0);
    }
    m_ui->dttbHistoryFrom->SetText(QString());
    m_ui->dttbHistoryTo->SetText(QString());
    ShowScope();
}

void HistoryFilter::ShowAll()
{
    Start(std::nullopt);
    emit Changed();
}

// The scope belongs to its employee, so it is dropped when another one is chosen.
void HistoryFilter::DropScope()
{
    m_scope.reset();
    ShowScope();
}

void HistoryFilter::ShowScope()
{
    m_ui->chkHistoryScope->setVisible(m_scope.has_value());
    m_ui->chkHistoryScope->setChecked(m_scope && m_scope->narrows);
    m_ui->chkHistoryScope->setText(m_scope ? '&' + Text(ScopeText(*m_scope)) : QString());
}

std::optional<TrailQuery> HistoryFilter::Query() const
{
    TrailQuery query;
    query.from = m_ui->dttbHistoryFrom->Date();
    query.to = m_ui->dttbHistoryTo->Date();
    if (IsFaulty(*m_ui->dttbHistoryFrom) || IsFaulty(*m_ui->dttbHistoryTo) || (query.from && query.to && *query.to < *query.from)) {
        return std::nullopt;
    }
    if (const QVariant employee = m_ui->cboHistoryEmployee->currentData(); employee.isValid()) {
        query.employee = employee.toLongLong();
    }
    if (const QVariant person = m_ui->cboHistoryPerson->currentData(); person.isValid()) {
        query.person = person.toString().toStdString();
    }
    query.kind = kKinds[m_ui->cboHistoryKind->currentIndex()].kind;
    query.action = kActions[m_ui->cboHistoryAction->currentIndex()].action;
    if (m_scope && m_ui->chkHistoryScope->isChecked()) {
        Narrow(query, *m_scope);
    }
    return query;
}

bool HistoryFilter::Narrows() const
{
    const auto boxes = Boxes();
    return std::any_of(boxes.begin(), boxes.end(), [](const QComboBox* box) { return box->currentIndex() > 0; }) ||
           !m_ui->dttbHistoryFrom->Text().isEmpty() || !m_ui->dttbHistoryTo->Text().isEmpty() || m_scope.has_value();
}

} // namespace ptk
