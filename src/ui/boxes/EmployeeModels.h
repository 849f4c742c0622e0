// The employees behind every list and box of the main window: one set of rows for all of them, reading the entities as they are asked for.
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

// The EmployeeID of a row, by which it is told from its namesakes.
inline constexpr int kEmployeeIDRole = Qt::UserRole;

// One text of each employee, in list order. Holds references to the entities of the list at the time of SetRows, so that its rows stay
// whole while the list is being changed, and copies none of their texts.
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
    // Every employee.
    QAbstractItemModel* All(EmployeeText shown);

    // The display names offered on time cards and reports.
    QAbstractItemModel* Offered() { return &m_offered; }

    // Resets all models. nullptr empties them.
    void SetEmployees(const std::shared_ptr<CEmployeeList>& list);

signals:
    // This employee has been changed in the database, and the models hold what is there now; -1: a new one has been added.
    void Saved(std::int32_t employeeID);

private:
    EmployeeColumn m_ids{EmployeeText::ID};
    EmployeeColumn m_names{EmployeeText::Name};
    EmployeeColumn m_ssns{EmployeeText::SSN};
    EmployeeColumn m_numbers{EmployeeText::Number};
    EmployeeColumn m_offered{EmployeeText::Name};
};

// Puts one of the models behind a box, without a choice: opens at once with ten thousand rows, never adds what is typed to its list, and is
// at least `characters` wide whatever the rows hold. When the models are filled again the chosen employee stays chosen, under the new name
// if there is one, and a text that is being typed stays as it is.
void ShowEmployees(QComboBox& box, QAbstractItemModel* model, int characters);

// The same for a list of several choices: those who are still in it stay chosen.
void ShowEmployees(QAbstractItemView& list, QAbstractItemModel* model);

} // namespace ptk
