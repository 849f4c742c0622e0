#include "ui/people/EmployeePage.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "office/records/ConflictNotice.h"
#include "office/records/EmployeeTexts.h"
#include "office/records/ListEdit.h"
#include "office/records/SharedNumbers.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Desktop.h"
#include "platform/text/Text.h"
#include "startup/CController.h"
#include "ui/boxes/BoxText.h"
#include "ui/boxes/ChosenOnly.h"
#include "ui/boxes/EmployeeModels.h"
#include "ui/boxes/FieldWidth.h"
#include "ui/page/OfferLeft.h"
#include "ui/page/PageHost.h"
#include "ui/page/SharedRecords.h"
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
constexpr auto kEmployeeNotFound = "This employee could not be found in the list. Save Aborted.";
constexpr auto kEmployeeNotRead = "An error occurred while loading the employee object.";
constexpr auto kEmployeeNotSaved = "An error occurred while saving the employee list.";

constexpr auto kEmployeeSaved = " saved";
constexpr auto kEmployeeSavedUnread = " saved, but the employees could not be read again";
constexpr auto kEmployeeNotInList = " is not in the list any more";
constexpr auto kShowTip = "Show the password";
constexpr auto kHideTip = "Hide the password";

// A box has room for an icon besides: these hold up to 8, 11 and 10 digits.
constexpr int kEmployeeIDCharacters = 5;
constexpr int kSSNCharacters = 8;
constexpr int kNumberCharacters = 7;
constexpr int kEmployeeNameCharacters = 7; // at the least

} // namespace

EmployeePage::EmployeePage(PageHost& host, QWidget* parent) : QWidget(parent), m_host(host), m_ui(std::make_unique<Ui::EmployeePage>())
{
    m_ui->setupUi(this);
    for (auto* box : {m_ui->cboDOB, m_ui->cboHireDate, m_ui->cboReleaseDate}) {
        box->SetClock(host.Clock());
    }
    FitFields();
    ConnectLists();
    ConnectButtons();
    ShowPassword(false);
}

EmployeePage::~EmployeePage() = default;

std::array<EmployeePage::KeyList, 4> EmployeePage::KeyLists() const
{
    using Texts = EmployeeTexts;
    return {{{m_ui->cboEmployeeID, &Texts::id, EmployeeText::ID, eventsource::ID, kEmployeeIDCharacters},
             {m_ui->cboEmployeeName, &Texts::name, EmployeeText::Name, eventsource::Name, kEmployeeNameCharacters},
             {m_ui->cboEmployeeSSN, &Texts::ssn, EmployeeText::SSN, eventsource::SSN, kSSNCharacters},
             {m_ui->cboEmployeeNumber, &Texts::number, EmployeeText::Number, eventsource::EmployeeNumber, kNumberCharacters}}};
}

void EmployeePage::ConnectLists()
{
    for (const KeyList& list : KeyLists()) {
        ShowEmployees(*list.box, m_host.EmployeeModels().All(list.shown), list.characters);
        ChooseOnlyDeliberately(*list.box);
        connect(list.box, &QComboBox::activated, this, [this, list] { Select(list); });
        if (list.box->isEditable()) {
            connect(list.box->lineEdit(), &QLineEdit::textEdited, this,
                    [this, list](const QString& text) { m_texts.Type(list.text, text.toStdString()); });
        }
    }
    for (auto* box : {m_ui->cboEmployeeSSN, m_ui->cboEmployeeNumber}) {
        connect(box->lineEdit(), &QLineEdit::textEdited, this, &EmployeePage::WarnOfSharedNumbers);
    }
}

void EmployeePage::ConnectButtons()
{
    connect(m_ui->chkAutoDeduct, &QCheckBox::toggled, this, &EmployeePage::EnableDeduction);
    connect(m_ui->cmdShowPassword, &QToolButton::toggled, this, &EmployeePage::ShowPassword);
    connect(m_ui->cmdEmployeeExport, &QPushButton::clicked, this,
            [this] { ExportPerson(*this, m_host, *m_ui->notice, ChosenIn(*m_ui->cboEmployeeID)); });
    connect(m_ui->cmdEmployeeNew, &QPushButton::clicked, this, &EmployeePage::New);
    connect(m_ui->cmdEmployeeSave, &QPushButton::clicked, this, &EmployeePage::Save);
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
    return Succeeds([this] { m_host.EmployeeModels().SetEmployees(List()); });
}

