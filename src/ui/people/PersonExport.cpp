#include "ui/people/PersonExport.h"

#include "model/CEmployee.h"
#include "office/person/PersonData.h"
#include "office/reports/SaveReport.h"
#include "platform/Required.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Clock.h"
#include "startup/CController.h"
#include "ui/page/Workplace.h"
#include "ui/widgets/NoticeLine.h"
#include "ui/work/SaveDialog.h"

#include <QPushButton>

namespace ptk {

namespace {

constexpr auto kPersonFile = "PTK employee %1"; // the employee's number, since a name may hold characters that a file's name may not
constexpr auto kExportTip = "Save all that is kept about this employee, for him or her to read";
constexpr auto kChooseFirst = "Choose an employee first";
constexpr ReportForm kPersonForms[] = {ReportForm::Pdf, ReportForm::Json};

} // namespace

void AllowExport(QPushButton& button, bool allowed)
{
    button.setEnabled(allowed);
    button.setToolTip(allowed ? kExportTip : kChooseFirst);
}

void ExportPerson(QWidget& parent, Workplace& host, NoticeLine& notice, const std::shared_ptr<CEmployee>& employee)
{
    const auto target =
        employee == nullptr ? std::nullopt : AskWhereToSave(parent, QString(kPersonFile).arg(employee->EmployeeNumber()), kPersonForms);
    if (!target) {
        return;
    }
    const BusyPointer busy(host.Desktop());
    const SaveOutcome outcome = SaveAs(target->path, target->form, [&](ReportForm form) {
        const auto controller = Required(host.Controller());
        return PersonIn(form, ReadPerson(Required(controller->PTKDatabase()), employee->EmployeeID(), controller->FilesOfPersons(),
                                         host.Clock().Now()));
    });
    const auto said = QString::fromStdString(outcome.said);
    outcome.saved ? notice.SayFile(said) : notice.Say(said);
}

} // namespace ptk
