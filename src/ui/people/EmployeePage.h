// The Employees page: finds, shows, adds and changes employees.
#pragma once

#include "office/records/EmployeeTexts.h"
#include "ui/people/TypedRecordPage.h"

#include <cstdint>
#include <memory>
#include <QWidget>

namespace Ui {
class EmployeePage;
}

namespace ptk {

extern template class TypedRecordPage<CEmployee, CEmployeeList, EmployeeTexts>;

class EmployeePage final : public QWidget, public TypedRecordPage<CEmployee, CEmployeeList, EmployeeTexts>
{
    Q_OBJECT

public:
    explicit EmployeePage(PageHost& host, QWidget* parent = nullptr);
    ~EmployeePage() override;

    // Empties all fields, but leaves the "Employee Active" box as it is.
    void ClearEmployeeFields() { ClearFields(); }

    // Fills this page's lists of employees and those of the time card and reports pages.
    bool FillEmployeeLists();

    // Shows the employee; false for nullptr.
    bool ShowEmployee(const std::shared_ptr<CEmployee>& theemployee) { return ShowRecord(theemployee); }

    // Shows the employee, the keyboard in the box of the pay rate or, where that holds a rate, of the overtime rate. What was typed about
    // another employee is offered in the line.
    void ShowRate(std::int32_t employeeID);

private:
    void PrepareLists();
    void ConnectButtons();
    void FitFields();
    void EnableDeduction(bool enabled);
    void ShowPassword(bool shown);
    void New();
    void Cancel();

    [[nodiscard]] EmployeeTexts Empty() const override;
    void FillFields(const EmployeeTexts& texts) override;
    void ReadFields(EmployeeTexts& texts) const override;
    bool FillLists() override { return FillEmployeeLists(); }
    bool Load() override;
    void ShowStatus(const CEmployee& employee) override;
    bool IsAccepted(const EmployeeTexts& texts) override;
    [[nodiscard]] std::string Remark(const EmployeeTexts& texts) const override;
    void TellSaved(const std::string& told, const EmployeeTexts& texts, const CEmployee& saved) override;

    [[nodiscard]] std::string SavedID(const EmployeeTexts& texts) const;
    void WarnOfSharedNumbers();

    std::unique_ptr<Ui::EmployeePage> m_ui;
};

} // namespace ptk
