// The employees behind every list and box of the main window: one set of rows for all, whose texts are read from the entities when they are
// asked for.
#pragma once

#include <cstdint>
#include <memory>
#include <QAbstractListModel>
#include <vector>

class QAbstractItemView;
class QComboBox;

namespace ptk {

class CEmployee;
class CEmployeeList;

// What a list shows of an employee.
enum class EmployeeText
{
    ID,
    Name, // the display name
    SSN,
    Number
};

// The role that answers the EmployeeID of a row, which tells the employee from namesakes.
inline constexpr int kEmployeeIDRole = Qt::UserRole;

// One text of each employee, in list order. Shares the entities that the list had at the time of SetRows, so that its rows stay whole while
// the list is being changed, and copies none of their texts.
class EmployeeColumn final : public QAbstractListModel
{
    Q_OBJECT

public:
    using Rows = std::vector<std::shared_ptr<CEmployee>>;

    explicit EmployeeColumn(EmployeeText shown) : m_shown(shown) {}

    void SetRows(std::shared_ptr<const Rows> rows);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    EmployeeText m_shown;
    std::shared_ptr<const Rows> m_rows = std::make_shared<Rows>();
};

class EmployeeModels final : public QObject
{
    Q_OBJECT

public:
    // A model of every employee.
    QAbstractItemModel* All(EmployeeText shown);

    // A model of the display names that are offered on time cards and reports.
    QAbstractItemModel* Offered() { return &m_offered; }

    // Fills all models anew with the employees of the list; nullptr empties them.
    void SetEmployees(const std::shared_ptr<CEmployeeList>& list);

signals:
    // This employee has been changed in the database, and the models hold what is stored now; -1: a new employee has been added.
    void Saved(std::int32_t employeeID);

private:
    EmployeeColumn m_ids{EmployeeText::ID};
    EmployeeColumn m_names{EmployeeText::Name};
    EmployeeColumn m_ssns{EmployeeText::SSN};
    EmployeeColumn m_numbers{EmployeeText::Number};
    EmployeeColumn m_offered{EmployeeText::Name};
};

// Puts one of the models behind a box, with no row chosen. The box opens at once even with ten thousand rows, never adds typed text to its
// list, and is at least `characters` wide whatever the rows hold. When the models are filled again, the chosen employee stays chosen, under
// a new name if there is one, and a text that is being typed stays as it is.
void ShowEmployees(QComboBox& box, QAbstractItemModel* model, int characters);

// Puts one of the models behind a list of several choices. When the models are filled again, the chosen employees who are still in them
// stay chosen.
void ShowEmployees(QAbstractItemView& list, QAbstractItemModel* model);

} // namespace ptk
