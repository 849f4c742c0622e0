#include "ui/profile/FProfile.h"

#include "office/profile/ProfileColumns.h"
#include "platform/Failure.h"
#include "platform/Succeeds.h"
#include "ui/profile/TablePreview.h"
#include "ui/widgets/FixedRows.h"
#include "ui_FProfile.h"

#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace ptk {

namespace {

constexpr auto kSameText = "The same text in every row";
constexpr auto kTextCell = "Text";
constexpr auto kColumnTip = "Headings are changed by F2 or a double click; so are texts that are the same in every row.";
constexpr auto kNotStored = "Not saved: %1.";
constexpr auto kChooseColumn = "Choose a column of the table first.";

constexpr QSize kProfileSize(900, 600);
constexpr QSize kProfileSmallest(620, 510);

enum CellPart
{
    ColumnName,
    Heading,
    SameText,
    CellParts
};

std::vector<std::string> PartsOf(const ProfileCell& cell)
{
    return {cell.column.empty() ? kTextCell : cell.column, cell.heading, cell.text};
}

bool IsEditable(const ProfileCell& cell, int part)
{
    return part == Heading || (part == SameText && cell.column.empty());
}

} // namespace

FProfile::FProfile(QWidget* parent, const Profile& profile, std::span<const PaidPerson> people, Saver save)
    : QDialog(parent), m_ui(std::make_unique<Ui::FProfile>()), m_profile(profile), m_people(people), m_save(std::move(save))
{
    m_ui->setupUi(this);
    setMinimumSize(kProfileSmallest);
    resize(kProfileSize);
    PrepareColumns();
    OfferColumns();
    m_ui->txtName->setText(QString::fromStdString(profile.name));
    m_ui->txtRegularCode->setText(QString::fromStdString(profile.regularCode));
    m_ui->txtOvertimeCode->setText(QString::fromStdString(profile.overtimeCode));
    const auto boxes = OptionBoxes();
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const ProfileOption& option = ProfileOptions()[i];
        for (const ProfileChoice& choice : option.choices) {
            boxes[i]->addItem(QString::fromUtf8(choice.caption.data(), static_cast<qsizetype>(choice.caption.size())));
        }
        boxes[i]->setCurrentIndex(static_cast<int>(option.get(profile)));
    }
    ConnectFields();
    ConnectColumns();
    ShowColumns(0);
}

FProfile::~FProfile() = default;

void FProfile::PrepareColumns()
{
    QTableWidget* grid = m_ui->grdColumns;
    grid->setColumnCount(CellParts);
    grid->setHorizontalHeaderLabels({"Column", "Heading", "Text"});
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    FixRows(*grid);
    grid->setToolTip(kColumnTip);
}

void FProfile::OfferColumns()
{
    m_ui->cboColumn->addItem(kSameText);
    for (const ProfileColumn& column : ProfileColumns()) {
        m_ui->cboColumn->addItem(QString::fromUtf8(column.name.data(), static_cast<qsizetype>(column.name.size())));
    }
    m_ui->cboColumn->setCurrentIndex(1);
}

// The boxes of the options, in the order of ProfileOptions().
std::vector<QComboBox*> FProfile::OptionBoxes() const
{
    return {m_ui->cboRows, m_ui->cboSeparator, m_ui->cboDecimal, m_ui->cboHours, m_ui->cboDates, m_ui->cboEncoding, m_ui->cboHeading};
}

void FProfile::ConnectFields()
{
    for (const QComboBox* box : OptionBoxes()) {
        connect(box, &QComboBox::currentIndexChanged, this, &FProfile::TakeFields);
    }
    for (const QLineEdit* field : {m_ui->txtName, m_ui->txtRegularCode, m_ui->txtOvertimeCode}) {
        connect(field, &QLineEdit::textChanged, this, &FProfile::TakeFields);
    }
    connect(m_ui->cmdSave, &QPushButton::clicked, this, &FProfile::Save);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &FProfile::reject);
}

void FProfile::ConnectColumns()
{
    connect(m_ui->grdColumns, &QTableWidget::cellChanged, this, &FProfile::TakeCell);
    connect(m_ui->grdColumns, &QTableWidget::itemSelectionChanged, this, &FProfile::EnableMoving);
    connect(m_ui->cmdAdd, &QPushButton::clicked, this, &FProfile::Add);
    connect(m_ui->cmdRemove, &QPushButton::clicked, this, &FProfile::Remove);
    connect(m_ui->cmdUp, &QPushButton::clicked, this, [this] { Move(-1); });
    connect(m_ui->cmdDown, &QPushButton::clicked, this, [this] { Move(1); });
}

