// What the pages of companies and of employees share: a record is found, shown, added and changed, and nothing typed is lost on the way.
#pragma once

#include "office/records/LeftBehind.h"
#include "store/RowConflict.h"
#include "ui/page/RecordPage.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QComboBox;
class QLineEdit;

namespace ptk {

class NoticeLine;
class PageHost;

// One kind of record, and what its page tells.
template <typename Entity, typename List, typename Texts>
struct RecordKind
{
    Shown shown;
    const char* notFound;
    const char* notRead;
    const char* notSaved;
    const char* savedUnread; // behind the record's name
    const char* unread;
    std::shared_ptr<List> (PageHost::*list)() const;
    std::shared_ptr<Entity> (List::*find)(std::int32_t id);
    std::int32_t (Entity::*id)() const;
    Texts (*show)(const Entity&);
    void (*read)(const Texts&, Entity&);
};

// A page without a chosen ID holds a new record. What is refused stays on the page as it was typed. The pages differ in their fields.
template <typename Entity, typename List, typename Texts>
class TypedRecordPage : public RecordPage
{
public:
    using Kind = RecordKind<Entity, List, Texts>;

    void ReadAgain(std::optional<std::int64_t> row) final;
    [[nodiscard]] std::optional<Shown> IdleList() const final;
    [[nodiscard]] std::string Unsaved() const final;
    bool SaveTyped() final;
    void TellChanges() final;

protected:
    // A box in which a record is looked for; one that can be typed into is a field of the record, too.
    struct KeyList
    {
        QComboBox* box; // its entries hold their records' IDs
        std::string Texts::*text;
        std::int32_t eventSource;
    };

    struct TextBox
    {
        QLineEdit* box;
        std::string Texts::*text;
    };

    // `kind` outlives the page.
    TypedRecordPage(PageHost& host, const Kind& kind) : m_host(host), m_kind(kind) {}

    // Once the controls are there. The first list holds the IDs.
    void Begin(std::vector<KeyList> lists, std::vector<TextBox> boxes, NoticeLine& notice);

    // False for nullptr.
    bool ShowRecord(const std::shared_ptr<Entity>& record);

    // What was typed is offered in the line, as everywhere where another record takes its place.
    void ShowAgain(const std::shared_ptr<Entity>& record);
    void StartAnew();

    [[nodiscard]] Texts ReadTexts() const;
    void ClearFields() { Show(Empty()); }
    void ShownAfresh() { m_texts.Show(ReadTexts()); }

    // nullptr also for one that has left the list.
    [[nodiscard]] std::shared_ptr<Entity> Chosen() const { return ChosenIn(*m_lists.front().box); }

    [[nodiscard]] std::shared_ptr<Entity> Of(const std::string& id) const;

    // Raises Failure 91 when there is none.
    [[nodiscard]] std::shared_ptr<List> Records() const { return (m_host.*m_kind.list)(); }

    [[nodiscard]] PageHost& Host() const { return m_host; }

private:
    [[nodiscard]] virtual Texts Empty() const { return {}; }

    // What stands neither in a list nor in a box for texts.
    virtual void FillFields(const Texts& /*texts*/) {}
    virtual void ReadFields(Texts& /*texts*/) const {}

    virtual bool FillLists() = 0;
    virtual bool Load() = 0; // the list, from the database
    virtual void ShowStatus(const Entity& record) = 0;

    // False when the texts cannot be saved, which the user is told.
    virtual bool IsAccepted(const Texts& texts) = 0;

    // What else is to be said once they are saved, asked before.
    [[nodiscard]] virtual std::string Remark(const Texts& /*texts*/) const { return {}; }

    virtual void TellSaved(const std::string& told, const Texts& texts, const Entity& saved) = 0;

    void Show(const Texts& texts);
    void Select(const KeyList& list);
    [[nodiscard]] std::shared_ptr<Entity> ChosenIn(const QComboBox& box) const;
    [[nodiscard]] std::string ShownID() const;

    [[nodiscard]] std::optional<LeftBehind<Texts>> Left() const { return m_texts.Left(ReadTexts()); }
    void Offer(const std::optional<LeftBehind<Texts>>& left);
    void BringBack(const LeftBehind<Texts>& left);
    void PutBack(const LeftBehind<Texts>& left);

    bool SaveTexts(const Texts& texts);
    void AskForPresent(const RowConflict& conflict, const std::string& id);

    // Whether the list could be read again; if not, the line offers to.
    bool Reload();
    void OfferReading(const std::string& why);

    PageHost& m_host;
    const Kind& m_kind;
    std::vector<KeyList> m_lists;
    std::vector<TextBox> m_boxes;
    NoticeLine* m_notice = nullptr;
    TypedTexts<Texts> m_texts;
};

} // namespace ptk