void EmployeePage::Select(const KeyList& list)
{
    if (list.box->currentText().isEmpty()) {
        return;
    }
    m_host.EventSource(list.eventSource);
    LeaveBehind(m_texts.LeftByChoice(ReadTexts(), list.text));
    if (const auto employee = ChosenIn(*list.box); employee != nullptr) {
        ShowEmployee(employee);
        ShowStatus(*employee);
    } else {
        ClearEmployeeFields();
    }
    m_host.EventSource(eventsource::None);
}

void EmployeePage::ShowStatus(const CEmployee& employee)
{
    m_host.SetStatusText(employee.FirstName() + " " + employee.LastName(), "Employee Number: " + std::to_string(employee.EmployeeNumber()));
}

// By the row's own ID: of namesakes each is found.
std::shared_ptr<CEmployee> EmployeePage::ChosenIn(const QComboBox& box) const
{
    std::shared_ptr<CEmployee> chosen;
    Succeeds([&] { chosen = List()->GetEmployeeByID(box.currentData(kEmployeeIDRole).toInt()); });
    return chosen;
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
    for (const KeyList& list : KeyLists()) {
        list.box->setCurrentIndex(row);
        if (list.box->isEditable()) {
            ShowText(list.box->lineEdit(), texts.*list.text);
        }
    }
    ShowText(m_ui->txtEmployeeAddr1, texts.address1);
    ShowText(m_ui->txtEmployeeAddr2, texts.address2);
    ShowText(m_ui->txtEmployeeCity, texts.city);
    ShowText(m_ui->txtEmployeeState, texts.state);
    ShowText(m_ui->txtEmployeeZip, texts.zip);
    ShowText(m_ui->txtEmployeePhone, texts.phone);
    ShowText(m_ui->txtPassword, texts.password);
    m_ui->cmdShowPassword->setChecked(false);
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
    AllowExport(*m_ui->cmdEmployeeExport, !texts.id.empty());
    m_texts.Show(ReadTexts());
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
    LeaveBehind(m_texts.Left(ReadTexts()));
    ClearEmployeeFields();
    m_ui->chkEmployeeActive->setChecked(true);
    m_texts.Show(ReadTexts());
    m_ui->cboEmployeeNumber->setFocus();
}

void EmployeePage::Cancel()
{
    LeaveBehind(m_texts.Left(ReadTexts()));
    ClearEmployeeFields();
    m_ui->cboEmployeeName->setFocus();
}

void EmployeePage::LeaveBehind(const std::optional<LeftBehind<EmployeeTexts>>& left)
{
    OfferLeft(*m_ui->notice, left, [this](const LeftBehind<EmployeeTexts>& texts) { BringBack(texts); });
}

// What stands on the page by then may have to be brought back in its turn.
void EmployeePage::BringBack(const LeftBehind<EmployeeTexts>& left)
{
    if (!left.shown.id.empty() && m_ui->cboEmployeeID->findText(QString::fromStdString(left.shown.id)) < 0) {
        return m_ui->notice->Offer(QString::fromStdString(left.shown.name + kEmployeeNotInList), kBringBack,
                                   [this, left] { BringBack(left); });
    }
    LeaveBehind(m_texts.Left(ReadTexts()));
    PutBack(left);
    if (const auto employee = ChosenIn(*m_ui->cboEmployeeID); employee != nullptr) {
        ShowStatus(*employee);
    }
}

// Over what is stored by now.
void EmployeePage::PutBack(const LeftBehind<EmployeeTexts>& left)
{
    LeftBehind<EmployeeTexts> now = left;
    if (ShowEmployee(Of(left.shown.id))) {
        now = {ReadTexts(), TypedOver(left, ReadTexts())};
    }
    Fill(now.typed);
    m_texts.BringBack(now);
}

std::shared_ptr<CEmployee> EmployeePage::Of(const std::string& id) const
{
    return id.empty() ? nullptr : List()->GetEmployeeByID(ToInt32(id));
}

void EmployeePage::ReadAgain(std::optional<std::int64_t> row)
{
    const auto left = m_texts.Left(ReadTexts());
    const std::string id = m_ui->cboEmployeeID->currentText().toStdString();
    const bool read = Reload();
    if (!left) {
        const auto wanted = row ? Of(std::to_string(*row)) : nullptr;
        ShowEmployee(wanted != nullptr ? wanted : Of(id));
        return LeaveBehind(left);
    }
    const bool isThere = ShowEmployee(Of(id));
    if (!isThere && !id.empty()) {
        return LeaveBehind(read ? AsNew(*left) : left);
    }
    if (isThere && ReadTexts() != left->shown) {
        return LeaveBehind(left);
    }
    PutBack(*left);
}

std::optional<Shown> EmployeePage::IdleList() const
{
    return m_texts.Left(ReadTexts()) ? std::nullopt : std::optional(Shown::Employee);
}

