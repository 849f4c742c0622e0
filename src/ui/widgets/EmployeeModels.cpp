#include "ui/widgets/EmployeeModels.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"

#include <QComboBox>
#include <QCompleter>
#include <QListView>

namespace ptk {

namespace {

QString Text(const CEmployee& employee, int column)
{
    switch (column) {
    case employeecolumn::ID:
        return QString::number(employee.EmployeeID());
    case employeecolumn::Name:
        return QString::fromStdString(employee.DisplayName());
    case employeecolumn::SSN:
        return QString::fromStdString(employee.SSN());
    default:
        return QString::number(employee.EmployeeNumber());
    }
}

// Rows of one height, laid out in batches: a list that measures each of its rows takes a second to open.
void PrepareView(QComboBox& box)
{
    auto* view = new QListView(&box);
    view->setUniformItemSizes(true);
    view->setLayoutMode(QListView::Batched);
    view->setTextElideMode(Qt::ElideRight);
    box.setView(view);
}

void PrepareTyping(QComboBox& box, QAbstractItemModel* model, int column)
{
    box.setInsertPolicy(QComboBox::NoInsert);
    auto* completer = new QCompleter(model, &box);
    completer->setCompletionColumn(column);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setCompletionMode(QCompleter::PopupCompletion);
    box.setCompleter(completer);
}

} // namespace

EmployeeTable::EmployeeTable(int firstColumn, int columns) : m_firstColumn(firstColumn), m_columns(columns) {}

void EmployeeTable::SetRows(std::vector<std::shared_ptr<CEmployee>> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int EmployeeTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int EmployeeTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

QVariant EmployeeTable::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) {
        return {};
    }
    return Text(*m_rows.at(static_cast<std::size_t>(index.row())), m_firstColumn + index.column());
}

void EmployeeModels::SetEmployees(const std::shared_ptr<CEmployeeList>& list)
{
    std::vector<std::shared_ptr<CEmployee>> all;
    std::vector<std::shared_ptr<CEmployee>> offered;
    const std::int32_t count = list == nullptr ? 0 : list->Count();
    all.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 1; i <= count; ++i) {
        all.push_back(list->Item(i));
        if (all.back()->OfferedOnTimeCards()) {
            offered.push_back(all.back());
        }
    }
    m_all.SetRows(std::move(all));
    m_offered.SetRows(std::move(offered));
}

void ShowColumn(QComboBox& box, QAbstractItemModel* model, int column, int characters)
{
    box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box.setMinimumContentsLength(characters);
    PrepareView(box);
    box.setModel(model);
    box.setModelColumn(column);
    box.setCurrentIndex(-1);
    // After the box's own reaction to new rows, which is to choose the first.
    QObject::connect(model, &QAbstractItemModel::modelReset, &box, [&box] { box.setCurrentIndex(-1); });
    if (box.isEditable()) {
        PrepareTyping(box, model, column);
    }
}

} // namespace ptk
