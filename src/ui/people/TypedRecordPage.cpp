#include "ui/people/TypedRecordPage.h"

#include "model/CCompanyList.h"
#include "model/CEmployeeList.h"
#include "office/records/CompanyTexts.h"
#include "office/records/ConflictNotice.h"
#include "office/records/EmployeeTexts.h"
#include "office/records/ListEdit.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Desktop.h"
#include "platform/text/Text.h"
#include "ui/boxes/BoxText.h"
#include "ui/boxes/ChosenOnly.h"
#include "ui/page/PageHost.h"
#include "ui/page/SharedRecords.h"
#include "ui/widgets/NoticeLine.h"

#include <QComboBox>
#include <utility>

namespace ptk {

namespace {

constexpr auto kSaved = " saved";
constexpr auto kChanged = " was changed";
constexpr auto kNotInList = " is not in the list any more";
constexpr auto kReadAgain = "Try again";

} // namespace

template <typename Entity, typename List, typename Texts>
void TypedRecordPage<Entity, List, Texts>::Begin(std::vector<KeyList> lists, std::vector<TextBox> boxes, NoticeLine& notice)
{
    m_lists = std::move(lists);
    m_boxes = std::move(boxes);
    m_notice = &notice;
    for (const KeyList& list : m_lists) {
        ChooseOnlyDeliberately(*list.box);
        QObject::connect(list.box, &QComboBox::activated, m_notice, [this, list] { Select(list); });
        if (list.box->isEditable()) {
            QObject::connect(list.box->lineEdit(), &QLineEdit::textEdited, m_notice,
                             [this, list](const QString& text) { m_texts.Type(list.text, text.toStdString()); });
        }
    }
}

template <typename Entity, typename List, typename Texts>
void TypedRecordPage<Entity, List, Texts>::Select(const KeyList& list)
{
    if (list.box->currentText().isEmpty()) {
        return;
    }
    m_host.EventSource(list.eventSource);
    Offer(m_texts.LeftByChoice(ReadTexts(), list.text));
    if (const auto record = ChosenIn(*list.box); ShowRecord(record)) {
        ShowStatus(*record);
    } else {
        ClearFields();
    }
    m_host.EventSource(eventsource::None);
}

// Finds the record by the ID of the chosen row, so that namesakes are told apart.
template <typename Entity, typename List, typename Texts>
std::shared_ptr<Entity> TypedRecordPage<Entity, List, Texts>::ChosenIn(const QComboBox& box) const
{
    std::shared_ptr<Entity> chosen;
    Succeeds([&] { chosen = (*Records().*m_kind.find)(box.currentData().toInt()); });
    return chosen;
}

template <typename Entity, typename List, typename Texts>
std::shared_ptr<Entity> TypedRecordPage<Entity, List, Texts>::Of(const std::string& id) const
{
    return id.empty() ? nullptr : (*Records().*m_kind.find)(ToInt32(id));
}

template <typename Entity, typename List, typename Texts>
std::string TypedRecordPage<Entity, List, Texts>::ShownID() const
{
    return m_lists.front().box->currentText().toStdString();
}

template <typename Entity, typename List, typename Texts>
bool TypedRecordPage<Entity, List, Texts>::ShowRecord(const std::shared_ptr<Entity>& record)
{
    if (record == nullptr) {
        return false;
    }
    Show(m_kind.show(*record));
    return true;
}

// Sets all lists to the row of the shown ID, so that namesakes are not mixed up.
template <typename Entity, typename List, typename Texts>
void TypedRecordPage<Entity, List, Texts>::Show(const Texts& texts)
{
    const int row = m_lists.front().box->findText(QString::fromStdString(texts.id));
    for (const KeyList& list : m_lists) {
        list.box->setCurrentIndex(row);
        if (list.box->isEditable()) {
            ShowText(list.box->lineEdit(), texts.*list.text);
        }
    }
    for (const TextBox& box : m_boxes) {
        ShowText(box.box, texts.*box.text);
    }
    FillFields(texts);
    ShownAfresh();
}

template <typename Entity, typename List, typename Texts>
Texts TypedRecordPage<Entity, List, Texts>::ReadTexts() const
{
    Texts texts;
    for (const KeyList& list : m_lists) {
        texts.*list.text = list.box->currentText().toStdString();
    }
    for (const TextBox& box : m_boxes) {
        texts.*box.text = TextOf(box.box);
    }
    ReadFields(texts);
    return texts;
}

template <typename Entity, typename List, typename Texts>
void TypedRecordPage<Entity, List, Texts>::ShowAgain(const std::shared_ptr<Entity>& record)
{
    Offer(Left());
    if (ShowRecord(record)) {
        ShowStatus(*record);
    }
}

template <typename Entity, typename List, typename Texts>
void TypedRecordPage<Entity, List, Texts>::StartAnew()
{
    Offer(Left());
    ClearFields();
}

// Offers to bring back what was typed. Where nothing was, the line keeps an earlier offer and nothing else.
template <typename Entity, typename List, typename Texts>
void TypedRecordPage<Entity, List, Texts>::Offer(const std::optional<LeftBehind<Texts>>& left)
{
    if (!left) {
        return m_notice->Remark(QString());
    }
    m_notice->Offer(QString::fromStdString(NoticeOf(*left)), kBringBack, [this, left = *left] { BringBack(left); });
}

// Brings typed text back. What stands on the page by then is offered in its turn.
template <typename Entity, typename List, typename Texts>
void TypedRecordPage<Entity, List, Texts>::BringBack(const LeftBehind<Texts>& left)
{
    if (!left.shown.id.empty() && m_lists.front().box->findText(QString::fromStdString(left.shown.id)) < 0) {
        return m_notice->Offer(QString::fromStdString(left.shown.name + kNotInList), kBringBack, [this, left] { BringBack(left); });
    }
    Offer(Left());
    PutBack(left);
    if (const auto record = Chosen(); record != nullptr) {
        ShowStatus(*record);
    }
}

// Puts typed text over what is stored now.
template <typename Entity, typename List, typename Texts>
void TypedRecordPage<Entity, List, Texts>::PutBack(const LeftBehind<Texts>& left)
{
    LeftBehind<Texts> now = left;
    if (ShowRecord(Of(left.shown.id))) {
        now = {ReadTexts(), TypedOver(left, ReadTexts())};
    }
    Show(now.typed);
    m_texts.BringBack(now);
}

template <typename Entity, typename List, typename Texts>
void TypedRecordPage<Entity, List, Texts>::ReadAgain(std::optional<std::int64_t> row)
{
    const auto left = Left();
    const std::string id = ShownID();
    const bool isRead = Reload();
    if (!left) {
        const auto wanted = row ? Of(std::to_string(*row)) : nullptr;
        ShowRecord(wanted != nullptr ? wanted : Of(id));
        return Offer(left);
    }
    const auto present = ShowRecord(Of(id)) ? std::optional(ReadTexts()) : std::nullopt;
    switch (FateOf(*left, present, isRead)) {
    case TypedFate::PutBack:
        return PutBack(*left);
    case TypedFate::Offered:
        return Offer(left);
    case TypedFate::OfferedAsNew:
        return Offer(AsNew(*left));
    }
}

template <typename Entity, typename List, typename Texts>
std::optional<Watched> TypedRecordPage<Entity, List, Texts>::IdleList() const
{
    return Left() ? std::nullopt : std::optional(m_kind.shown);
}

template <typename Entity, typename List, typename Texts>
std::string TypedRecordPage<Entity, List, Texts>::Unsaved() const
{
    const auto left = Left();
    return left ? NoticeOf(*left) : std::string();
}

template <typename Entity, typename List, typename Texts>
void TypedRecordPage<Entity, List, Texts>::TellChanges()
{
    const auto record = Of(ShownID());
    if (record != nullptr && m_host.SharedRecords().IsChanged(m_kind.shown, (*record.*m_kind.id)())) {
        m_host.SharedRecords().OfferLoad(*m_notice, m_kind.show(*record).name + kChanged);
    }
}

template <typename Entity, typename List, typename Texts>
bool TypedRecordPage<Entity, List, Texts>::SaveTyped()
{
    m_notice->Remark({});
    const Texts texts = ReadTexts();
    return IsAccepted(texts) &&
           Succeeds([&] { return SaveTexts(texts); },
                    [this](const Failure&) { m_host.Desktop().Show(m_kind.notRead, listedit::kSaveTitle, Icon::Exclamation); });
}

template <typename Entity, typename List, typename Texts>
bool TypedRecordPage<Entity, List, Texts>::SaveTexts(const Texts& texts)
{
    const auto list = Records();
    const auto edited = CopyToEdit<Entity>(*list, texts.id, [this](const Entity& record) { return (record.*m_kind.id)(); });
    if (!edited) {
        m_host.Desktop().Show(m_kind.notFound, listedit::kNotFoundTitle, Icon::Exclamation);
        return false;
    }
    m_kind.read(texts, *edited->entity);
    const std::string remark = Remark(texts);
    const ListSave saved = SaveOrTell(m_host.Desktop(), *list, *edited, m_kind.notSaved);
    if (saved == ListSave::Conflict) {
        AskForPresent(RowConflict(*list->Conflict()), texts.id);
    }
    if (saved != ListSave::Saved) {
        return false;
    }
    m_host.SharedRecords().Remember();
    const bool isRead = Reload();
    const std::string told = texts.name + (isRead ? kSaved : m_kind.savedUnread) + (remark.empty() ? "" : ". ") + remark;
    TellSaved(told, texts, *edited->entity);
    if (!isRead) {
        OfferReading(told);
    }
    return true;
}

template <typename Entity, typename List, typename Texts>
void TypedRecordPage<Entity, List, Texts>::AskForPresent(const RowConflict& conflict, const std::string& id)
{
    const Texts asRead = m_kind.show(*Required(Of(id)));
    if (AskToLoad(m_host.Desktop(), listedit::kSaveTitle, conflict, ConflictText(conflict, asRead.name))) {
        emit m_host.SharedRecords().ReadAgainWanted();
    }
}

template <typename Entity, typename List, typename Texts>
bool TypedRecordPage<Entity, List, Texts>::Reload()
{
    const BusyPointer busy(m_host.Desktop());
    m_host.SharedRecords().AboutToRead(m_kind.shown);
    const bool isRead = Load();
    if (!FillLists()) {
        m_host.ErrorNumber(windowerror::FillListsFailed);
    }
    ClearFields();
    if (!isRead) {
        OfferReading(m_kind.unread);
    }
    return isRead;
}

// Offers to read the lists again; they are empty until then.
template <typename Entity, typename List, typename Texts>
void TypedRecordPage<Entity, List, Texts>::OfferReading(const std::string& why)
{
    m_notice->Offer(QString::fromStdString(why), kReadAgain, [this] { emit m_host.SharedRecords().ReadAgainWanted(); });
}

template class TypedRecordPage<CCompany, CCompanyList, CompanyTexts>;
template class TypedRecordPage<CEmployee, CEmployeeList, EmployeeTexts>;

} // namespace ptk
