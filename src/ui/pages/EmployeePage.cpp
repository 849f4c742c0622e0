#include "ui/pages/EmployeePage.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "office/EmployeeTexts.h"
#include "office/ListEdit.h"
#include "platform/BusyPointer.h"
#include "platform/Desktop.h"
#include "platform/Required.h"
#include "platform/Text.h"
#include "startup/CController.h"
#include "ui/pages/PageHost.h"
#include "ui/widgets/BoxText.h"
#include "ui/widgets/ChosenOnly.h"
#include "ui/widgets/EmployeeModels.h"
#include "ui_EmployeePage.h"

namespace ptk {

namespace {

constexpr auto kSaveTitle = "Employee Save Error";
constexpr auto kNoNumber = "You cannot save an employee without assigning an employee number.";
constexpr auto kNoName = "You cannot save an employee without a name.";
constexpr auto kNoSSN = "You cannot save an employee without a social security number.";
constexpr auto kWrongType =
    "An error occurred while validating the employee information entered. Verify that all data entered is of the appropriate type.";
constexpr auto kAdministrator = "The Administrator may not be modified or deleted.";
constexpr auto kNotFound = "This employee could not be found in the list. Save Aborted.";
constexpr auto kNotRead = "An error occurred while loading the employee object.";
constexpr auto kNotSaved = "An error occurred while saving the employee list.";

constexpr int kIDCharacters = 8;
constexpr int kNameCharacters = 20;

} // namespace

EmployeePage::EmployeePage(PageHost& host, QWidget* parent) : QWidget(parent), m_host(host), m_ui(std::make_unique<Ui::EmployeePage>())
{
    m_ui->setupUi(this);
    for (auto* box : {m_ui->cboDOB, m_ui->cboHireDate, m_ui->cboReleaseDate}) {
        box->SetClock(host.Clock());
    }
    ConnectLists();
    ConnectButtons();
}

EmployeePage::~EmployeePage() = default;

void EmployeePage::ConnectLists()
{
    struct List
    {
        QComboBox* box;
        int column;
        std::int32_t eventSource;
        int characters;
    };
    for (const List& list : {List{m_ui->cboEmployeeID, employeecolumn::ID, eventsource::ID, kIDCharacters},
                             List{m_ui->cboEmployeeName, employeecolumn::Name, eventsource::Name, kNameCharacters},
                             List{m_ui->cboEmployeeSSN, employeecolumn::SSN, eventsource::SSN, kNameCharacters},
                             List{m_ui->cboEmployeeNumber, employeecolumn::Number, eventsource::EmployeeNumber, kNameCharacters}}) {
        ShowColumn(*list.box, m_host.EmployeeModels().All(), list.column, list.characters);
        ChooseOnlyDeliberately(*list.box);
        connect(list.box, &QComboBox::activated, this, [this, list] { Select(list.eventSource, *list.box); });
    }
}

void EmployeePage::ConnectButtons()
{
    connect(m_ui->chkAutoDeduct, &QCheckBox::toggled, this, &EmployeePage::EnableDeduction);
    connect(m_ui->cmdEmployeeNew, &QPushButton::clicked, this, &EmployeePage::New);
    connect(m_ui->cmdEmployeeSave, &QPushButton::clicked, this, &EmployeePage::Save);
    connect(m_ui->cmdEmployeeCancel, &QPushButton::clicked, this, &EmployeePage::Cancel);
}

bool EmployeePage::FillEmployeeLists()
{
    return m_host.FillEmployeeLists();
}

void EmployeePage::Select(std::int32_t eventSource, const QComboBox& box)
{
    const QString text = box.currentText();
    if (text.isEmpty()) {
        return;
    }
    m_host.EventSource(eventSource);
    if (const auto employee = Find(eventSource, text); employee != nullptr) {
        ShowSelection(*employee);
    } else {
        ClearEmployeeFields();
    }
    m_host.EventSource(eventsource::None);
}

std::shared_ptr<CEmployee> EmployeePage::Find(std::int32_t eventSource, const QString& text) const
{
    try {
        const auto list = List();
        const std::string wanted = text.toStdString();
        switch (eventSource) {
        case eventsource::ID:
            return list->GetEmployeeByID(ToInt32(wanted));
        case eventsource::Name:
            return list->GetEmployeeByName(wanted);
        case eventsource::SSN:
            return list->GetEmployeeBySSN(wanted);
        default:
            return list->GetEmployeeByNumber(ToInt32(wanted));
        }
    } catch (...) {
        return nullptr; // text that is no number names no employee
    }
}

void EmployeePage::ShowSelection(const CEmployee& employee)
{
    Fill(ShowEmployeeTexts(employee));
    m_host.SetStatusText(employee.FirstName() + " " + employee.LastName(), "Employee Number: " + std::to_string(employee.EmployeeNumber()));
}

bool EmployeePage::ShowEmployee(const std::shared_ptr<CEmployee>& theemployee)
{
    if (theemployee == nullptr) {
        return false;
    }
    Fill(ShowEmployeeTexts(*theemployee));
    return true;
}

// All four lists stand on the row of the shown ID, so that namesakes are not mixed up.
void EmployeePage::Fill(const EmployeeTexts& texts)
{
    const int row = m_ui->cboEmployeeID->findText(QString::fromStdString(texts.id));
    for (auto* box : {m_ui->cboEmployeeID, m_ui->cboEmployeeName, m_ui->cboEmployeeSSN, m_ui->cboEmployeeNumber}) {
        box->setCurrentIndex(row);
    }
    ShowText(m_ui->txtEmployeeAddr1, texts.address1);
    ShowText(m_ui->txtEmployeeAddr2, texts.address2);
    ShowText(m_ui->txtEmployeeCity, texts.city);
    ShowText(m_ui->txtEmployeeState, texts.state);
    ShowText(m_ui->txtEmployeeZip, texts.zip);
    ShowText(m_ui->txtEmployeePhone, texts.phone);
    ShowText(m_ui->txtPassword, texts.password);
    m_ui->cboHireDate->SetText(QString::fromStdString(texts.hireDate));
    m_ui->cboReleaseDate->SetText(QString::fromStdString(texts.releaseDate));
    m_ui->cboDOB->SetText(QString::fromStdString(texts.dateOfBirth));
    m_ui->chkEmployeeActive->setChecked(texts.active);
    ShowText(m_ui->txtPayRate, texts.payRate);
    ShowText(m_ui->txtOvertimePayRate, texts.overtimePayRate);
    m_ui->chkAutoDeduct->setChecked(texts.autoDeduct);
    EnableDeduction(texts.autoDeduct);
    ShowText(m_ui->txtLunchLength, texts.lunchLength);
    ShowText(m_ui->txtBreakLength, texts.breakLength);
}

EmployeeTexts EmployeePage::ReadTexts() const
{
    const auto chosen = [](const QComboBox* box) { return box->currentText().toStdString(); };
    return {.id = chosen(m_ui->cboEmployeeID),
            .number = chosen(m_ui->cboEmployeeNumber),
            .name = chosen(m_ui->cboEmployeeName),
            .ssn = chosen(m_ui->cboEmployeeSSN),
            .address1 = TextOf(m_ui->txtEmployeeAddr1),
            .address2 = TextOf(m_ui->txtEmployeeAddr2),
            .city = TextOf(m_ui->txtEmployeeCity),
            .state = TextOf(m_ui->txtEmployeeState),
            .zip = TextOf(m_ui->txtEmployeeZip),
            .phone = TextOf(m_ui->txtEmployeePhone),
            .password = TextOf(m_ui->txtPassword),
            .payRate = TextOf(m_ui->txtPayRate),
            .overtimePayRate = TextOf(m_ui->txtOvertimePayRate),
            .dateOfBirth = m_ui->cboDOB->Text().toStdString(),
            .hireDate = m_ui->cboHireDate->Text().toStdString(),
            .releaseDate = m_ui->cboReleaseDate->Text().toStdString(),
            .lunchLength = TextOf(m_ui->txtLunchLength),
            .breakLength = TextOf(m_ui->txtBreakLength),
            .active = m_ui->chkEmployeeActive->isChecked(),
            .autoDeduct = m_ui->chkAutoDeduct->isChecked()};
}

bool EmployeePage::ClearEmployeeFields()
{
    EmployeeTexts empty;
    empty.active = m_ui->chkEmployeeActive->isChecked();
    Fill(empty);
    for (auto* box : {m_ui->cboEmployeeName, m_ui->cboEmployeeSSN, m_ui->cboEmployeeNumber}) {
        box->clearEditText();
    }
    return true;
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
    ClearEmployeeFields();
    m_ui->cboEmployeeNumber->setFocus();
}

void EmployeePage::Cancel()
{
    ClearEmployeeFields();
    m_ui->cboEmployeeName->setFocus();
}

void EmployeePage::Save()
{
    const EmployeeTexts texts = ReadTexts();
    if (!IsAccepted(texts)) {
        return;
    }
    try {
        SaveTexts(texts);
    } catch (...) {
        m_host.Desktop().Show(kNotRead, listedit::kSaveTitle, Icon::Exclamation);
    }
}

bool EmployeePage::IsAccepted(const EmployeeTexts& texts)
{
    const auto refusal = CheckEmployeeTexts(texts);
    if (!refusal) {
        return true;
    }
    const auto refuse = [this](const char* text) { m_host.Desktop().Show(text, kSaveTitle, Icon::Exclamation); };
    switch (*refusal) {
    case EmployeeRefusal::NoNumber:
        refuse(kNoNumber);
        break;
    case EmployeeRefusal::NoName:
        refuse(kNoName);
        break;
    case EmployeeRefusal::NoSSN:
        refuse(kNoSSN);
        break;
    case EmployeeRefusal::WrongType:
        refuse(kWrongType);
        break;
    case EmployeeRefusal::Administrator:
        m_host.Desktop().Show(kAdministrator, kSaveTitle, Icon::Information);
        ClearEmployeeFields();
        break;
    }
    return false;
}

void EmployeePage::SaveTexts(const EmployeeTexts& texts)
{
    const auto list = List();
    const auto edited = CopyToEdit<CEmployee>(*list, texts.id, [](const CEmployee& employee) { return employee.EmployeeID(); });
    if (!edited) {
        return (void)m_host.Desktop().Show(kNotFound, listedit::kNotFoundTitle, Icon::Exclamation);
    }
    ReadEmployeeTexts(texts, *edited->entity);
    if (SaveOrTell(m_host.Desktop(), *list, *edited, kNotSaved)) {
        Reload();
    }
}

void EmployeePage::Reload()
{
    const BusyPointer busy(m_host.Desktop());
    Required(m_host.Controller())->GetEmployeeList();
    if (!FillEmployeeLists()) {
        m_host.ErrorNumber(windowerror::FillListsFailed);
    }
    ClearEmployeeFields();
}

std::shared_ptr<CEmployeeList> EmployeePage::List() const
{
    return Required(Required(m_host.Controller())->EmployeeList());
}

} // namespace ptk
