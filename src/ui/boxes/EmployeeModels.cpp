#include "ui/boxes/EmployeeModels.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"

#include <optional>
#include <QComboBox>
#include <QListView>
#include <QSet>

namespace ptk {

namespace {

QString Text(const CEmployee& employee, EmployeeText shown)
{
    switch (shown) {
    case EmployeeText::ID:
        return QString::number(employee.EmployeeID());
    case EmployeeText::Name:
        return QString::fromStdString(employee.DisplayName());
    case EmployeeText::SSN:
        return QString::fromStdString(employee.SSN());
    case EmployeeText::Number:
        break;
    }
    return QString::number(employee.EmployeeNumber());
}

// Gives the box a list with rows of one height, laid out in batches. A list that measures each of its rows takes a second to open.
void PrepareView(QComboBox& box)
{
    auto* view = new QListView(&box);
    view->setUniformItemSizes(true);
    view->setLayoutMode(QListView::Batched);
    view->setTextElideMode(Qt::ElideRight);
    box.setView(view);
}

struct Choice
{
    QVariant employeeID;
    std::optional<QString> typed; // the text that stands in the box in place of a row's text
};

Choice ChoiceIn(const QComboBox& box)
{
    const bool typed = box.isEditable() && box.currentText() != box.itemText(box.currentIndex());
    return {box.currentData(kEmployeeIDRole), typed ? std::optional(box.currentText()) : std::nullopt};
}

// Chooses the row again after new rows have come: by then the box has chosen the first of them by itself.
void Choose(QComboBox& box, const Choice& choice)
{
    box.setCurrentIndex(choice.employeeID.isValid() ? box.findData(choice.employeeID, kEmployeeIDRole) : -1);
    if (choice.typed) {
        box.setEditText(*choice.typed);
    }
}

QSet<int> ChosenIn(const QAbstractItemView& list)
{
    QSet<int> ids;
    for (const QModelIndex& row : list.selectionModel()->selectedRows()) {
        ids.insert(row.data(kEmployeeIDRole).toInt());
    }
    return ids;
}

void Choose(QAbstractItemView& list, const QSet<int>& ids)
{
    const QAbstractItemModel& model = *list.model();
    QItemSelection rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        if (!ids.contains(index.data(kEmployeeIDRole).toInt())) {
            continue;
        }
        if (!rows.isEmpty() && rows.last().bottom() == row - 1) {
            rows.last() = QItemSelectionRange(rows.last().topLeft(), index); // one range for a run of rows: ranges are compared in pairs
        } else {
            rows.append(QItemSelectionRange(index));
        }
    }
    list.selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
}

} // namespace

void EmployeeColumn::SetRows(std::shared_ptr<const Rows> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int EmployeeColumn::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows->size());
}

QVariant EmployeeColumn::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const CEmployee& employee = *m_rows->at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return Text(employee, m_shown);
    case kEmployeeIDRole:
        return employee.EmployeeID();
    default:
        return {};
    }
}

QAbstractItemModel* EmployeeModels::All(EmployeeText shown)
{
    switch (shown) {
    case EmployeeText::ID:
        return &m_ids;
    case EmployeeText::Name:
        return &m_names;
    case EmployeeText::SSN:
        return &m_ssns;
    case EmployeeText::Number:
        break;
    }
    return &m_numbers;
}

void EmployeeModels::SetEmployees(const std::shared_ptr<CEmployeeList>& list)
{
    const auto all = std::make_shared<EmployeeColumn::Rows>();
    const auto offered = std::make_shared<EmployeeColumn::Rows>();
    const std::int32_t count = list == nullptr ? 0 : list->Count();
    all->reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 1; i <= count; ++i) {
        all->push_back(list->Item(i));
        if (all->back()->OfferedOnTimeCards()) {
            offered->push_back(all->back());
        }
    }
    for (EmployeeColumn* column : {&m_ids, &m_names, &m_ssns, &m_numbers}) {
        column->SetRows(all);
    }
    m_offered.SetRows(offered);
}

void ShowEmployees(QComboBox& box, QAbstractItemModel* model, int characters)
{
    box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box.setMinimumContentsLength(characters);
    box.setInsertPolicy(QComboBox::NoInsert);
    PrepareView(box);
    box.setModel(model);
    box.setCurrentIndex(-1);
    const auto before = std::make_shared<Choice>();
    QObject::connect(model, &QAbstractItemModel::modelAboutToBeReset, &box, [&box, before] { *before = ChoiceIn(box); });
    QObject::connect(model, &QAbstractItemModel::modelReset, &box, [&box, before] { Choose(box, *before); });
}

void ShowEmployees(QAbstractItemView& list, QAbstractItemModel* model)
{
    list.setModel(model);
    const auto before = std::make_shared<QSet<int>>();
    QObject::connect(model, &QAbstractItemModel::modelAboutToBeReset, &list, [&list, before] { *before = ChosenIn(list); });
    QObject::connect(model, &QAbstractItemModel::modelReset, &list, [&list, before] { Choose(list, *before); });
}

} // namespace ptk
