#include "ui/people/EmployeePage.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "office/records/SharedNumbers.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/Desktop.h"
#include "startup/CController.h"
#include "ui/boxes/EmployeeModels.h"
#include "ui/boxes/FieldWidth.h"
#include "ui/page/PageHost.h"
#include "ui/people/PersonExport.h"
#include "ui/widgets/ThemeIcon.h"
#include "ui_EmployeePage.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr auto kEmployeeSaveTitle = "Employee Save Error";
constexpr auto kNoNumber = "You cannot save an employee without assigning an employee number.";
constexpr auto kEmployeeNoName = "You cannot save an employee without a name.";
constexpr auto kNoSSN = "You cannot save an employee without a social security number.";
constexpr auto kWrongType =
    "An error occurred while validating the employee information entered. Verify that all data entered is of the appropriate type.";
constexpr auto kAdministrator = "The Administrator may not be modified or deleted.";
constexpr auto kShowAgain = "Show Again";
constexpr auto kShowTip = "Show the password";
constexpr auto kHideTip = "Hide the password";

// A box has room for an icon, too, so these hold up to 8, 11 and 10 digits.
constexpr int kEmployeeIDCharacters = 5;
constexpr int kSSNCharacters = 8;
constexpr int kNumberCharacters = 7;
constexpr int kEmployeeNameCharacters = 7; // at the least

constexpr EmployeePage::Kind kEmployees{
    .shown = Watched::Employee,
    .notFound = "This employee could not be found in the list. Save Aborted.",
    .notRead = "An error occurred while loading the employee object.",
    .notSaved = "An error occurred while saving the employee list.",
    .savedUnread = " saved, but the employees could not be read again",
    .unread = "The employees could not be read again",
    .list = &PageHost::Employees,
    .find = &CEmployeeList::GetEmployeeByID,
    .id = &CEmployee::EmployeeID,
    .show = ShowEmployeeTexts,
    .read = ReadEmployeeTexts,
};

} // namespace

EmployeePage::EmployeePage(PageHost& host, QWidget* parent)
    : QWidget(parent), TypedRecordPage(host, kEmployees), m_ui(std::make_unique<Ui::EmployeePage>())
{
    m_ui->setupUi(this);
    for (auto* box : {m_ui->cboDOB, m_ui->cboHireDate, m_ui->cboReleaseDate}) {
        box->SetClock(host.Clock());
    }
    FitFields();
    PrepareLists();
    ConnectButtons();
    ShowPassword(false);
}

EmployeePage::~EmployeePage() = default;

void EmployeePage::PrepareLists()
{
    EmployeeModels& models = Host().EmployeeModels();
    ShowEmployees(*m_ui->cboEmployeeID, models.All(EmployeeText::ID), kEmployeeIDCharacters);
    ShowEmployees(*m_ui->cboEmployeeName, models.All(EmployeeText::Name), kEmployeeNameCharacters);
    ShowEmployees(*m_ui->cboEmployeeSSN, models.All(EmployeeText::SSN), kSSNCharacters);
    ShowEmployees(*m_ui->cboEmployeeNumber, models.All(EmployeeText::Number), kNumberCharacters);
    using Texts = EmployeeTexts;
    Begin({{m_ui->cboEmployeeID, &Texts::id, eventsource::ID},
           {m_ui->cboEmployeeName, &Texts::name, eventsource::Name},
           {m_ui->cboEmployeeSSN, &Texts::ssn, eventsource::SSN},
           {m_ui->cboEmployeeNumber, &Texts::number, eventsource::EmployeeNumber}},
          {{m_ui->txtEmployeeAddr1, &Texts::address1},
           {m_ui->txtEmployeeAddr2, &Texts::address2},
           {m_ui->txtEmployeeCity, &Texts::city},
           {m_ui->txtEmployeeState, &Texts::state},
           {m_ui->txtEmployeeZip, &Texts::zip},
           {m_ui->txtEmployeePhone, &Texts::phone},
           {m_ui->txtPassword, &Texts::password},
           {m_ui->txtPayRate, &Texts::payRate},
           {m_ui->txtOvertimePayRate, &Texts::overtimePayRate},
           {m_ui->txtLunchLength, &Texts::lunchLength},
           {m_ui->txtBreakLength, &Texts::breakLength}},
          *m_ui->notice);
    for (auto* box : {m_ui->cboEmployeeSSN, m_ui->cboEmployeeNumber}) {
        connect(box->lineEdit(), &QLineEdit::textEdited, this, &EmployeePage::WarnOfSharedNumbers);
    }
}

void EmployeePage::ConnectButtons()
{
    connect(m_ui->chkAutoDeduct, &QCheckBox::toggled, this, &EmployeePage::EnableDeduction);
    connect(m_ui->cmdShowPassword, &QToolButton::toggled, this, &EmployeePage::ShowPassword);
    connect(m_ui->cmdEmployeeExport, &QPushButton::clicked, this, [this] { ExportPerson(*this, Host(), *m_ui->notice, Chosen()); });
    connect(m_ui->cmdEmployeeNew, &QPushButton::clicked, this, &EmployeePage::New);
    connect(m_ui->cmdEmployeeSave, &QPushButton::clicked, this, [this] { SaveTyped(); });
    connect(m_ui->cmdEmployeeCancel, &QPushButton::clicked, this, &EmployeePage::Cancel);
}