std::string EmployeePage::Unsaved() const
{
    const auto left = m_texts.Left(ReadTexts());
    return left ? NoticeOf(*left) : std::string();
}

void EmployeePage::TellChanges()
{
    const auto employee = Of(m_ui->cboEmployeeID->currentText().toStdString());
    if (employee != nullptr && m_host.SharedRecords().IsChanged(Shown::Employee, employee->EmployeeID())) {
        m_host.SharedRecords().OfferLoad(*m_ui->notice, employee->DisplayName() + " was changed");
    }
}

void EmployeePage::WarnOfSharedNumbers()
{
    Succeeds([this] { m_ui->notice->Remark(QString::fromStdString(SharedNumbersNotice(*List(), ReadTexts()))); });
}

bool EmployeePage::Save()
{
    m_ui->notice->Remark({});
    const EmployeeTexts texts = ReadTexts();
    if (!IsAccepted(texts)) {
        return false;
    }
    return Succeeds([&] { return SaveTexts(texts); },
                    [this](const Failure&) { m_host.Desktop().Show(kEmployeeNotRead, listedit::kSaveTitle, Icon::Exclamation); });
}

bool EmployeePage::IsAccepted(const EmployeeTexts& texts)
{
    const auto refusal = CheckEmployeeTexts(texts);
    if (!refusal) {
        return true;
    }
    const auto refuse = [this](const char* text) { m_host.Desktop().Show(text, kEmployeeSaveTitle, Icon::Exclamation); };
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
        m_host.Desktop().Show(kAdministrator, kEmployeeSaveTitle, Icon::Information);
        ClearEmployeeFields();
        break;
    }
    return false;
}

bool EmployeePage::SaveTexts(const EmployeeTexts& texts)
{
    const auto list = List();
    const auto edited = CopyToEdit<CEmployee>(*list, texts.id, [](const CEmployee& employee) { return employee.EmployeeID(); });
    if (!edited) {
        m_host.Desktop().Show(kEmployeeNotFound, listedit::kNotFoundTitle, Icon::Exclamation);
        return false;
    }
    ReadEmployeeTexts(texts, *edited->entity);
    const std::string shared = SharedNumbersNotice(*list, texts);
    const ListSave saved = SaveOrTell(m_host.Desktop(), *list, *edited, kEmployeeNotSaved);
    if (saved == ListSave::Conflict) {
        AskForPresent(RowConflict(*list->Conflict()), texts.id);
    }
    if (saved != ListSave::Saved) {
        return false;
    }
    m_host.SharedRecords().Remember();
    const bool read = Reload();
    const std::string said = texts.name + (read ? kEmployeeSaved : kEmployeeSavedUnread) + (shared.empty() ? "" : ". ") + shared;
    m_ui->notice->Suggest(QString::fromStdString(said), kShowAgain, [this, id = SavedID(texts)] { ShowAgain(id); });
    emit m_host.EmployeeModels().Saved(edited->entity->EmployeeID());
    return true;
}

// The page is deliberately empty after a save; the one who was saved is a press away. A new one is the newest of that name.
std::string EmployeePage::SavedID(const EmployeeTexts& texts) const
{
    std::int32_t newest = 0;
    for (std::int32_t i = 1; texts.id.empty() && i <= List()->Count(); ++i) {
        const auto employee = List()->Item(i);
        newest = employee->DisplayName() == texts.name ? std::max(newest, employee->EmployeeID()) : newest;
    }
    return texts.id.empty() ? std::to_string(newest) : texts.id;
}

void EmployeePage::ShowAgain(const std::string& id)
{
    LeaveBehind(m_texts.Left(ReadTexts()));
    if (const auto employee = Of(id); ShowEmployee(employee)) {
        ShowStatus(*employee);
    }
}

void EmployeePage::AskForPresent(const RowConflict& conflict, const std::string& id)
{
    const auto employee = Required(Of(id)); // as it was read
    if (AskToLoad(m_host.Desktop(), listedit::kSaveTitle, conflict, ConflictText(conflict, employee->DisplayName()))) {
        emit m_host.SharedRecords().ReadAgainWanted();
    }
}

bool EmployeePage::Reload()
{
    const BusyPointer busy(m_host.Desktop());
    m_host.SharedRecords().AboutToRead(Shown::Employee);
    const bool read = Required(m_host.Controller())->GetEmployeeList();
    if (!FillEmployeeLists()) {
        m_host.ErrorNumber(windowerror::FillListsFailed);
    }
    ClearEmployeeFields();
    return read;
}

std::shared_ptr<CEmployeeList> EmployeePage::List() const
{
    return m_host.Employees();
}

} // namespace ptk
