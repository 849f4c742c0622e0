// The way from a time card without a pay rate to the box where the rate is entered.
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/text/Text.h"
#include "ui/people/EmployeePage.h"
#include "ui_EmployeePage.h"

namespace ptk {

namespace {

constexpr auto kNoSuchEmployee = "This employee is not in the list any more";

bool HoldsRate(const QLineEdit& box)
{
    double rate = 0;
    return Succeeds([&] { rate = ToDouble(box.text().toStdString()); }) && rate > 0;
}

} // namespace

void EmployeePage::ShowRate(std::int32_t employeeID)
{
    const auto show = [&] {
        if (m_ui->cboEmployeeID->currentText() != QString::number(employeeID)) {
            ShowAgain(Required(Records()->GetEmployeeByID(employeeID)));
        }
    };
    if (!Succeeds(show)) {
        return m_ui->notice->Say(kNoSuchEmployee);
    }
    QLineEdit* box = HoldsRate(*m_ui->txtPayRate) ? m_ui->txtOvertimePayRate : m_ui->txtPayRate;
    box->setFocus();
    box->selectAll();
}

} // namespace ptk