void EmployeePage::FitFields()
{
    LimitWidth(*this, fieldwidth::Page);
    LimitWidth(*m_ui->txtEmployeeState, fieldwidth::State);
    LimitWidth(*m_ui->txtEmployeeZip, fieldwidth::Zip);
    LimitWidth(*m_ui->txtEmployeePhone, fieldwidth::Phone);
    LimitWidth(*m_ui->txtPassword, fieldwidth::Phone);
    LimitWidth(*m_ui->txtPayRate, fieldwidth::Money);
    LimitWidth(*m_ui->txtOvertimePayRate, fieldwidth::Money);
    LimitWidth(*m_ui->txtLunchLength, fieldwidth::Minutes);
    LimitWidth(*m_ui->txtBreakLength, fieldwidth::Minutes);
}

void EmployeePage::ShowPassword(bool shown)
{
    m_ui->txtPassword->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password);
    m_ui->cmdShowPassword->setIcon(ThemeIcon(shown ? "hide" : "show"));
    m_ui->cmdShowPassword->setToolTip(shown ? kHideTip : kShowTip);
}

bool EmployeePage::FillEmployeeLists()
{
    return Succeeds([this] { Host().EmployeeModels().SetEmployees(Records()); });
}

void EmployeePage::ShowStatus(const CEmployee& employee)
{
    Host().SetStatusText(employee.FirstName() + " " + employee.LastName(), "Employee Number: " + std::to_string(employee.EmployeeNumber()));
}

void EmployeePage::FillFields(const EmployeeTexts& texts)
{
    m_ui->cmdShowPassword->setChecked(false);
    m_ui->cboHireDate->SetText(QString::fromStdString(texts.hireDate));
    m_ui->cboReleaseDate->SetText(QString::fromStdString(texts.releaseDate));
    m_ui->cboDOB->SetText(QString::fromStdString(texts.dateOfBirth));
    m_ui->chkEmployeeActive->setChecked(texts.active);
    m_ui->chkAutoDeduct->setChecked(texts.autoDeduct);
    EnableDeduction(texts.autoDeduct);
    AllowExport(*m_ui->cmdEmployeeExport, !texts.id.empty());
}

void EmployeePage::ReadFields(EmployeeTexts& texts) const
{
    texts.dateOfBirth = m_ui->cboDOB->Text().toStdString();
    texts.hireDate = m_ui->cboHireDate->Text().toStdString();
    texts.releaseDate = m_ui->cboReleaseDate->Text().toStdString();
    texts.active = m_ui->chkEmployeeActive->isChecked();
    texts.autoDeduct = m_ui->chkAutoDeduct->isChecked();
}

EmployeeTexts EmployeePage::Empty() const
{
    EmployeeTexts empty;
    empty.active = m_ui->chkEmployeeActive->isChecked();
    return empty;
}

void EmployeePage::EnableDeduction(bool enabled)
{
    for (QWidget* part : std::initializer_list<QWidget*>{m_ui->lblLunchLength, m_ui->txtLunchLength, m_ui->lblLunchMinutes,
                                                         m_ui->lblBreakLength, m_ui->txtBreakLength, m_ui->lblBreakMinutes}) {
        part->setEnabled(enabled);
    }
}

void EmployeePage::New()
{
    StartAnew();
    m_ui->chkEmployeeActive->setChecked(true);
    ShownAfresh();
    m_ui->cboEmployeeNumber->setFocus();
}

void EmployeePage::Cancel()
{
    StartAnew();
    m_ui->cboEmployeeName->setFocus();
}

void EmployeePage::WarnOfSharedNumbers()
{
    Succeeds([this] { m_ui->notice->Remark(QString::fromStdString(Remark(ReadTexts()))); });
}

bool EmployeePage::IsAccepted(const EmployeeTexts& texts)
{
    const auto refusal = CheckEmployeeTexts(texts);
    if (!refusal) {
        return true;
    }
    const auto refuse = [this](const char* text) { Host().Desktop().Show(text, kEmployeeSaveTitle, Icon::Exclamation); };
    switch (*refusal) {
    case EmployeeRefusal::NoNumber:
        refuse(kNoNumber);
        break;
    case EmployeeRefusal::NoName:
        refuse(kEmployeeNoName);
        break;
    case EmployeeRefusal::NoSSN:
        refuse(kNoSSN);
        break;
    case EmployeeRefusal::WrongType:
        refuse(kWrongType);
        break;
    case EmployeeRefusal::Administrator:
        Host().Desktop().Show(kAdministrator, kEmployeeSaveTitle, Icon::Information);
        ClearFields();
        break;
    }
    return false;
}

std::string EmployeePage::Remark(const EmployeeTexts& texts) const
{
    return SharedNumbersNotice(*Records(), texts);
}

void EmployeePage::TellSaved(const std::string& told, const EmployeeTexts& texts, const CEmployee& saved)
{
    m_ui->notice->Suggest(QString::fromStdString(told), kShowAgain, [this, id = SavedID(texts)] { ShowAgain(Of(id)); });
    emit Host().EmployeeModels().Saved(saved.EmployeeID());
}

// The ID of the employee just saved, for "Show Again": the page is deliberately empty after a save. A new one is the newest of that name.
std::string EmployeePage::SavedID(const EmployeeTexts& texts) const
{
    std::int32_t newest = 0;
    for (std::int32_t i = 1; texts.id.empty() && i <= Records()->Count(); ++i) {
        const auto employee = Records()->Item(i);
        newest = employee->DisplayName() == texts.name ? std::max(newest, employee->EmployeeID()) : newest;
    }
    return texts.id.empty() ? std::to_string(newest) : texts.id;
}

bool EmployeePage::Load()
{
    return Required(Host().Controller())->GetEmployeeList();
}

} // namespace ptk
