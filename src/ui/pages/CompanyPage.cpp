#include "ui/pages/CompanyPage.h"

#include "model/CCompany.h"
#include "model/CCompanyList.h"
#include "office/ListEdit.h"
#include "platform/BusyPointer.h"
#include "platform/Desktop.h"
#include "platform/Required.h"
#include "platform/Text.h"
#include "startup/CController.h"
#include "store/CJetDB.h"
#include "ui/pages/PageHost.h"
#include "ui/widgets/BoxText.h"
#include "ui/widgets/ChosenOnly.h"
#include "ui_CompanyPage.h"

namespace ptk {

namespace {

constexpr auto kSaveTitle = "Company Save Error";
constexpr auto kNoName = "You cannot save a company without a name.";
constexpr auto kNotFound = "This company could not be found in the list. Save Aborted.";
constexpr auto kNotRead = "An error occurred while loading the company object.";
constexpr auto kNotSaved = "An error occurred while saving the company list.";

constexpr int kIDCharacters = 8;
constexpr int kNameCharacters = 20;

} // namespace

CompanyPage::CompanyPage(PageHost& host, QWidget* parent) : QWidget(parent), m_host(host), m_ui(std::make_unique<Ui::CompanyPage>())
{
    m_ui->setupUi(this);
    PrepareLists();
    ConnectButtons();
}

CompanyPage::~CompanyPage() = default;

void CompanyPage::PrepareLists()
{
    const auto prepare = [this](QComboBox* box, std::int32_t eventSource, int characters) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(characters);
        ChooseOnlyDeliberately(*box);
        connect(box, &QComboBox::activated, this, [this, box, eventSource] { Select(eventSource, *box); });
    };
    prepare(m_ui->cboCompanyID, eventsource::ID, kIDCharacters);
    prepare(m_ui->cboCompanyName, eventsource::Name, kNameCharacters);
}

void CompanyPage::ConnectButtons()
{
    connect(m_ui->cmdCompanyNew, &QPushButton::clicked, this, &CompanyPage::StartAnew);
    connect(m_ui->cmdCompanySave, &QPushButton::clicked, this, &CompanyPage::Save);
    connect(m_ui->cmdCompanyCancel, &QPushButton::clicked, this, &CompanyPage::StartAnew);
}

bool CompanyPage::FillCompanyLists()
{
    const auto controller = m_host.Controller();
    const auto list = controller == nullptr ? nullptr : controller->CompanyList();
    if (list == nullptr) {
        return false;
    }
    m_ui->cboCompanyID->clear();
    m_ui->cboCompanyName->clear();
    for (std::int32_t i = 1; i <= list->Count(); ++i) {
        const auto company = list->Item(i);
        m_ui->cboCompanyID->addItem(QString::number(company->CompanyID()));
        m_ui->cboCompanyName->addItem(QString::fromStdString(company->CompanyName()));
    }
    m_ui->cboCompanyID->setCurrentIndex(-1);
    m_ui->cboCompanyName->setCurrentIndex(-1);
    return true;
}

void CompanyPage::Select(std::int32_t eventSource, const QComboBox& box)
{
    const QString text = box.currentText();
    if (text.isEmpty()) {
        return;
    }
    m_host.EventSource(eventSource);
    if (const auto company = Find(eventSource, text); company != nullptr) {
        ShowSelection(*company);
    } else {
        ClearCompanyFields();
    }
    m_host.EventSource(eventsource::None);
}

std::shared_ptr<CCompany> CompanyPage::Find(std::int32_t eventSource, const QString& text) const
{
    try {
        const std::string wanted = text.toStdString();
        return eventSource == eventsource::ID ? List()->GetCompanyByID(ToInt32(wanted)) : List()->GetCompanyByName(wanted);
    } catch (...) {
        return nullptr; // text that is no number names no company
    }
}

void CompanyPage::ShowSelection(const CCompany& company)
{
    ShowCompany(std::make_shared<CCompany>(company));
    m_host.SetStatusText(company.CompanyName(), "Phone: " + company.Phone());
}

