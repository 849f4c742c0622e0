// The Employees page: finds, shows, adds and changes employees.
#pragma once

#include <cstdint>
#include <memory>
#include <QWidget>

class QComboBox;

namespace Ui {
class EmployeePage;
}

namespace ptk {

class CEmployee;
class CEmployeeList;
class PageHost;
struct EmployeeTexts;

// A page without a chosen ID holds a new employee. What is refused stays on the page as it was typed.
class EmployeePage final : public QWidget
{
    Q_OBJECT

public:
    explicit EmployeePage(PageHost& host, QWidget* parent = nullptr);
    ~EmployeePage() override;

    bool ClearEmployeeFields();                                       // leaves the "Employee Active" box as it is
    bool FillEmployeeLists();                                         // also those of the time card and reports pages
    bool ShowEmployee(const std::shared_ptr<CEmployee>& theemployee); // false for nullptr

private:
    void ConnectLists();
    void ConnectButtons();

    void Select(std::int32_t eventSource, const QComboBox& box);
    std::shared_ptr<CEmployee> Find(std::int32_t eventSource, const QString& text) const;
    void ShowSelection(const CEmployee& employee);
    void Fill(const EmployeeTexts& texts);
    void EnableDeduction(bool enabled);

    void New();
    void Cancel();
    void Save();
    bool IsAccepted(const EmployeeTexts& texts);
    void SaveTexts(const EmployeeTexts& texts);
    void Reload();

    EmployeeTexts ReadTexts() const;
    std::shared_ptr<CEmployeeList> List() const; // raises Failure 91 when there is none

    PageHost& m_host;
    std::unique_ptr<Ui::EmployeePage> m_ui;
};

} // namespace ptk
