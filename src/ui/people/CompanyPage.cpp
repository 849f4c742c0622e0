#include "ui/people/CompanyPage.h"

#include "model/CCompany.h"
#include "model/CCompanyList.h"
#include "platform/Required.h"
#include "platform/system/Desktop.h"
#include "startup/CController.h"
#include "store/CJetDB.h"
#include "ui/boxes/FieldWidth.h"
#include "ui/page/PageHost.h"
#include "ui_CompanyPage.h"

namespace ptk {

namespace {

constexpr auto kSaveTitle = "Company Save Error";
constexpr auto kNoName = "You cannot save a company without a name.";
constexpr int kIDCharacters = 5;
constexpr int kNameCharacters = 7; // at the least

constexpr CompanyPage::Kind kCompanies{
    .shown = Watched::Company,
    .notFound = "This company could not be found in the list. Save Aborted.",
    .notRead = "An error occurred while loading the company object.",
    .notSaved = "An error occurred while saving the company list.",
    .savedUnread = " saved, but the companies could not be read again",
    .unread = "The companies could not be read again",
    .list = &PageHost::Companies,
    .find = &CCompanyList::GetCompanyByID,
    .id = &CCompany::CompanyID,
    .show = ShowCompanyTexts,
    .read = ReadCompanyTexts,
};

} // namespace

CompanyPage::CompanyPage(PageHost& host, QWidget* parent)
    : QWidget(parent), TypedRecordPage(host, kCompanies), m_ui(std::make_unique<Ui::CompanyPage>())
{
    m_ui->setupUi(this);
    FitFields();
    PrepareLists();
    ConnectButtons();
}

CompanyPage::~CompanyPage() = default;

void CompanyPage::PrepareLists()
{
    for (QComboBox* box : {m_ui->cboCompanyID, m_ui->cboCompanyName}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(box == m_ui->cboCompanyID ? kIDCharacters : kNameCharacters);
    }
    using Texts = CompanyTexts;
    Begin({{m_ui->cboCompanyID, &Texts::id, eventsource::ID}, {m_ui->cboCompanyName, &Texts::name, eventsource::Name}},
          {{m_ui->txtCompanyAddr1, &Texts::address1},
           {m_ui->txtCompanyAddr2, &Texts::address2},
           {m_ui->txtCompanyCity, &Texts::city},
           {m_ui->txtCompanyState, &Texts::state},
           {m_ui->txtCompanyZip, &Texts::zip},
           {m_ui->txtCompanyPhone, &Texts::phone},
           {m_ui->txtCompanyFax, &Texts::fax},
           {m_ui->txtFederalTaxID, &Texts::federalTaxID}},
          *m_ui->notice);
}

void CompanyPage::ConnectButtons()
{
    connect(m_ui->cmdCompanyNew, &QPushButton::clicked, this, &CompanyPage::New);
    connect(m_ui->cmdCompanySave, &QPushButton::clicked, this, [this] { SaveTyped(); });
    connect(m_ui->cmdCompanyCancel, &QPushButton::clicked, this, &CompanyPage::New);
}

void CompanyPage::FitFields()
{
    LimitWidth(*this, fieldwidth::Page);
    LimitWidth(*m_ui->txtCompanyState, fieldwidth::State);
    LimitWidth(*m_ui->txtCompanyZip, fieldwidth::Zip);
    for (auto* box : {m_ui->txtCompanyPhone, m_ui->txtCompanyFax, m_ui->txtFederalTaxID}) {
        LimitWidth(*box, fieldwidth::Phone);
    }
}

bool CompanyPage::FillCompanyLists()
{
    const auto controller = Host().Controller();
    const auto list = controller == nullptr ? nullptr : controller->CompanyList();
    if (list == nullptr) {
        return false;
    }
    m_ui->cboCompanyID->clear();
    m_ui->cboCompanyName->clear();
    for (std::int32_t i = 1; i <= list->Count(); ++i) {
        const auto company = list->Item(i);
        m_ui->cboCompanyID->addItem(QString::number(company->CompanyID()), company->CompanyID());
        m_ui->cboCompanyName->addItem(QString::fromStdString(company->CompanyName()), company->CompanyID());
    }
    m_ui->cboCompanyID->setCurrentIndex(-1);
    m_ui->cboCompanyName->setCurrentIndex(-1);
    return true;
}

void CompanyPage::ShowStatus(const CCompany& company)
{
    Host().SetStatusText(company.CompanyName(), "Phone: " + company.Phone());
}

void CompanyPage::New()
{
    StartAnew();
    m_ui->cboCompanyName->setFocus();
}

bool CompanyPage::IsAccepted(const CompanyTexts& texts)
{
    if (texts.name.empty()) {
        Host().Desktop().Show(kNoName, kSaveTitle, Icon::Exclamation);
    }
    return !texts.name.empty();
}

void CompanyPage::TellSaved(const std::string& told, const CompanyTexts& /*texts*/, const CCompany& /*saved*/)
{
    m_ui->notice->Say(QString::fromStdString(told));
}

bool CompanyPage::Load()
{
    return Required(Host().Controller())->GetCompanyList() || LoadAfresh();
}

// Once an operation has found the database closed, the program's access to it lists no more companies, and remains open on the way. A new
// access does not have this trouble.
bool CompanyPage::LoadAfresh()
{
    const auto stale = Host().Database();
    stale->CloseDB();
    Records()->Destroy();
    return Records()->LoadList(stale->SecondAccess());
}

} // namespace ptk