// Fills the list of columns anew and chooses the row.
void FProfile::ShowColumns(int row)
{
    QTableWidget* grid = m_ui->grdColumns;
    {
        const QSignalBlocker filling(grid);
        grid->setRowCount(static_cast<int>(m_profile.cells.size()));
        for (int place = 0; place < grid->rowCount(); ++place) {
            const ProfileCell& cell = m_profile.cells.at(static_cast<std::size_t>(place));
            const std::vector<std::string> parts = PartsOf(cell);
            for (int part = ColumnName; part < CellParts; ++part) {
                auto* item = new QTableWidgetItem(QString::fromStdString(parts.at(static_cast<std::size_t>(part))));
                item->setFlags(IsEditable(cell, part) ? item->flags() : item->flags() & ~Qt::ItemIsEditable);
                grid->setItem(place, part, item);
            }
        }
        grid->setCurrentCell(std::min(row, grid->rowCount() - 1), Heading);
    }
    EnableMoving();
    ShowResult();
}

void FProfile::TakeCell(int row, int column)
{
    ProfileCell& cell = m_profile.cells.at(static_cast<std::size_t>(row));
    (column == Heading ? cell.heading : cell.text) = m_ui->grdColumns->item(row, column)->text().toStdString();
    ShowResult();
}

// The new column stands behind the chosen one.
void FProfile::Add()
{
    const std::string name = m_ui->cboColumn->currentIndex() == 0 ? "" : m_ui->cboColumn->currentText().toStdString();
    const int place = m_profile.cells.empty() ? 0 : m_ui->grdColumns->currentRow() + 1;
    m_profile.cells.insert(m_profile.cells.begin() + place, ProfileCell{name, "", name});
    ShowColumns(place);
}

void FProfile::Remove()
{
    const int row = m_ui->grdColumns->currentRow();
    m_profile.cells.erase(m_profile.cells.begin() + row);
    ShowColumns(row);
}

void FProfile::Move(int by)
{
    const int from = m_ui->grdColumns->currentRow();
    const int to = from + by;
    std::swap(m_profile.cells.at(static_cast<std::size_t>(from)), m_profile.cells.at(static_cast<std::size_t>(to)));
    ShowColumns(to);
}

void FProfile::EnableMoving()
{
    const int row = m_ui->grdColumns->currentRow();
    const int rows = m_ui->grdColumns->rowCount();
    const auto enable = [](QPushButton& button, bool usable) {
        button.setEnabled(usable);
        button.setToolTip(usable ? QString() : kChooseColumn);
    };
    enable(*m_ui->cmdRemove, row >= 0);
    enable(*m_ui->cmdUp, row > 0);
    enable(*m_ui->cmdDown, row >= 0 && row + 1 < rows);
}

void FProfile::TakeFields()
{
    m_profile.name = m_ui->txtName->text().trimmed().toStdString();
    m_profile.regularCode = m_ui->txtRegularCode->text().toStdString();
    m_profile.overtimeCode = m_ui->txtOvertimeCode->text().toStdString();
    const auto boxes = OptionBoxes();
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        ProfileOptions()[i].set(m_profile, static_cast<std::size_t>(std::max(0, boxes[i]->currentIndex())));
    }
    ShowResult();
}

// Shows the rows, and what is still wrong with the profile.
void FProfile::ShowResult()
{
    const QString fault = QString::fromStdString(FaultOf(m_profile));
    m_ui->lblHint->Say(fault);
    m_ui->cmdSave->setEnabled(fault.isEmpty());
    m_ui->cmdSave->setToolTip(fault);
    ShowPreview(*m_ui->grdPreview, &m_profile, m_people);
}

void FProfile::Save()
{
    const auto save = [this] { m_save(m_profile); };
    if (Succeeds(save, [this](const Failure& reason) {
            m_ui->lblHint->Say(QString(kNotStored).arg(QString::fromStdString(reason.Description())));
        })) {
        accept();
    }
}

} // namespace ptk
