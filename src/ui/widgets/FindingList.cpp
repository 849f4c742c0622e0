#include "ui/widgets/FindingList.h"

#include "office/card/CardFindings.h"
#include "ui/widgets/ThemeIcon.h"

#include <QKeyEvent>
#include <QStyle>

namespace ptk {

namespace {

constexpr auto kName = "Findings";
constexpr int kRowSpace = 4; // pixels, above and below a sentence together
constexpr std::size_t kMostBroken = 200;

} // namespace

QString SeverityIconName(Severity severity)
{
    return severity == Severity::Problem ? "problem" : "notice";
}

void FindingModel::SetFindings(std::vector<Finding> findings)
{
    beginResetModel();
    m_findings = std::move(findings);
    endResetModel();
}

int FindingModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_findings.size());
}

QVariant FindingModel::data(const QModelIndex& index, int role) const
{
    const Finding& finding = m_findings.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromStdString(finding.text);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return QString::fromStdString(SpokenText(finding));
    case Qt::DecorationRole:
        return ThemeIcon(SeverityIconName(SeverityOf(finding.kind)));
    default:
        return {};
    }
}

FindingList::FindingList(QWidget* parent) : QListView(parent), m_findings(new FindingModel(this))
{
    setModel(m_findings);
    setAccessibleName(kName);
    setWordWrap(true);
    const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    setIconSize({icon, icon});
    setResizeMode(QListView::Adjust);
    setLayoutMode(QListView::Batched);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    connect(this, &QListView::clicked, this, &FindingList::Choose);
    connect(this, &QListView::doubleClicked, this, &FindingList::Enter);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &FindingList::Choose);
}

void FindingList::Show(std::vector<Finding> findings)
{
    const bool few = findings.size() <= kMostBroken;
    setWordWrap(few);
    setUniformItemSizes(!few);
    m_findings->SetFindings(std::move(findings));
}

void FindingList::KeepRoom(int lines)
{
    setMinimumHeight(lines * (fontMetrics().lineSpacing() + kRowSpace) + 2 * frameWidth());
}

QSize FindingList::sizeHint() const
{
    return {QListView::sizeHint().width(), minimumHeight()};
}

const Finding* FindingList::Current() const
{
    const auto chosen = selectionModel()->selectedIndexes();
    return chosen.isEmpty() ? nullptr : &m_findings->Findings().at(static_cast<std::size_t>(chosen.first().row()));
}

void FindingList::ChooseRow(std::size_t row)
{
    setCurrentIndex(m_findings->index(static_cast<int>(row)));
    if (isVisible()) {
        setFocus();
    }
}

void FindingList::Choose()
{
    if (const Finding* finding = Current()) {
        emit Chosen(*finding);
    }
}

void FindingList::Enter()
{
    if (const Finding* finding = Current()) {
        emit Entered(Finding(*finding)); // a copy: what follows may fill the list anew
    }
}

void FindingList::AskToDelete()
{
    if (const Finding* finding = Current()) {
        emit DeleteAsked(Finding(*finding)); // a copy: what follows may fill the list anew
    }
}

// Where the Tab key brings the keyboard, the first sentence is chosen, so that a screen reader says it.
void FindingList::focusInEvent(QFocusEvent* event)
{
    QListView::focusInEvent(event);
    const bool byKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byKey && Current() == nullptr && m_findings->rowCount() > 0) {
        setCurrentIndex(m_findings->index(0));
    }
}

void FindingList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        return Enter();
    }
    if (event->key() == Qt::Key_Delete) {
        return AskToDelete();
    }
    QListView::keyPressEvent(event);
}

} // namespace ptk
