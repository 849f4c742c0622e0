#include "ui/people/CompanyPage.h"

#include "model/CCompany.h"
#include "model/CCompanyList.h"
#include "office/records/CompanyTexts.h"
#include "office/records/ConflictNotice.h"
#include "office/records/ListEdit.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Desktop.h"
#include "platform/text/Text.h"
#include "startup/CController.h"
#include "store/CJetDB.h"
#include "ui/boxes/BoxText.h"
#include "ui/boxes/ChosenOnly.h"
#include "ui/boxes/FieldWidth.h"
#include "ui/page/OfferLeft.h"
#include "ui/page/PageHost.h"
#include "ui/page/SharedRecords.h"
#include "ui_CompanyPage.h"

namespace ptk {

namespace {

constexpr auto kSaveTitle = "Company Save Error";
constexpr auto kNoName = "You cannot save a company without a name.";
constexpr auto kNotFound = "This company could not be found in the list. Save Aborted.";
constexpr auto kNotRead = "An error occurred while loading the company object.";
constexpr auto kNotSaved = "An error occurred while saving the company list.";

constexpr auto kSaved = " saved";
constexpr auto kSavedUnread = " saved, but the companies could not be read again";
constexpr auto kNotInList = " is not in the list any more";

constexpr int kIDCharacters = 5;
constexpr int kNameCharacters = 7; // at the least

} // namespace

CompanyPage::CompanyPage(PageHost& host, QWidget* parent) : QWidget(parent), m_host(host), m_ui(std::make_unique<Ui::CompanyPage>())
{
    m_ui->setupUi(this);
    FitFields();
    PrepareLists();
    ConnectButtons();
}

CompanyPage::~CompanyPage() = default;

std::array<CompanyPage::KeyList, 2> CompanyPage::KeyLists() const
{
    return {{{m_ui->cboCompanyID, &CompanyTexts::id, eventsource::ID, kIDCharacters},
             {m_ui->cboCompanyName, &CompanyTexts::name, eventsource::Name, kNameCharacters}}};
}

void CompanyPage::PrepareLists()
{
    for (const KeyList& list : KeyLists()) {
        list.box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        list.box->setMinimumContentsLength(list.characters);
        ChooseOnlyDeliberately(*list.box);
        connect(list.box, &QComboBox::activated, this, [this, list] { Select(list); });
    }
    connect(m_ui->cboCompanyName->lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString& text) { m_texts.Type(&CompanyTexts::name, text.toStdString()); });
}