// Both lists stand on the row of the shown ID, so that companies of one name are not mixed up.
bool CompanyPage::ShowCompany(const std::shared_ptr<CCompany>& thecompany)
{
    if (thecompany == nullptr) {
        return false;
    }
    const int row = m_ui->cboCompanyID->findText(QString::number(thecompany->CompanyID()));
    m_ui->cboCompanyID->setCurrentIndex(row);
    m_ui->cboCompanyName->setCurrentIndex(row);
    ShowText(m_ui->txtCompanyAddr1, thecompany->Address1());
    ShowText(m_ui->txtCompanyAddr2, thecompany->Address2());
    ShowText(m_ui->txtCompanyCity, thecompany->City());
    ShowText(m_ui->txtCompanyState, thecompany->State());
    ShowText(m_ui->txtCompanyZip, thecompany->ZipCode());
    ShowText(m_ui->txtCompanyPhone, thecompany->Phone());
    ShowText(m_ui->txtCompanyFax, thecompany->Fax());
    ShowText(m_ui->txtFederalTaxID, thecompany->FederalTaxID());
    return true;
}

void CompanyPage::ReadCompanyFields(CCompany& company) const
{
    company.CompanyName(m_ui->cboCompanyName->currentText().toStdString());
    company.Address1(TextOf(m_ui->txtCompanyAddr1));
    company.Address2(TextOf(m_ui->txtCompanyAddr2));
    company.City(TextOf(m_ui->txtCompanyCity));
    company.State(TextOf(m_ui->txtCompanyState));
    company.ZipCode(TextOf(m_ui->txtCompanyZip));
    company.Phone(TextOf(m_ui->txtCompanyPhone));
    company.Fax(TextOf(m_ui->txtCompanyFax));
    company.FederalTaxID(TextOf(m_ui->txtFederalTaxID));
}

bool CompanyPage::ClearCompanyFields()
{
    ShowCompany(std::make_shared<CCompany>());
    m_ui->cboCompanyName->clearEditText();
    return true;
}

void CompanyPage::StartAnew()
{
    ClearCompanyFields();
    m_ui->cboCompanyName->setFocus();
}

void CompanyPage::Save()
{
    if (m_ui->cboCompanyName->currentText().isEmpty()) {
        return (void)m_host.Desktop().Show(kNoName, kSaveTitle, Icon::Exclamation);
    }
    try {
        SaveFields();
    } catch (...) {
        m_host.Desktop().Show(kNotRead, listedit::kSaveTitle, Icon::Exclamation);
    }
}

void CompanyPage::SaveFields()
{
    const auto list = List();
    const auto edited = CopyToEdit<CCompany>(*list, m_ui->cboCompanyID->currentText().toStdString(),
                                             [](const CCompany& company) { return company.CompanyID(); });
    if (!edited) {
        return (void)m_host.Desktop().Show(kNotFound, listedit::kNotFoundTitle, Icon::Exclamation);
    }
    ReadCompanyFields(*edited->entity);
    if (SaveOrTell(m_host.Desktop(), *list, *edited, kNotSaved)) {
        Reload();
    }
}

void CompanyPage::Reload()
{
    const BusyPointer busy(m_host.Desktop());
    if (!Required(m_host.Controller())->GetCompanyList()) {
        ReloadAfresh();
    }
    if (!FillCompanyLists()) {
        m_host.ErrorNumber(windowerror::FillListsFailed);
    }
    ClearCompanyFields();
}

// Once an operation has found the database closed, the program's access to it lists no companies any more, and leaves it open on the way. A
// new access knows nothing of that.
void CompanyPage::ReloadAfresh()
{
    const auto stale = Required(Required(m_host.Controller())->PTKDatabase());
    stale->CloseDB();
    const auto fresh = std::make_shared<CJetDB>(std::string());
    fresh->DatabaseName(stale->DatabaseName());
    List()->Destroy();
    List()->LoadList(fresh);
}

std::shared_ptr<CCompanyList> CompanyPage::List() const
{
    return Required(Required(m_host.Controller())->CompanyList());
}

} // namespace ptk
