// The employees behind every list and box of the main window: one model for all of them, reading the entities as they are asked for.
#pragma once

#include <memory>
#include <QAbstractTableModel>
#include <vector>

class QComboBox;

namespace ptk {

class CEmployee;
class CEmployeeList;

namespace employeecolumn {
inline constexpr int ID = 0;
inline constexpr int Name = 1; // the display name
inline constexpr int SSN = 2;
inline constexpr int Number = 3;
inline constexpr int Count = 4;
} // namespace employeecolumn

// Rows in list order. Holds references to the entities of the list at the time of SetRows, so that its rows stay whole while the list is
// being changed, and copies none of their texts.
class EmployeeTable final : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit EmployeeTable(int firstColumn, int columns);

    void SetRows(std::vector<std::shared_ptr<CEmployee>> rows);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    int m_firstColumn;
    int m_columns;
    std::vector<std::shared_ptr<CEmployee>> m_rows;
};

class EmployeeModels
{
public:
    QAbstractItemModel* All() { return &m_all; }         // every employee, the columns of employeecolumn
    QAbstractItemModel* Offered() { return &m_offered; } // the display names offered on time cards and reports

    // Resets both models; boxes on them end up without a selection. nullptr empties them.
    void SetEmployees(const std::shared_ptr<CEmployeeList>& list);

private:
    EmployeeTable m_all{employeecolumn::ID, employeecolumn::Count};
    EmployeeTable m_offered{employeecolumn::Name, 1};
};

// Puts a column of a model behind a box, without a selection: opens at once with ten thousand rows, finds by typing, never adds what is
// typed to its list, and is at least `characters` wide whatever the rows hold.
void ShowColumn(QComboBox& box, QAbstractItemModel* model, int column, int characters);

} // namespace ptk