void CompanyPage::ConnectButtons()
{
    connect(m_ui->cmdCompanyNew, &QPushButton::clicked, this, &CompanyPage::StartAnew);
    connect(m_ui->cmdCompanySave, &QPushButton::clicked, this, &CompanyPage::Save);
    connect(m_ui->cmdCompanyCancel, &QPushButton::clicked, this, &CompanyPage::StartAnew);
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
    const auto controller = m_host.Controller();
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

void CompanyPage::Select(const KeyList& list)
{
    if (list.box->currentText().isEmpty()) {
        return;
    }
    m_host.EventSource(list.eventSource);
    LeaveBehind(m_texts.LeftByChoice(ReadTexts(), list.text));
    if (const auto company = ChosenIn(*list.box); company != nullptr) {
        ShowCompany(company);
        ShowStatus(*company);
    } else {
        ClearCompanyFields();
    }
    m_host.EventSource(eventsource::None);
}

void CompanyPage::ShowStatus(const CCompany& company)
{
    m_host.SetStatusText(company.CompanyName(), "Phone: " + company.Phone());
}

// By the row's own ID: of companies of one name each is found.
std::shared_ptr<CCompany> CompanyPage::ChosenIn(const QComboBox& box) const
{
    std::shared_ptr<CCompany> chosen;
    Succeeds([&] { chosen = List()->GetCompanyByID(box.currentData().toInt()); });
    return chosen;
}

bool CompanyPage::ShowCompany(const std::shared_ptr<CCompany>& thecompany)
{
    if (thecompany == nullptr) {
        return false;
    }
    Fill(ShowCompanyTexts(*thecompany));
    return true;
}

// Both lists stand on the row of the shown ID, so that companies of one name are not mixed up.
void CompanyPage::Fill(const CompanyTexts& texts)
{
    const int row = m_ui->cboCompanyID->findText(QString::fromStdString(texts.id));
    m_ui->cboCompanyID->setCurrentIndex(row);
    m_ui->cboCompanyName->setCurrentIndex(row);
    ShowText(m_ui->cboCompanyName->lineEdit(), texts.name);
    ShowText(m_ui->txtCompanyAddr1, texts.address1);
    ShowText(m_ui->txtCompanyAddr2, texts.address2);
    ShowText(m_ui->txtCompanyCity, texts.city);
    ShowText(m_ui->txtCompanyState, texts.state);
    ShowText(m_ui->txtCompanyZip, texts.zip);
    ShowText(m_ui->txtCompanyPhone, texts.phone);
    ShowText(m_ui->txtCompanyFax, texts.fax);
    ShowText(m_ui->txtFederalTaxID, texts.federalTaxID);
    m_texts.Show(ReadTexts());
}

CompanyTexts CompanyPage::ReadTexts() const
{
    return {.id = m_ui->cboCompanyID->currentText().toStdString(),
            .name = TextOf(m_ui->cboCompanyName->lineEdit()),
            .address1 = TextOf(m_ui->txtCompanyAddr1),
            .address2 = TextOf(m_ui->txtCompanyAddr2),
            .city = TextOf(m_ui->txtCompanyCity),
            .state = TextOf(m_ui->txtCompanyState),
            .zip = TextOf(m_ui->txtCompanyZip),
            .phone = TextOf(m_ui->txtCompanyPhone),
            .fax = TextOf(m_ui->txtCompanyFax),
            .federalTaxID = TextOf(m_ui->txtFederalTaxID)};
}

bool CompanyPage::ClearCompanyFields()
{
    Fill({});
    return true;
}

void CompanyPage::StartAnew()
{
    LeaveBehind(m_texts.Left(ReadTexts()));
    ClearCompanyFields();
    m_ui->cboCompanyName->setFocus();
}

void CompanyPage::LeaveBehind(const std::optional<LeftBehind<CompanyTexts>>& left)
{
    OfferLeft(*m_ui->notice, left, [this](const LeftBehind<CompanyTexts>& texts) { BringBack(texts); });
}

// What stands on the page by then may have to be brought back in its turn.
void CompanyPage::BringBack(const LeftBehind<CompanyTexts>& left)
{
    if (!left.shown.id.empty() && m_ui->cboCompanyID->findText(QString::fromStdString(left.shown.id)) < 0) {
        return m_ui->notice->Offer(QString::fromStdString(left.shown.name + kNotInList), kBringBack, [this, left] { BringBack(left); });
    }
    LeaveBehind(m_texts.Left(ReadTexts()));
    PutBack(left);
    if (const auto company = ChosenIn(*m_ui->cboCompanyID); company != nullptr) {
        ShowStatus(*company);
    }
}

// Over what is stored by now.
void CompanyPage::PutBack(const LeftBehind<CompanyTexts>& left)
{
    LeftBehind<CompanyTexts> now = left;
    if (ShowCompany(Of(left.shown.id))) {
        now = {ReadTexts(), TypedOver(left, ReadTexts())};
    }
    Fill(now.typed);
    m_texts.BringBack(now);
}

std::shared_ptr<CCompany> CompanyPage::Of(const std::string& id) const
{
    return id.empty() ? nullptr : List()->GetCompanyByID(ToInt32(id));
}

void CompanyPage::ReadAgain(std::optional<std::int64_t> row)
{
    const auto left = m_texts.Left(ReadTexts());
    const std::string id = m_ui->cboCompanyID->currentText().toStdString();
    const bool read = Reload();
    if (!left) {
        const auto wanted = row ? Of(std::to_string(*row)) : nullptr;
        ShowCompany(wanted != nullptr ? wanted : Of(id));
        return LeaveBehind(left);
    }
    const bool isThere = ShowCompany(Of(id));
    if (!isThere && !id.empty()) {
        return LeaveBehind(read ? AsNew(*left) : left);
    }
    if (isThere && ReadTexts() != left->shown) {
        return LeaveBehind(left);
    }
    PutBack(*left);
}

std::optional<Shown> CompanyPage::IdleList() const
{
    return m_texts.Left(ReadTexts()) ? std::nullopt : std::optional(Shown::Company);
}

std::string CompanyPage::Unsaved() const
{
    const auto left = m_texts.Left(ReadTexts());
    return left ? NoticeOf(*left) : std::string();
}

void CompanyPage::TellChanges()
{
    const auto company = Of(m_ui->cboCompanyID->currentText().toStdString());
    if (company != nullptr && m_host.SharedRecords().IsChanged(Shown::Company, company->CompanyID())) {
        m_host.SharedRecords().OfferLoad(*m_ui->notice, company->CompanyName() + " was changed");
    }
}

bool CompanyPage::Save()
{
    m_ui->notice->Remark({});
    const CompanyTexts texts = ReadTexts();
    if (texts.name.empty()) {
        m_host.Desktop().Show(kNoName, kSaveTitle, Icon::Exclamation);
        return false;
    }
    return Succeeds([&] { return SaveTexts(texts); },
                    [this](const Failure&) { m_host.Desktop().Show(kNotRead, listedit::kSaveTitle, Icon::Exclamation); });
}

bool CompanyPage::SaveTexts(const CompanyTexts& texts)
{
    const auto list = List();
    const auto edited = CopyToEdit<CCompany>(*list, texts.id, [](const CCompany& company) { return company.CompanyID(); });
    if (!edited) {
        m_host.Desktop().Show(kNotFound, listedit::kNotFoundTitle, Icon::Exclamation);
        return false;
    }
    ReadCompanyTexts(texts, *edited->entity);
    const ListSave saved = SaveOrTell(m_host.Desktop(), *list, *edited, kNotSaved);
    if (saved == ListSave::Conflict) {
        AskForPresent(RowConflict(*list->Conflict()), texts.id);
    }
    if (saved != ListSave::Saved) {
        return false;
    }
    m_host.SharedRecords().Remember();
    const bool read = Reload();
    m_ui->notice->Say(QString::fromStdString(texts.name + (read ? kSaved : kSavedUnread)));
    return true;
}

void CompanyPage::AskForPresent(const RowConflict& conflict, const std::string& id)
{
    const auto company = Required(Of(id)); // as it was read
    if (AskToLoad(m_host.Desktop(), listedit::kSaveTitle, conflict, ConflictText(conflict, company->CompanyName()))) {
        emit m_host.SharedRecords().ReadAgainWanted();
    }
}

bool CompanyPage::Reload()
{
    const BusyPointer busy(m_host.Desktop());
    m_host.SharedRecords().AboutToRead(Shown::Company);
    const bool read = Required(m_host.Controller())->GetCompanyList() || ReloadAfresh();
    if (!FillCompanyLists()) {
        m_host.ErrorNumber(windowerror::FillListsFailed);
    }
    ClearCompanyFields();
    return read;
}

// Once an operation has found the database closed, the program's access to it lists no companies any more, and leaves it open on the way. A
// new access knows nothing of that.
bool CompanyPage::ReloadAfresh()
{
    const auto stale = m_host.Database();
    stale->CloseDB();
    List()->Destroy();
    return List()->LoadList(stale->Afresh());
}

std::shared_ptr<CCompanyList> CompanyPage::List() const
{
    return m_host.Companies();
}

} // namespace ptk
