#include "ui/mend/FMendSeveral.h"

#include "office/card/CardTexts.h"
#include "ui/mend/MendModel.h"
#include "ui/widgets/FixedRows.h"
#include "ui_FMendSeveral.h"

#include <algorithm>
#include <QEvent>
#include <QShortcut>

namespace ptk {

namespace {

constexpr auto kTicked = "%1 of %2 ticked, for %3";
constexpr auto kNoneTicked = "Nothing is ticked: Space ticks the chosen line";
constexpr auto kMended = "%1 mended for %2; Edit > Undo (Ctrl+Z) takes it back";
constexpr auto kNoTime = "\"%1\" is no time of day";
constexpr auto kWhyMended = "Some of this was paid already: say why it is changed, or save without a reason";
constexpr auto kSaveTip = "Store all that is ticked as one step (Enter)";

constexpr QSize kMendSize(940, 560);
constexpr QSize kLeastMendSize(480, 340);
constexpr int kColumnRoom = 24;
constexpr int kTickRoom = 28;
constexpr int kMostCharacters = 34;    // of any column except the findings
constexpr int kFindingCharacters = 30; // of the findings, at least
constexpr int kHintLines = 2;

QString Counted(std::size_t count, const char* thing)
{
    return QString::fromStdString(CountText(static_cast<std::int64_t>(count), thing));
}

QString Persons(std::size_t count)
{
    return count == 1 ? QString("1 person") : QString("%1 people").arg(count);
}

} // namespace

FMendSeveral::FMendSeveral(QWidget* parent, MendPlan plan, const ReasonLine& reasons, Storer storer)
    : QDialog(parent), m_ui(std::make_unique<Ui::FMendSeveral>()), m_plan(std::move(plan)), m_rows(new MendModel(m_plan, this)),
      m_storer(std::move(storer))
{
    m_ui->setupUi(this);
    setMinimumSize(kLeastMendSize);
    resize(kMendSize);
    m_ui->lblMendFinding->KeepRoom(kHintLines);
    m_ui->cboReason->Offer(reasons);
    PrepareTable();
    Connect();
    ShowTicked();
    FitColumns();
    m_ui->grdMend->setFocus();
    m_ui->grdMend->setCurrentIndex(m_rows->index(0, static_cast<int>(MendColumn::End)));
}

FMendSeveral::~FMendSeveral() = default;

void FMendSeveral::PrepareTable()
{
    QTableView* table = m_ui->grdMend;
    table->setModel(m_rows);
    FixRows(*table);
    table->viewport()->installEventFilter(this);
}

void FMendSeveral::Connect()
{
    const auto onKey = [this](Qt::Key key, auto action) {
        connect(new QShortcut(key, m_ui->grdMend, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this, action);
    };
    onKey(Qt::Key_Space, [this] { Toggle(); });
    onKey(Qt::Key_F2, [this] { EditEnd(); });
    connect(m_rows, &MendModel::Changed, this, &FMendSeveral::ShowTicked);
    connect(m_rows, &MendModel::Refused, this, [this](const QString& text) { m_ui->lblMendFinding->Say(QString(kNoTime).arg(text)); });
    connect(m_ui->grdMend->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &FMendSeveral::ShowLine);
    connect(m_ui->chkMendable, &QCheckBox::toggled, this, &FMendSeveral::ShowOnlyMendable);
    connect(m_ui->cmdSave, &QPushButton::clicked, this, &FMendSeveral::Save);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

// The column of findings takes the width that the others leave.
void FMendSeveral::FitColumns()
{
    QTableView* table = m_ui->grdMend;
    const QFontMetrics metrics = table->fontMetrics();
    int rest = table->viewport()->width();
    for (int column = 0; column < m_rows->columnCount(); ++column) {
        if (static_cast<MendColumn>(column) == MendColumn::Finding) {
            continue;
        }
        int width = metrics.horizontalAdvance(m_rows->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        for (int row = 0; row < m_rows->rowCount(); ++row) {
            width = std::max(width, metrics.horizontalAdvance(m_rows->index(row, column).data().toString()));
        }
        const bool name = static_cast<MendColumn>(column) == MendColumn::Name;
        width = std::min(width, kMostCharacters * metrics.averageCharWidth()) + (name ? kTickRoom : 0) + kColumnRoom;
        table->setColumnWidth(column, width);
        rest -= width;
    }
    table->setColumnWidth(static_cast<int>(MendColumn::Finding), std::max(rest, kFindingCharacters * metrics.averageCharWidth()));
}

bool FMendSeveral::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        FitColumns();
    }
    return QDialog::eventFilter(watched, event);
}

void FMendSeveral::ShowOnlyMendable(bool only)
{
    for (int row = 0; row < m_rows->rowCount(); ++row) {
        m_ui->grdMend->setRowHidden(row, only && !m_plan.Lines()[static_cast<std::size_t>(row)].remedy);
    }
}

void FMendSeveral::ShowTicked()
{
    const std::size_t ticked = m_plan.Ticked();
    m_ui->lblMendTicked->setText(
        ticked == 0 ? QString(kNoneTicked)
                    : QString(kTicked).arg(ticked).arg(Counted(m_plan.Lines().size(), "finding"), Persons(m_plan.PeopleTicked())));
    m_ui->cmdSave->setEnabled(ticked > 0);
    m_ui->cmdSave->setToolTip(ticked > 0 ? kSaveTip : kNoneTicked);
}

// Shows the whole finding of the current row below the table, because its cell may be too narrow.
void FMendSeveral::ShowLine()
{
    const QModelIndex current = m_ui->grdMend->currentIndex();
    m_ui->lblMendFinding->Say(current.isValid() ? current.siblingAtColumn(static_cast<int>(MendColumn::Finding)).data().toString()
                                                : QString());
}

void FMendSeveral::EditEnd()
{
    const QModelIndex end = m_ui->grdMend->currentIndex().siblingAtColumn(static_cast<int>(MendColumn::End));
    if (end.isValid() && end.flags().testFlag(Qt::ItemIsEditable)) {
        m_ui->grdMend->setCurrentIndex(end);
        m_ui->grdMend->edit(end);
    }
}

void FMendSeveral::Toggle()
{
    const QModelIndex current = m_ui->grdMend->currentIndex();
    if (current.isValid()) {
        m_rows->Toggle(current.row());
    }
}

void FMendSeveral::Save()
{
    if (m_ui->cboReason->AsksForIt()) {
        return m_ui->lblMendFinding->Say(kWhyMended);
    }
    const std::size_t ticked = m_plan.Ticked();
    const QString refusal = m_storer(m_plan, m_ui->cboReason->Reason());
    if (!refusal.isEmpty()) {
        return m_ui->lblMendFinding->Say(refusal);
    }
    m_stored = QString(kMended).arg(Counted(ticked, "finding"), Persons(m_plan.PeopleTicked()));
    accept();
}

} // namespace ptk
