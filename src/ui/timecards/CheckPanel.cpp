#include "ui/timecards/CheckPanel.h"

#include "model/check/FindingText.h"
#include "model/payday/PaidText.h"
#include "office/card/CardFindings.h"
#include "office/card/CheckedTimecard.h"
#include "ui/timecards/RemedyRow.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/FindingList.h"
#include "ui/widgets/FoldingRow.h"
#include "ui/widgets/HintLabel.h"
#include "ui/widgets/HoursChart.h"
#include "ui/widgets/ThemeIcon.h"
#include "ui/work/KeepSettings.h"

#include <QLabel>
#include <QMenu>
#include <QSettings>
#include <QToolButton>

namespace ptk {

namespace {

constexpr auto kLineDescription = "Shows or hides the sentences of the check";
constexpr auto kOpenTip = "Show what was found (Alt+L)";
constexpr auto kCloseTip = "Hide what was found (Alt+L)";
constexpr auto kLineKeys = "Alt+L";
constexpr auto kEditHint = "Enter edits the record";
constexpr auto kEditLine = "Edit the Record";
constexpr auto kDeleteLine = "Delete the Record";
constexpr auto kHoursCaption = "Hours per day:";
constexpr auto kHoursHint = "The hours of a generated card stand here. F9 shows everybody's pay and problems.";

constexpr auto kHoursKey = "timecards/hours";
constexpr int kListLines = 4;
constexpr int kLeastWidth = 320; // pixels, of the list and of the hours
constexpr int kSpace = 6;

QIcon IconOf(const CardCheck& check)
{
    if (check.problems > 0) {
        return ThemeIcon(SeverityIconName(Severity::Problem));
    }
    return ThemeIcon(check.notices > 0 ? SeverityIconName(Severity::Notice) : "fine");
}

} // namespace

CheckPanel::CheckPanel(QWidget* parent)
    : QWidget(parent), m_line(new QToolButton(this)), m_paid(new ElidedLabel(this)), m_detail(new HintLabel(this)),
      m_list(new FindingList(this)), m_remedies(new RemedyRow(this)), m_legend(new QWidget(this)), m_chart(new HoursChart(this))
{
    m_line->setObjectName("cmdFindings");
    m_line->setAccessibleDescription(kLineDescription);
    m_line->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_paid->setObjectName("lblPaid");
    m_detail->setObjectName("lblFindings");
    m_list->setObjectName("lstFindings");
    m_list->KeepRoom(kListLines);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    m_chart->setObjectName("lstHours");
    m_chart->SetHint(kHoursHint);
    const bool hours = QSettings().value(kHoursKey, true).toBool();
    m_legend->setVisible(hours);
    m_chart->setVisible(hours);
    LayOut();
    connect(m_line, &QToolButton::clicked, this, [this] {
        m_open = m_line->isChecked();
        ShowParts();
    });
    connect(m_list, &FindingList::Chosen, this, &CheckPanel::Choose);
    connect(m_list, &FindingList::Entered, this, &CheckPanel::Edit);
    connect(m_list, &FindingList::DeleteAsked, this, &CheckPanel::Delete);
    connect(m_list, &QWidget::customContextMenuRequested, this, &CheckPanel::ShowMenu);
    connect(m_remedies, &RemedyRow::Wanted, this, &CheckPanel::RemedyWanted);
    Show(nullptr);
}

// Lays out the line beside the legend, and the list beside the hours, where there is room.
void CheckPanel::LayOut()
{
    auto* line = new QHBoxLayout;
    line->addWidget(m_line);
    line->addWidget(m_paid);
    line->addWidget(m_detail, 1);
    auto* legend = new QHBoxLayout(m_legend);
    legend->setContentsMargins(0, 0, 0, 0);
    legend->addWidget(new QLabel(kHoursCaption));
    legend->addWidget(new HoursLegend);
    auto* top = new FoldingRow;
    top->addLayout(line, 1);
    top->addWidget(m_legend);
    for (QWidget* part : {static_cast<QWidget*>(m_list), static_cast<QWidget*>(m_chart)}) {
        part->setMinimumWidth(kLeastWidth);
    }
    auto* parts = new FoldingRow;
    parts->addWidget(m_list, 1);
    parts->addWidget(m_chart, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kSpace);
    column->addLayout(top);
    column->addLayout(parts);
    column->addWidget(m_remedies);
    QSizePolicy keepsPlace = m_line->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    m_line->setSizePolicy(keepsPlace);
}

void CheckPanel::Show(std::shared_ptr<const CheckedTimecard> checked)
{
    m_checked = std::move(checked);
    const bool has = m_checked != nullptr && m_checked->check;
    m_list->Show(has ? ShownFindings(*m_checked->check, m_checked->limits.showNotices) : std::vector<Finding>());
    m_remedies->Show({});
    ShowLine();
    ShowColumns();
    ShowParts();
}

void CheckPanel::ShowLine()
{
    const bool has = m_checked != nullptr && m_checked->check;
    m_line->setVisible(has);
    m_detail->Say(m_checked == nullptr ? QString() : QString::fromStdString(FindingDetailText(*m_checked)));
    const bool paid = m_checked != nullptr && m_checked->paid;
    m_paid->setText(paid ? QString::fromStdString(PaidText(*m_checked->paid) + ": " + PaidFigures(*m_checked->paid)) : QString());
    m_paid->setVisible(paid);
    if (has) {
        m_line->setText(QString::fromStdString(FindingLineText(*m_checked)));
        m_line->setShortcut(QKeySequence(kLineKeys)); // a new text has taken it away
        m_line->setIcon(IconOf(*m_checked->check));
    }
}

void CheckPanel::ShowColumns()
{
    const bool has = m_checked != nullptr && m_checked->check && HoursShown();
    m_chart->Show(has ? HoursColumns(*m_checked->check, m_checked->period, m_checked->limits.firstWeekday) : std::vector<HoursColumn>());
}

// Shows the parts that the line opens. Where there is nothing to open, the line can be read, but not pressed.
void CheckPanel::ShowParts()
{
    const bool opens = m_list->model()->rowCount() > 0;
    m_line->setCheckable(opens);
    m_line->setAutoRaise(!opens);
    m_line->setChecked(opens && m_open);
    m_line->setFocusPolicy(opens ? Qt::StrongFocus : Qt::NoFocus);
    m_line->setToolTip(!opens ? "" : m_open ? kCloseTip : kOpenTip);
    m_list->setVisible(opens && m_open);
    m_remedies->setVisible(opens && m_open);
}

void CheckPanel::SetStrange(bool strange)
{
    m_chart->setEnabled(!strange);
}

bool CheckPanel::HoursShown() const
{
    return !m_chart->isHidden();
}

void CheckPanel::OpenList()
{
    m_open = true;
    ShowParts();
}

std::optional<Finding> CheckPanel::Chosen() const
{
    const Finding* chosen = m_list->isHidden() ? nullptr : m_list->Current();
    return chosen == nullptr ? std::nullopt : std::optional(*chosen);
}

bool CheckPanel::ChooseNext(const std::optional<Finding>& done)
{
    const auto next = m_checked == nullptr || m_list->isHidden() ? std::nullopt : NextToMend(*m_checked, done);
    if (next) {
        m_list->ChooseRow(*next);
    }
    return next.has_value();
}

void CheckPanel::ShowHours(bool shown)
{
    m_legend->setVisible(shown);
    m_chart->setVisible(shown);
    KeepSettings({{kHoursKey, shown}});
    ShowColumns();
}

// Sends both signals, since a part of the finding's records may be on the card and a part elsewhere.
void CheckPanel::Choose(const Finding& finding)
{
    const FindingPlace place = PlaceOf(finding, *m_checked);
    m_remedies->Show(OffersFor(finding, *m_checked), finding.records.empty() ? "" : kEditHint);
    emit RowsWanted(place.onCard);
    emit Elsewhere(place);
}

// Shows the menu of the finding, which the key or the click has already chosen.
void CheckPanel::ShowMenu(const QPoint& place)
{
    const auto chosen = Chosen();
    if (!chosen) {
        return;
    }
    QMenu menu(this);
    m_remedies->AddTo(menu);
    if (!chosen->records.empty()) {
        menu.addSeparator();
        connect(menu.addAction(kEditLine), &QAction::triggered, this, [&] { Edit(*chosen); });
        connect(menu.addAction(kDeleteLine), &QAction::triggered, this, [&] { Delete(*chosen); });
    }
    menu.exec(m_list->viewport()->mapToGlobal(place));
}

void CheckPanel::Edit(const Finding& finding)
{
    const FindingPlace place = PlaceOf(finding, *m_checked);
    if (!place.onCard.empty()) {
        emit RowsWanted(place.onCard);
        emit EditAsked();
    } else if (!place.elsewhere.empty()) {
        emit EditElsewhereAsked(*place.elsewhere.front());
    }
}

void CheckPanel::Delete(const Finding& finding)
{
    const FindingPlace place = PlaceOf(finding, *m_checked);
    if (!place.onCard.empty()) {
        emit RowsWanted(place.onCard);
        emit DeleteAsked();
    } else if (!place.elsewhere.empty()) {
        emit DeleteElsewhereAsked(*place.elsewhere.front());
    }
}

} // namespace ptk
