// What the pages of companies and of employees share: finding, showing, adding and changing a record without losing typed text.
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

// One kind of record: the messages of its page, and the functions by which a page reads and writes it.
template <typename Entity, typename List, typename Texts>
struct RecordKind
{
    Watched shown;
    const char* notFound;
    const char* notRead;
    const char* notSaved;
    const char* savedUnread; // follows the record's name
    const char* unread;
    std::shared_ptr<List> (PageHost::*list)() const;
    std::shared_ptr<Entity> (List::*find)(std::int32_t id);
    std::int32_t (Entity::*id)() const;
    Texts (*show)(const Entity&);
    void (*read)(const Texts&, Entity&);
};

// A page without a chosen ID holds a new record. A record that is refused stays on the page as it was typed. The fields belong to the
// derived pages.
template <typename Entity, typename List, typename Texts>
class TypedRecordPage : public RecordPage
{
public:
    using Kind = RecordKind<Entity, List, Texts>;

    void ReadAgain(std::optional<std::int64_t> row) final;
    [[nodiscard]] std::optional<Watched> IdleList() const final;
    [[nodiscard]] std::string Unsaved() const final;
    bool SaveTyped() final;
    void TellChanges() final;

protected:
    // A box in which the user looks for a record. A box that can be typed into is a field of the record, too.
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

    // To be called once the controls exist. The first list holds the IDs.
    void Begin(std::vector<KeyList> lists, std::vector<TextBox> boxes, NoticeLine& notice);

    // Shows the record; false for nullptr.
    bool ShowRecord(const std::shared_ptr<Entity>& record);

    // Both put another record, or an empty one, in place of the shown one, and offer in the line what was typed on the page.
    void ShowAgain(const std::shared_ptr<Entity>& record);
    void StartAnew();

    [[nodiscard]] Texts ReadTexts() const;
    void ClearFields() { Show(Empty()); }
    void ShownAfresh() { m_texts.Show(ReadTexts()); }

    // The record with the chosen ID; nullptr where none is chosen, or where it has left the list.
    [[nodiscard]] std::shared_ptr<Entity> Chosen() const { return ChosenIn(*m_lists.front().box); }

    [[nodiscard]] std::shared_ptr<Entity> Of(const std::string& id) const;

    // The list of these records. Raises Failure 91 when there is none.
    [[nodiscard]] std::shared_ptr<List> Records() const { return (m_host.*m_kind.list)(); }

    [[nodiscard]] PageHost& Host() const { return m_host; }

private:
    [[nodiscard]] virtual Texts Empty() const { return {}; }

    // The fields that are neither lists nor boxes for texts.
    virtual void FillFields(const Texts& /*texts*/) {}
    virtual void ReadFields(Texts& /*texts*/) const {}

    virtual bool FillLists() = 0;
    virtual bool Load() = 0; // reads the list from the database
    virtual void ShowStatus(const Entity& record) = 0;

    // Whether the texts can be saved; where they cannot, the user has been told.
    virtual bool IsAccepted(const Texts& texts) = 0;

    // What is said besides once the texts are saved. It is asked for before the save.
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

    // Reads the list again. False where that failed; the line then offers to try again.
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
